#pragma once

#include <QJsonObject>
#include <QStringList>

// Takes the values of a sensor record out of a JSON object. A value that is missing becomes the default; so does one of
// another kind or beyond its range, which is noted as well.
class JsonReader {
public:
    // Refused values are added to the list as "sac": 300. Both must outlive the reader.
    JsonReader(const QJsonObject &object, QStringList &refused) : m_object(object), m_refused(refused) { }

    QString text(const char *key);
    bool flag(const char *key);
    // Whole numbers, both limits included.
    qint64 integer(const char *key, qint64 minimum, qint64 maximum, qint64 defaultValue);
    unsigned int unsignedInteger(const char *key, unsigned int defaultValue);
    // From 0 to the maximum, itself included.
    double number(const char *key, double maximum, double defaultValue);

private:
    void refuse(const char *key);

    const QJsonObject &m_object;
    QStringList &m_refused;
};
