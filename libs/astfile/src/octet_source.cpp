#include "octet_source.h"

#include "gzip_source.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace korvane::astfile {

namespace {

class PlainSource final : public OctetSource {
public:
    explicit PlainSource(std::unique_ptr<QFile> file) : OctetSource(std::move(file)) { }

    qint64 read(std::span<unsigned char> room) override { return readFile(room); }
    bool seek(qint64 offset) override { return seekFile(offset); }
};

} // namespace

std::unique_ptr<OctetSource> OctetSource::open(const QString &fileName, const Cancel &cancel, QString *error)
{
    auto file = std::make_unique<QFile>(fileName);
    if (!file->open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        *error = file->errorString();
        return nullptr;
    }
    std::unique_ptr<OctetSource> source;
    if (GzipSource::recognises(file->peek(GzipSource::HeaderSize))) {
        source = std::make_unique<GzipSource>(std::move(file));
    } else {
        source = std::make_unique<PlainSource>(std::move(file));
    }
    source->m_cancel = cancel;
    return source;
}

OctetSource::OctetSource(std::unique_ptr<QFile> file)
    : m_file(std::move(file)), m_modified(QFileInfo(*m_file).lastModified().toUTC()), m_octetsTotal(m_file->size())
{
}

bool OctetSource::seekFile(qint64 offset)
{
    if (!m_file->seek(offset)) {
        m_error = m_file->errorString();
        return false;
    }
    m_octetsRead = offset;
    m_error.clear();
    return true;
}

qint64 OctetSource::readFile(std::span<unsigned char> room)
{
    if (m_cancel && m_cancel()) {
        m_error = QCoreApplication::translate("OctetSource", "Reading was cancelled.");
        return -1;
    }
    const qint64 got = m_file->read(reinterpret_cast<char *>(room.data()), static_cast<qint64>(room.size()));
    if (got < 0) {
        m_error = m_file->errorString();
        return -1;
    }
    m_octetsRead += got;
    return got;
}

} // namespace korvane::astfile
