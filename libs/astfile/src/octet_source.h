#pragma once

#include <QDateTime>
#include <QFile>
#include <QString>

#include <functional>
#include <memory>
#include <span>

namespace korvane::astfile {

struct SeekMarks;

// A file's contents from any offset on; those of files packed by gzip are unpacked.
class OctetSource {
public:
    // Asked before each read from the disk, of a few hundred KiB at the most: true fails that read and all that follow.
    using Cancel = std::function<bool()>;

    // Null, with error set, when the file cannot be opened.
    static std::unique_ptr<OctetSource> open(const QString &fileName, const Cancel &cancel, QString *error);

    OctetSource(const OctetSource &) = delete;
    OctetSource &operator=(const OctetSource &) = delete;
    virtual ~OctetSource() = default;

    // As many octets as came at once; 0 at the end, -1 with error() set when reading failed.
    virtual qint64 read(std::span<unsigned char> room) = 0;

    // To an offset in the contents. False, with error() set, when that fails.
    virtual bool seek(qint64 offset) = 0;

    // When the contents were last modified, UTC.
    virtual QDateTime modified() const { return m_modified; }

    // Packed files note while reading where they can be taken up again, for others to seek by.
    virtual void collectMarks() { }
    virtual std::shared_ptr<const SeekMarks> marks() const { return nullptr; }
    virtual void setMarks(const std::shared_ptr<const SeekMarks> &) { }

    // Octets of the file as it lies on disk.
    qint64 octetsRead() const { return m_octetsRead; }
    qint64 octetsTotal() const { return m_octetsTotal; }

    QString error() const { return m_error; }

protected:
    OctetSource() = default; // of no file
    explicit OctetSource(std::unique_ptr<QFile> file);

    bool seekFile(qint64 offset);
    qint64 readFile(std::span<unsigned char> room);

    std::unique_ptr<QFile> m_file;
    QDateTime m_modified;
    qint64 m_octetsRead = 0; // position in the file
    qint64 m_octetsTotal = 0;
    QString m_error;

private:
    Cancel m_cancel;
};

} // namespace korvane::astfile
