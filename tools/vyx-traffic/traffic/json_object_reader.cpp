#include "traffic/json_object_reader.h"

#include <algorithm>
#include <cmath>

namespace {

QString typeName(QJsonValue::Type type)
{
    switch (type) {
    case QJsonValue::Bool:
        return JsonObjectReader::tr("true or false");
    case QJsonValue::Double:
        return JsonObjectReader::tr("a number");
    case QJsonValue::String:
        return JsonObjectReader::tr("text");
    case QJsonValue::Array:
        return JsonObjectReader::tr("an array");
    default:
        return JsonObjectReader::tr("an object");
    }
}

} // namespace

JsonObjectReader::JsonObjectReader(const QJsonValue &value, const QString &path, QString &error)
    : m_object(value.toObject()), m_path(path), m_error(error)
{
    if (!value.isObject() && m_error.isEmpty()) {
        m_error = tr("%1: must be %2").arg(path, typeName(QJsonValue::Object));
    }
}

double JsonObjectReader::number(const char *key, Range range, std::optional<double> fallback)
{
    const std::optional<QJsonValue> found = value(key, QJsonValue::Double, !fallback);
    if (!found) {
        return fallback.value_or(range.low);
    }
    const double number = found->toDouble();
    if (number < range.low || number > range.high) {
        fail(key, tr("must be %1 to %2").arg(range.low).arg(range.high));
    }
    return number;
}

int JsonObjectReader::integer(const char *key, Range range, std::optional<int> fallback)
{
    const double wide = number(key, range, fallback);
    if (wide != std::floor(wide)) {
        fail(key, tr("must be a whole number"));
    }
    return static_cast<int>(std::clamp(wide, range.low, range.high));
}

bool JsonObjectReader::flag(const char *key, bool fallback)
{
    const std::optional<QJsonValue> found = value(key, QJsonValue::Bool, false);
    return found ? found->toBool() : fallback;
}

QString JsonObjectReader::text(const char *key, const std::optional<QString> &fallback)
{
    const std::optional<QJsonValue> found = value(key, QJsonValue::String, !fallback);
    return found ? found->toString() : fallback.value_or(QString());
}

int JsonObjectReader::choice(const char *key, const QStringList &choices, int fallback)
{
    const qsizetype index = choices.indexOf(text(key, choices.at(fallback)));
    if (index < 0) {
        fail(key, tr("must be one of %1").arg(choices.join(QLatin1String(", "))));
    }
    return index < 0 ? fallback : static_cast<int>(index);
}

std::uint32_t JsonObjectReader::code(
    const char *key, int base, std::uint32_t highest, std::optional<std::uint32_t> fallback)
{
    const std::optional<QJsonValue> found = value(key, QJsonValue::String, !fallback);
    if (!found) {
        return fallback.value_or(0);
    }
    bool ok = false;
    const std::uint32_t code = found->toString().toUInt(&ok, base);
    if (!ok || code > highest) {
        fail(key, tr("must be text of digits to the base %1, at most \"%2\"").arg(base).arg(highest, 0, base));
    }
    return code;
}

void JsonObjectReader::each(
    const char *key, const std::function<void(const QJsonValue &value, const QString &path)> &read)
{
    const QJsonArray array = value(key, QJsonValue::Array, false).value_or(QJsonValue()).toArray();
    for (qsizetype i = 0; i < array.size() && m_error.isEmpty(); ++i) {
        read(array.at(i), QStringLiteral("%1[%2]").arg(pathTo(key)).arg(i));
    }
}

void JsonObjectReader::object(const char *key, const std::function<void(JsonObjectReader &reader)> &read)
{
    const std::optional<QJsonValue> found = value(key, QJsonValue::Object, false);
    if (!found) {
        return;
    }
    JsonObjectReader reader(*found, pathTo(key), m_error);
    read(reader);
    reader.finish();
}

void JsonObjectReader::eachObject(const char *key, const std::function<void(JsonObjectReader &reader)> &read)
{
    each(key, [&](const QJsonValue &element, const QString &path) {
        JsonObjectReader reader(element, path, m_error);
        read(reader);
        reader.finish();
    });
}

QStringList JsonObjectReader::texts(const char *key)
{
    QStringList texts;
    each(key, [&](const QJsonValue &element, const QString &path) {
        if (!element.isString() && m_error.isEmpty()) {
            m_error = tr("%1: must be %2").arg(path, typeName(QJsonValue::String));
        }
        texts.append(element.toString());
    });
    return texts;
}

void JsonObjectReader::fail(const char *key, const QString &why)
{
    if (m_error.isEmpty()) {
        m_error = QStringLiteral("%1: %2").arg(pathTo(key), why);
    }
}

void JsonObjectReader::finish()
{
    const QStringList keys = m_object.keys();
    for (const QString &key : keys) {
        if (!m_known.contains(key)) {
            fail(key.toUtf8().constData(), tr("unknown key"));
        }
    }
}

QString JsonObjectReader::pathTo(const char *key) const
{
    const QString name = QString::fromUtf8(key);
    return m_path.isEmpty() ? name : m_path + QLatin1Char('.') + name;
}

std::optional<QJsonValue> JsonObjectReader::value(const char *key, QJsonValue::Type type, bool required)
{
    m_known.insert(QString::fromUtf8(key));
    if (!has(key)) {
        if (required) {
            fail(key, tr("is missing"));
        }
        return std::nullopt;
    }
    const QJsonValue found = m_object.value(QLatin1String(key));
    if (found.type() != type) {
        fail(key, tr("must be %1").arg(typeName(type)));
        return std::nullopt;
    }
    return found;
}
