#include "widgets/coordinate_edit.h"

#include "geo/input_validator.h"
#include "widgets/coordinate_text.h"
#include "widgets/text_colors.h"

#include <QRegularExpressionValidator>

namespace {

class CoordinateTextValidator final : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString &text, int &) const override
    {
        return coordinateFromText(text).isValid() ? Acceptable : Intermediate;
    }
};

} // namespace

CoordinateEdit::CoordinateEdit(GeoCoordinate::ATCStringFormat format, QWidget *parent)
    : QLineEdit(parent), m_format(format)
{
    const bool precise = format == GeoCoordinate::HighPrecision;
    setValidator(
        precise ? InputValidator::atcCoordinateHighPrecisionValidator() : InputValidator::atcCoordinateValidator());
    const QString example = GeoCoordinate(40.05, 116.0 + 44.0 / 60.0).toATCString(format);
    setPlaceholderText(tr("such as %1").arg(example));
    setToolTip(precise ? tr("Latitude and longitude in degrees, minutes, seconds and hundredths: %1").arg(example)
                       : tr("Latitude and longitude in degrees, minutes and seconds: %1").arg(example));
    setMinimumWidth(fontMetrics().horizontalAdvance(placeholderText()) + 24);
    connect(this, &QLineEdit::textEdited, this, [this](const QString &typed) {
        const int cursor = cursorPosition();
        setText(typed.toUpper());
        setCursorPosition(cursor);
    });
}

CoordinateEdit::CoordinateEdit(QWidget *parent)
    : QLineEdit(parent), m_anyNotation(true), m_format(GeoCoordinate::HighPrecision)
{
    setValidator(new CoordinateTextValidator(this));
    const GeoCoordinate example(40.05, 116.0 + 44.0 / 60.0);
    setPlaceholderText(tr("such as %1").arg(example.toATCString(m_format)));
    setToolTip(tr("Latitude and longitude: %1, %2 or %3")
                   .arg(example.toATCString(), example.toATCString(m_format),
                       example.toATCString(GeoCoordinate::DecimalDegrees)));
    setMinimumWidth(fontMetrics().horizontalAdvance(example.toATCString(m_format)) + 24);
    connect(this, &QLineEdit::textChanged, this, &CoordinateEdit::showReadable);
}

void CoordinateEdit::showReadable()
{
    QPalette colors;
    if (!text().isEmpty() && !hasAcceptableInput()) {
        colors.setColor(QPalette::Text, alarmTextColor(palette()));
    }
    setPalette(colors);
}

GeoCoordinate CoordinateEdit::coordinate() const
{
    if (m_set.isValid() && text() == m_setText) {
        return m_set;
    }
    if (!hasAcceptableInput()) {
        return {};
    }
    if (m_anyNotation) {
        return coordinateFromText(text());
    }
    return GeoCoordinate::fromATCString(text().toUpper(), m_format);
}

void CoordinateEdit::setCoordinate(const GeoCoordinate &coordinate)
{
    m_set = coordinate;
    m_setText = coordinate.toATCString(m_format);
    setText(m_setText);
}
