#include "geo/geo_coordinate.h"

#include <QRegularExpression>

#include <cmath>

namespace {

struct SexagesimalAngle {
    int degrees;
    int minutes;
    int seconds;
    int hundredths;
};

// Splits the rounded count of hundredths of an arc-second, so that carries reach minutes and degrees.
SexagesimalAngle split(double degrees)
{
    const auto total = static_cast<qint64>(std::round(std::abs(degrees) * 360000.0));
    const auto rest = total % 360000;
    return {static_cast<int>(total / 360000), static_cast<int>(rest / 6000), static_cast<int>(rest % 6000 / 100),
        static_cast<int>(rest % 100)};
}

QString field(int value, int width)
{
    return QString::number(value).rightJustified(width, QLatin1Char('0'));
}

QString wholeSeconds(const SexagesimalAngle &angle, int degreeDigits)
{
    return field(angle.degrees, degreeDigits) + field(angle.minutes, 2) + field(angle.seconds, 2);
}

QString axisText(double degrees, int degreeDigits, QLatin1Char positive, QLatin1Char negative, bool withHundredths)
{
    const auto angle = split(degrees);
    auto text = wholeSeconds(angle, degreeDigits);
    if (withHundredths)
        text += QLatin1Char('.') + field(angle.hundredths, 2);
    return text + (degrees < 0.0 ? negative : positive);
}

QLatin1String separator(GeoCoordinate::ATCStringFormat format)
{
    switch (format) {
    case GeoCoordinate::NormalPrecisionComma:
        return QLatin1String(",");
    case GeoCoordinate::NormalPrecisionSpace:
        return QLatin1String(" ");
    case GeoCoordinate::NormalPrecisionCommaSpace:
        return QLatin1String(", ");
    default:
        return QLatin1String("");
    }
}

// The patterns end with \z and not with $, which would also match before a line break.
const QRegularExpression &normalPrecisionPattern()
{
    static const QRegularExpression regexpNormalPrecision(QStringLiteral("^\\d{6}[NS]\\d{6,7}[EW]\\z"));
    return regexpNormalPrecision;
}

const QRegularExpression &highPrecisionPattern()
{
    static const QRegularExpression regexpHighPrecision(QStringLiteral("^\\d{6}\\.\\d{2}[NS]\\d{6,7}\\.\\d{2}[EW]\\z"));
    return regexpHighPrecision;
}

// Reads digits and a hemisphere letter one after the other from a text that a pattern has already matched.
class AxisReader {
public:
    explicit AxisReader(const QString &text) : m_text(text) { }

    double axis(int degreeDigits, bool withHundredths, QLatin1Char positive)
    {
        const double degrees = number(degreeDigits);
        const double minutes = number(2);
        const double seconds = number(2);
        double value = 0.0;
        if (withHundredths) {
            ++m_at; // the point
            value = (degrees * 360000.0 + minutes * 6000.0 + seconds * 100.0 + number(2)) / 360000.0;
        } else {
            value = (degrees * 3600.0 + minutes * 60.0 + seconds) / 3600.0;
        }
        return m_text.at(m_at++) == positive ? value : -value;
    }

private:
    double number(int digits)
    {
        const double value = m_text.mid(m_at, digits).toDouble();
        m_at += digits;
        return value;
    }

    const QString &m_text;
    int m_at = 0;
};

GeoCoordinate parse(const QString &text, bool withHundredths)
{
    constexpr int lengthWithThreeDegreeDigits = 15;
    const int extra = withHundredths ? 6 : 0;
    const int longitudeDigits = text.size() == lengthWithThreeDegreeDigits + extra ? 3 : 2;
    AxisReader reader(text);
    GeoCoordinate coordinate;
    coordinate.setLatitude(reader.axis(2, withHundredths, QLatin1Char('N')));
    coordinate.setLongitude(reader.axis(longitudeDigits, withHundredths, QLatin1Char('E')));
    return coordinate;
}

} // namespace

QString GeoCoordinate::toATCString(ATCStringFormat format) const
{
    if (!isValid())
        return {};
    if (format == DecimalDegrees)
        return QStringLiteral("%1,%2").arg(QString::number(latitude(), 'f', 6), QString::number(longitude(), 'f', 6));
    const bool withHundredths = format == HighPrecision;
    return axisText(latitude(), 2, QLatin1Char('N'), QLatin1Char('S'), withHundredths) + separator(format)
        + axisText(longitude(), 3, QLatin1Char('E'), QLatin1Char('W'), withHundredths);
}

GeoCoordinate GeoCoordinate::fromATCString(const QString &text)
{
    const auto coordinate = fromATCString(text, NormalPrecision);
    return normalPrecisionPattern().match(text).hasMatch() ? coordinate : fromATCString(text, HighPrecision);
}

GeoCoordinate GeoCoordinate::fromATCString(const QString &text, ATCStringFormat format)
{
    if (format == NormalPrecision && normalPrecisionPattern().match(text).hasMatch())
        return parse(text, false);
    if (format == HighPrecision && highPrecisionPattern().match(text).hasMatch())
        return parse(text, true);
    return {};
}
