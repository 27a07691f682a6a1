#include "widgets/coordinate_text.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <array>
#include <utility>

namespace {

using Fault = CoordinateFault;

constexpr double MaxLatitude = 90.0;
constexpr double MaxLongitude = 180.0;

struct Angle {
    double degrees = 0.0;
    Fault fault = Fault::None;
};

// The text of a latitude and of a longitude, each with or without its letter.
struct Halves {
    QString latitude;
    QString longitude;
    Fault fault = Fault::None;
};

// One character for each sign, however it is written; no blanks around the text.
QString plain(const QString &text)
{
    static const std::array<std::pair<QRegularExpression, QString>, 6> signs{{
        {QRegularExpression(QStringLiteral("[\u00BA\u02DA]")), QStringLiteral("\u00B0")}, // degrees
        {QRegularExpression(QStringLiteral("[\u2032\u2019\u2018\u02B9\u00B4`]")), QStringLiteral("'")}, // minutes
        {QRegularExpression(QStringLiteral("[\u2033\u201C\u201D\u02BA]|''")), QStringLiteral("\"")}, // seconds
        {QRegularExpression(QStringLiteral("[\u2212\u2010-\u2014]")), QStringLiteral("-")},
        {QRegularExpression(QStringLiteral(":")), QStringLiteral(" ")},
        {QRegularExpression(QStringLiteral("[\\s\u00A0\u2007\u2009\u202F]+")), QStringLiteral(" ")},
    }};
    QString result = text.toUpper();
    for (const auto &[pattern, sign] : signs) {
        result.replace(pattern, sign);
    }
    return result.trimmed();
}

// Degrees, minutes and seconds without gaps. Nothing when the text is something else.
std::optional<std::array<double, 3>> readCompact(const QString &text, int degreeDigits)
{
    static const QRegularExpression pattern(QStringLiteral(R"(^(\d+)([.,]\d+)?$)"));
    const QRegularExpressionMatch match = pattern.match(text);
    const QString whole = match.captured(1);
    const qsizetype digits = whole.size() - degreeDigits;
    if (!match.hasMatch() || (digits != 2 && digits != 4)) {
        return std::nullopt;
    }
    const double fraction = QString(match.captured(2)).replace(u',', u'.').prepend(u'0').toDouble();
    std::array<double, 3> fields{whole.left(degreeDigits).toDouble(), whole.mid(degreeDigits, 2).toDouble(),
        whole.mid(degreeDigits + 2).toDouble()};
    fields[digits == 2 ? 1 : 2] += fraction;
    return fields;
}

// With gaps or signs; only the last of them may have a fraction.
std::optional<std::array<double, 3>> readSpaced(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(?:(\\d{1,3}(?:[.,]\\d+)?) ?\u00B0?|(\\d{1,3})(?: ?\u00B0 ?| )(\\d{1,2}(?:[.,]\\d+)?) ?'?|"
                       "(\\d{1,3})(?: ?\u00B0 ?| )(\\d{1,2})(?: ?' ?| )(\\d{1,2}(?:[.,]\\d+)?) ?\"?)$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const auto number = [&match](int group) { return match.captured(group).replace(u',', u'.').toDouble(); };
    // Of the three alternatives one has matched; the groups of the others are empty and add zero.
    return std::array{number(1) + number(2) + number(4), number(3) + number(5), number(6)};
}

Angle readAngle(const QString &text, bool isLatitude)
{
    static const QRegularExpression pattern(QStringLiteral(R"(^([NSEW])? ?([+-])? ?(.*?) ?([NSEW])?$)"));
    const QRegularExpressionMatch match = pattern.match(text);
    const QString letter = match.captured(1) + match.captured(4);
    const QString sign = match.captured(2);
    const QString number = match.captured(3);
    std::optional<std::array<double, 3>> fields = readSpaced(number);
    if (!fields && !letter.isEmpty()) {
        fields = readCompact(number, isLatitude ? 2 : 3);
    }
    if (!fields || letter.size() > 1) {
        return {0.0, Fault::Notation};
    }
    if (!letter.isEmpty() && !sign.isEmpty()) {
        return {0.0, Fault::Ambiguous};
    }
    const auto &[degrees, minutes, seconds] = *fields;
    const double value = ((degrees * 60.0 + minutes) * 60.0 + seconds) / 3600.0;
    if (minutes >= 60.0 || seconds >= 60.0 || value > (isLatitude ? MaxLatitude : MaxLongitude)) {
        return {0.0, Fault::Range};
    }
    const bool negative = sign == QLatin1String("-") || letter == QLatin1String("S") || letter == QLatin1String("W");
    return {negative ? -value : value, Fault::None};
}

QString withoutSeparators(const QString &text)
{
    static const QRegularExpression rim(QStringLiteral("^[ ,;]+|[ ,;]+$"));
    return QString(text).remove(rim);
}

// Each letter stands before its number, or each behind.
Halves splitAtLetters(const QString &text)
{
    static const QRegularExpression letters(QStringLiteral("[NSEW]"));
    const qsizetype first = text.indexOf(letters);
    const qsizetype second = text.indexOf(letters, first + 1);
    if (second < 0 || text.count(letters) != 2) {
        return {{}, {}, Fault::Notation};
    }
    const qsizetype border = first == 0 ? second : first + 1;
    QString latitude = withoutSeparators(text.left(border));
    QString longitude = withoutSeparators(text.mid(border));
    const auto isNorthing = [&text](qsizetype at) { return text[at] == u'N' || text[at] == u'S'; };
    if (isNorthing(first) == isNorthing(second)) {
        return {{}, {}, Fault::Notation};
    }
    if (isNorthing(second)) {
        latitude.swap(longitude);
    }
    return {latitude, longitude};
}

// At the first such character.
Halves splitAt(const QString &text, QChar separator)
{
    const qsizetype at = text.indexOf(separator);
    return {withoutSeparators(text.left(at)), withoutSeparators(text.mid(at + 1))};
}

// As many numbers for the latitude as for the longitude.
Halves splitAtBlank(const QString &text)
{
    const qsizetype blanks = text.count(u' ');
    if (blanks % 2 == 0) {
        return {{}, {}, Fault::Notation};
    }
    return {text.section(u' ', 0, blanks / 2), text.section(u' ', blanks / 2 + 1)};
}

// With signs for south and west. Tells where the longitude begins.
Halves splitWithoutLetters(const QString &text)
{
    static const QRegularExpression degreeSigns(
        QStringLiteral("^([^\u00B0]*\u00B0[^\u00B0]*?)[ ,]+([+-]?\\d{1,3}(?:[.,]\\d+)? ?\u00B0[^\u00B0]*)$"));
    static const QRegularExpression decimalCommas(QStringLiteral(R"(^[+-]?\d+,\d+ [+-]?\d+,\d+$)"));
    if (text.count(u';') == 1) {
        return splitAt(text, u';');
    }
    if (const QRegularExpressionMatch match = degreeSigns.match(text); match.hasMatch()) {
        return {withoutSeparators(match.captured(1)), match.captured(2)};
    }
    const qsizetype commas = text.count(u',');
    if (commas == 0 || decimalCommas.match(text).hasMatch()) {
        return splitAtBlank(text);
    }
    const Halves halves = splitAt(text, u',');
    // In "48,5 16" the comma may be a decimal one.
    const bool even = halves.latitude.count(u' ') == halves.longitude.count(u' ');
    return commas == 1 && even ? halves : Halves{{}, {}, Fault::Ambiguous};
}

struct Text {
    Q_DECLARE_TR_FUNCTIONS(CoordinateText)
};

} // namespace

CoordinateReading readCoordinate(const QString &text)
{
    static const QRegularExpression letter(QStringLiteral("[NSEW]"));
    static const QRegularExpression foreign(QStringLiteral("[^NSEW0-9+.,;'\"\u00B0 -]"));
    const QString written = plain(text);
    if (written.isEmpty()) {
        return {{}, Fault::Empty};
    }
    if (written.contains(foreign)) {
        return {{}, Fault::Notation};
    }
    const Halves halves = written.contains(letter) ? splitAtLetters(written) : splitWithoutLetters(written);
    const Angle latitude = readAngle(halves.latitude, true);
    const Angle longitude = readAngle(halves.longitude, false);
    for (const Fault fault : {halves.fault, latitude.fault, longitude.fault}) {
        if (fault != Fault::None) {
            return {{}, fault};
        }
    }
    return {GeoCoordinate(latitude.degrees, longitude.degrees), Fault::None};
}

GeoCoordinate coordinateFromText(const QString &text)
{
    return readCoordinate(text).coordinate;
}

QString coordinateFaultText(CoordinateFault fault)
{
    switch (fault) {
    case Fault::None:
        return {};
    case Fault::Ambiguous:
        return Text::tr(
            "This could be read in several ways. Write 48.1234, 16.5678 or 48,1234; 16,5678; south and west with "
            "either a sign or a letter.");
    case Fault::Range:
        return Text::tr(
            "Latitudes end at 90°, longitudes at 180°, minutes and seconds before 60: such as 395427N1162317E.");
    case Fault::Empty:
    case Fault::Notation:
        break;
    }
    return Text::tr("Write 395427N1162317E, 39°54'27\"N 116°23'17\"E, N39 54.45 E116 23.28 or 39.9076, 116.3881.");
}

std::optional<QList<GeoCoordinate>> coordinatesFromLines(const QString &text, QString *badLine)
{
    QList<GeoCoordinate> coordinates;
    const QStringList lines = text.split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        if (line.trimmed().isEmpty()) {
            continue;
        }
        coordinates.append(coordinateFromText(line));
        if (coordinates.last().isValid()) {
            continue;
        }
        if (badLine) {
            *badLine = line.trimmed();
        }
        return std::nullopt;
    }
    return coordinates;
}
