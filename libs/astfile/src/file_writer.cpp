#include "astfile/file_writer.h"

#include "astfile/pcap_writer.h"
#include "final_format_writer.h"
#include "raw_block_writer.h"

#include <QCoreApplication>

namespace korvane::astfile {

namespace {

constexpr qsizetype WriteSize = 64 * 1024;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(FileWriter)
};

} // namespace

FileWriter::~FileWriter()
{
    close();
}

std::unique_ptr<FileWriter> FileWriter::create(RecFile::Format format, QString *error)
{
    switch (format) {
    case RecFile::Pcap:
        return std::make_unique<PcapWriter>();
    case RecFile::RawAsterix:
        return std::make_unique<RawBlockWriter>();
    case RecFile::FinalFormat:
        return std::make_unique<FinalFormatWriter>();
    default:
        if (error) {
            *error =
                Text::tr("%1 (format %2) cannot be written.").arg(RecFile::formatName(format), QString::number(format));
        }
        return nullptr;
    }
}

QList<RecFile::Format> FileWriter::formats()
{
    return {RecFile::Pcap, RecFile::RawAsterix, RecFile::FinalFormat};
}

bool FileWriter::openFile(const QString &fileName)
{
    close();
    m_lastError.clear();
    m_held.resize(0);
    m_written = 0;
    m_broken = false;
    m_file.setFileName(fileName);
    return m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || fail(m_file.errorString());
}

bool FileWriter::writable()
{
    if (!m_file.isOpen()) {
        return fail(Text::tr("No file is open."));
    }
    return !m_broken;
}

bool FileWriter::append(const QByteArray &record)
{
    m_held += record;
    return m_held.size() < WriteSize || flush();
}

bool FileWriter::flush()
{
    if (!writable()) {
        return false;
    }
    qsizetype done = 0;
    while (done < m_held.size()) {
        const qint64 step = m_file.write(m_held.constData() + done, m_held.size() - done);
        if (step <= 0) {
            m_broken = true;
            fail(m_file.errorString());
            m_file.resize(m_written); // half a record would end every reader with an error
            m_held.resize(0);
            return false;
        }
        done += static_cast<qsizetype>(step);
    }
    m_written += done;
    m_held.resize(0);
    return true;
}

bool FileWriter::close()
{
    if (!m_file.isOpen()) {
        return true;
    }
    const bool written = flush();
    m_file.close();
    return written;
}

bool FileWriter::fail(const QString &reason)
{
    m_lastError = reason;
    return false;
}

} // namespace korvane::astfile
