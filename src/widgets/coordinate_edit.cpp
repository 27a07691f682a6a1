#include "widgets/coordinate_edit.h"

#include "geo/input_validator.h"
#include "widgets/coordinate_text.h"
#include "widgets/text_colors.h"

#include <QRegularExpressionValidator>

#include <cmath>

namespace {

// Brings what was typed into the ATC format before that format's own validator, if any, sees it.
class CoordinateTextValidator final : public QValidator {
public:
    CoordinateTextValidator(GeoCoordinate::ATCStringFormat format, const QValidator *ofFormat, QObject *parent)
        : QValidator(parent), m_format(format), m_ofFormat(ofFormat)
    {
    }

    State validate(QString &text, int &) const override
    {
        const GeoCoordinate coordinate = coordinateFromText(text);
        QString normal = coordinate.toATCString(m_format);
        int end = 0;
        const bool good =
            coordinate.isValid() && (!m_ofFormat || m_ofFormat->validate(normal, end) == QValidator::Acceptable);
        return good ? Acceptable : Intermediate;
    }

private:
    const GeoCoordinate::ATCStringFormat m_format;
    const QValidator *const m_ofFormat; // null: none
};

// Whether the position needs more than whole seconds.
bool hasHundredths(const GeoCoordinate &coordinate)
{
    constexpr double PerDegree = 360000.0;
    const auto odd = [](double degrees) { return std::llround(std::abs(degrees) * PerDegree) % 100 != 0; };
    return odd(coordinate.latitude()) || odd(coordinate.longitude());
}

GeoCoordinate exampleCoordinate()
{
    return GeoCoordinate(40.05, 116.0 + 44.0 / 60.0);
}

} // namespace

CoordinateEdit::CoordinateEdit(GeoCoordinate::ATCStringFormat format, QWidget *parent)
    : QLineEdit(parent), m_format(format)
{
    const bool precise = format == GeoCoordinate::HighPrecision;
    const QValidator *ofFormat =
        precise ? InputValidator::atcCoordinateHighPrecisionValidator() : InputValidator::atcCoordinateValidator();
    setValidator(new CoordinateTextValidator(format, ofFormat, this));
    const QString example = exampleCoordinate().toATCString(format);
    setPlaceholderText(tr("such as %1").arg(example));
    setToolTip(tr("Latitude and longitude, as %1, %2 or with signs and letters")
                   .arg(example, exampleCoordinate().toATCString(GeoCoordinate::DecimalDegrees)));
    setMinimumWidth(fontMetrics().horizontalAdvance(placeholderText()) + 24);
    connect(this, &QLineEdit::textEdited, this, [this](const QString &typed) {
        const int cursor = cursorPosition();
        setText(typed.toUpper());
        setCursorPosition(cursor);
    });
    connect(this, &QLineEdit::editingFinished, this, &CoordinateEdit::showAsAtcText);
}

CoordinateEdit::CoordinateEdit(QWidget *parent) : QLineEdit(parent), m_format(GeoCoordinate::HighPrecision)
{
    setValidator(new CoordinateTextValidator(m_format, nullptr, this));
    const GeoCoordinate example = exampleCoordinate();
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

void CoordinateEdit::showAsAtcText()
{
    const GeoCoordinate entered = coordinate();
    if (entered.isValid() && text() != m_setText) {
        hold(entered, hasHundredths(entered) ? GeoCoordinate::HighPrecision : m_format);
    }
}

GeoCoordinate CoordinateEdit::coordinate() const
{
    if (m_set.isValid() && text() == m_setText) {
        return m_set;
    }
    return hasAcceptableInput() ? coordinateFromText(text()) : GeoCoordinate();
}

QString CoordinateEdit::problem() const
{
    if (coordinate().isValid()) {
        return {};
    }
    const CoordinateFault fault = readCoordinate(text()).fault;
    return fault == CoordinateFault::None
        ? tr("Latitudes have to be below 90°, longitudes below 180°: such as 395427N1162317E.")
        : coordinateFaultText(fault);
}

void CoordinateEdit::setCoordinate(const GeoCoordinate &coordinate)
{
    hold(coordinate, m_format);
}

void CoordinateEdit::hold(const GeoCoordinate &coordinate, GeoCoordinate::ATCStringFormat format)
{
    m_set = coordinate;
    m_setText = coordinate.toATCString(format);
    setText(m_setText);
}
