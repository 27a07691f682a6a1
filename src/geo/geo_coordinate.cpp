#include "geo/geo_coordinate.h"

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

void appendField(QString &text, int value, int width)
{
    for (int unit = width > 2 ? 100 : 10; unit > 0; unit /= 10) {
        text += QLatin1Char(static_cast<char>('0' + value / unit % 10));
    }
}

void appendAxis(
    QString &text, double degrees, int degreeDigits, QLatin1Char positive, QLatin1Char negative, bool withHundredths)
{
    const auto angle = split(degrees);
    appendField(text, angle.degrees, degreeDigits);
    appendField(text, angle.minutes, 2);
    appendField(text, angle.seconds, 2);
    if (withHundredths) {
        text += QLatin1Char('.');
        appendField(text, angle.hundredths, 2);
    }
    text += degrees < 0.0 ? negative : positive;
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

// Reads the fields of one text one after the other; maps have a million of them to read.
template <class Text>
class AtcReader {
public:
    explicit AtcReader(Text text) : m_text(text) { }

    // Invalid unless the whole text is a coordinate.
    GeoCoordinate coordinate(bool withHundredths)
    {
        constexpr qsizetype LengthWithThreeDegreeDigits = 15;
        const qsizetype extra = withHundredths ? 6 : 0;
        if (m_text.size() != LengthWithThreeDegreeDigits + extra
            && m_text.size() + 1 != LengthWithThreeDegreeDigits + extra) {
            return {};
        }
        const bool threeDigits = m_text.size() == LengthWithThreeDegreeDigits + extra;
        const double latitude = axis(2, withHundredths, u'N', u'S');
        const double longitude = axis(threeDigits ? 3 : 2, withHundredths, u'E', u'W');
        GeoCoordinate coordinate;
        if (!m_good) {
            return coordinate;
        }
        coordinate.setLatitude(latitude);
        coordinate.setLongitude(longitude);
        return coordinate;
    }

private:
    double axis(int degreeDigits, bool withHundredths, char16_t positive, char16_t negative)
    {
        const int degrees = number(degreeDigits);
        const int minutes = number(2);
        double value = (degrees * 60 + minutes) * 60 + number(2);
        double unit = 3600.0;
        if (withHundredths) {
            m_good = m_good && next() == u'.';
            value = value * 100.0 + number(2);
            unit = 360000.0;
        }
        const char16_t side = next();
        m_good = m_good && (side == positive || side == negative);
        return side == positive ? value / unit : -(value / unit);
    }

    int number(int digits)
    {
        int value = 0;
        for (; digits > 0; --digits) {
            const char16_t digit = next();
            m_good = m_good && digit >= u'0' && digit <= u'9';
            value = value * 10 + (digit - u'0');
        }
        return m_good ? value : 0;
    }

    char16_t next() { return QChar(m_text[m_at++]).unicode(); }

    const Text m_text;
    qsizetype m_at = 0;
    bool m_good = true;
};

template <class Text>
GeoCoordinate parse(Text text, GeoCoordinate::ATCStringFormat format)
{
    if (format != GeoCoordinate::NormalPrecision && format != GeoCoordinate::HighPrecision) {
        return {};
    }
    return AtcReader<Text>(text).coordinate(format == GeoCoordinate::HighPrecision);
}

// The formats' texts differ in length.
template <class Text>
GeoCoordinate parse(Text text)
{
    constexpr qsizetype LongestNormal = 15;
    return parse(text, text.size() <= LongestNormal ? GeoCoordinate::NormalPrecision : GeoCoordinate::HighPrecision);
}

} // namespace

QString GeoCoordinate::toATCString(ATCStringFormat format) const
{
    if (!isValid()) {
        return {};
    }
    if (format == DecimalDegrees) {
        return QStringLiteral("%1,%2").arg(QString::number(latitude(), 'f', 6), QString::number(longitude(), 'f', 6));
    }
    const bool withHundredths = format == HighPrecision;
    constexpr qsizetype Longest = 21;
    QString text;
    text.reserve(Longest);
    appendAxis(text, latitude(), 2, QLatin1Char('N'), QLatin1Char('S'), withHundredths);
    text += separator(format);
    appendAxis(text, longitude(), 3, QLatin1Char('E'), QLatin1Char('W'), withHundredths);
    return text;
}

GeoCoordinate GeoCoordinate::fromATCString(const QString &text)
{
    return parse(QStringView(text));
}

GeoCoordinate GeoCoordinate::fromATCString(QLatin1String text)
{
    return parse(text);
}

GeoCoordinate GeoCoordinate::fromATCString(const QString &text, ATCStringFormat format)
{
    return parse(QStringView(text), format);
}
