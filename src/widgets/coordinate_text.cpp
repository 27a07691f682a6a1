#include "widgets/coordinate_text.h"

#include <QRegularExpression>

namespace {

GeoCoordinate fromDecimalDegrees(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(^([+-]?\d{1,3}(?:\.\d+)?)\s*[\s,;]\s*([+-]?\d{1,3}(?:\.\d+)?)$)"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch()) {
        return {};
    }
    return GeoCoordinate(match.captured(1).toDouble(), match.captured(2).toDouble());
}

GeoCoordinate fromDegreesMinutesSeconds(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(^(\d\d[0-5]\d[0-5]\d(?:\.\d\d)?[NS])(?:\s*[\s,]\s*)?(\d{3}[0-5]\d[0-5]\d(?:\.\d\d)?[EW])$)"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch()) {
        return {};
    }
    return GeoCoordinate::fromATCString(match.captured(1) + match.captured(2));
}

} // namespace

GeoCoordinate coordinateFromText(const QString &text)
{
    const QString plain = text.trimmed().toUpper();
    const GeoCoordinate coordinate = fromDegreesMinutesSeconds(plain);
    const GeoCoordinate found = coordinate.isValid() ? coordinate : fromDecimalDegrees(plain);
    return found.isValid() ? found : GeoCoordinate();
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
