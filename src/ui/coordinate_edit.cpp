#include "ui/coordinate_edit.h"

#include "geo/input_validator.h"

#include <QRegularExpressionValidator>

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

GeoCoordinate CoordinateEdit::coordinate() const
{
    if (m_set.isValid() && text() == m_setText)
        return m_set;
    if (!hasAcceptableInput())
        return {};
    return GeoCoordinate::fromATCString(text().toUpper(), m_format);
}

void CoordinateEdit::setCoordinate(const GeoCoordinate &coordinate)
{
    m_set = coordinate;
    m_setText = coordinate.toATCString(m_format);
    setText(m_setText);
}
