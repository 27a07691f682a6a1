#pragma once

#include "asterix/asterix.h"
#include "asterix/json_writer.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <memory>
#include <span>

// Octets in memory of exactly their number, so that a sanitizer sees a read beyond them.
class Octets {
public:
    explicit Octets(const QByteArray &bytes)
        : m_size(static_cast<std::size_t>(bytes.size())), m_data(new unsigned char[m_size])
    {
        std::copy(bytes.begin(), bytes.end(), m_data.get());
    }

    static Octets fromHex(const char *hex) { return Octets(QByteArray::fromHex(hex)); }
    // A data block around records.
    static Octets block(int category, const QByteArray &recordsHex)
    {
        const QByteArray records = QByteArray::fromHex(recordsHex);
        const int length = static_cast<int>(records.size()) + 3;
        QByteArray bytes;
        bytes.append(static_cast<char>(category)).append(static_cast<char>(length >> 8));
        return Octets(bytes.append(static_cast<char>(length)).append(records));
    }

    const unsigned char *data() const { return m_data.get(); }
    std::size_t size() const { return m_size; }

private:
    std::size_t m_size;
    std::unique_ptr<unsigned char[]> m_data;
};

inline QByteArray bytesOf(std::span<const unsigned char> octets)
{
    return QByteArray(reinterpret_cast<const char *>(octets.data()), static_cast<int>(octets.size()));
}

inline QByteArray jsonLine(const _ast_datarecord_t &record)
{
    korvane::asterix::TextBuffer text;
    korvane::asterix::appendRecordJson(text, record, {.block = 1});
    return QByteArray(text.text().data(), static_cast<int>(text.size()));
}

inline QJsonObject itemsOf(const _ast_datarecord_t &record)
{
    return QJsonDocument::fromJson(jsonLine(record)).object().value("items").toObject();
}

// "040/RHO" in the items of a record; undefined where it is not there.
inline QJsonValue valueAt(const QJsonObject &items, const QString &path)
{
    QJsonValue value = items;
    for (const QString &name : path.split('/')) {
        value = value.toObject().value(name);
    }
    return value;
}
