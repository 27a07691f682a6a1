#pragma once

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QSet>

#include <functional>
#include <optional>

// Reads one object of a JSON document strictly: values of a wrong type or out of range, keys that are missing and keys
// that nobody asked for are errors. Only the first error of a document is kept, as "flights[3].route[1].lat: why"; what
// is read after it is of no value.
class JsonObjectReader {
    Q_DECLARE_TR_FUNCTIONS(JsonObjectReader)

public:
    struct Range {
        double low;
        double high; // included
    };
    static constexpr Range Latitudes{-89, 89};
    static constexpr Range Longitudes{-180, 180};

    // path: where the value stands in the document, empty for the document itself. error: empty so long as all is well;
    // outlives the reader.
    JsonObjectReader(const QJsonValue &value, const QString &path, QString &error);

    bool has(const char *key) const { return m_object.contains(QLatin1String(key)); }
    // Without a fallback the key has to be there.
    double number(const char *key, Range range, std::optional<double> fallback = std::nullopt);
    int integer(const char *key, Range range, std::optional<int> fallback = std::nullopt);
    bool flag(const char *key, bool fallback);
    QString text(const char *key, const std::optional<QString> &fallback = std::nullopt);
    // The index of the text among the choices.
    int choice(const char *key, const QStringList &choices, int fallback);
    // An integer written as text to a base, at most highest.
    std::uint32_t code(const char *key, int base, std::uint32_t highest, std::optional<std::uint32_t> fallback = {});

    // Calls read for each element of the array, which may be missing.
    void each(const char *key, const std::function<void(const QJsonValue &value, const QString &path)> &read);
    // Calls read when the object is there.
    void object(const char *key, const std::function<void(JsonObjectReader &reader)> &read);
    void eachObject(const char *key, const std::function<void(JsonObjectReader &reader)> &read);
    QStringList texts(const char *key);

    void fail(const char *key, const QString &why);
    // To be called last: whatever was not read is an unknown key.
    void finish();

    QString &error() { return m_error; }
    QString pathTo(const char *key) const;

private:
    std::optional<QJsonValue> value(const char *key, QJsonValue::Type type, bool required);

    QJsonObject m_object;
    QString m_path;
    QString &m_error;
    QSet<QString> m_known;
};
