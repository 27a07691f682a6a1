#include "sensors/json_reader.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <limits>

namespace {

constexpr int LongestShown = 40; // characters of a refused value

// As it stands in the file.
QString jsonText(const QJsonValue &value)
{
    // Only arrays and objects can be written, so that a value takes the brackets of an array with it.
    const auto array = QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
    const auto text = array.sliced(1, array.size() - 2);
    return text.size() > LongestShown ? text.first(LongestShown) + QChar(0x2026) : text;
}

} // namespace

QString JsonReader::text(const char *key)
{
    const auto value = m_object[QLatin1String(key)];
    if (!value.isString() && !value.isUndefined()) {
        refuse(key);
    }
    return value.toString();
}

bool JsonReader::flag(const char *key)
{
    const auto value = m_object[QLatin1String(key)];
    if (!value.isBool() && !value.isUndefined()) {
        refuse(key);
    }
    return value.toBool();
}

qint64 JsonReader::integer(const char *key, qint64 minimum, qint64 maximum, qint64 defaultValue)
{
    const auto value = m_object[QLatin1String(key)];
    if (value.isUndefined()) {
        return defaultValue;
    }
    // A number with a fraction, and one too large, gives the default: below the minimum it is refused.
    const qint64 number = value.toInteger(minimum - 1);
    if (number < minimum || number > maximum) {
        refuse(key);
        return defaultValue;
    }
    return number;
}

unsigned int JsonReader::unsignedInteger(const char *key, unsigned int defaultValue)
{
    return static_cast<unsigned int>(integer(key, 0, std::numeric_limits<unsigned int>::max(), defaultValue));
}

double JsonReader::number(const char *key, double maximum, double defaultValue)
{
    const auto value = m_object[QLatin1String(key)];
    if (value.isUndefined()) {
        return defaultValue;
    }
    const double number = value.toDouble(-1.0);
    if (!(number >= 0.0 && number <= maximum)) {
        refuse(key);
        return defaultValue;
    }
    return number;
}

void JsonReader::refuse(const char *key)
{
    m_refused.append(QStringLiteral("\"%1\": %2").arg(QLatin1String(key), jsonText(m_object[QLatin1String(key)])));
}
