#pragma once

#include "maps/map_data.h"

#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QSaveFile>
#include <QString>

#include <functional>
#include <memory>

// One map file of one format, open for reading or for writing. May be used on any one thread. Pictures need a
// QGuiApplication: without one they are left out.
//
// A file is written beside the one that it replaces and takes its place in close(), and only after a write() that
// succeeded: whoever writes asks for lastError() after close(). Pictures that are files of their own are written by
// write(). What is no regular file, such as a pipe, is written directly.
class MapFile : public QObject {
    Q_OBJECT

public:
    enum Format : int {
        Unknown = 0,
        Legacy = 1, // airport maps of older systems, read only
        Xml = 2,
        Map = 3, // binary
    };
    enum Capability { Read = 1, Write = 2 };
    // Octets read and to read, or points written and to write; false ends it with an error. A file whose writing was
    // ended is as it was before.
    using Progress = std::function<bool(qint64 done, qint64 total)>;

    // Null for an unknown format.
    static std::unique_ptr<MapFile> create(Format format);
    static QString formatToString(Format format);
    static Format formatFromString(const QString &text);
    // By the suffix, whatever its case.
    static Format formatFromFileName(const QString &fileName);

    explicit MapFile(Format format, QObject *parent = nullptr);
    ~MapFile() override;

    virtual int capability() const = 0;
    virtual QString defaultSuffix() const = 0;

    // What is larger is not read: a text or list of it could not be held.
    static constexpr qint64 MaxFileSize = qint64(512) * 1024 * 1024;

    // Read or write; see lastError() when false.
    bool open(const QFileInfo &info, const MapFile::Format &format, QIODeviceBase::OpenMode mode);
    bool isOpen() const;
    void close();

    Format format() const { return m_format; }
    QString formatString() const { return formatToString(m_format); }
    // Empty after a success.
    QString lastError() const { return m_lastError; }
    void setLastError(const QString &error) { m_lastError = error; }
    void setProgress(Progress progress) { m_progress = std::move(progress); }

    // Empty on failure.
    MapData read();
    bool write(const MapData &map);

protected:
    // A failure that sets no last error gets the general one.
    virtual bool openFile() = 0;
    virtual void closeFile() = 0;
    virtual MapData readFile() = 0;
    virtual bool writeFile(const MapData &map) = 0;

    // False, with the last error set, when the reading is to end.
    bool reportProgress(qint64 octetsRead);
    // The same for the writing, of an element with so many points.
    bool reportWritten(qint64 points);

    // Where to write.
    QFileDevice &output();

    QFileInfo m_info;
    QIODeviceBase::OpenMode m_mode = QIODeviceBase::NotOpen;
    QFile m_file;

private:
    bool openToWrite();
    bool openToRead();
    bool openDevice(QFileDevice &device);
    bool mayGoOn(); // writing
    bool fail(const QString &error);

    const Format m_format;
    QString m_lastError;
    Progress m_progress;
    qint64 m_pointsWritten = 0;
    qint64 m_pointsToWrite = 0;
    std::unique_ptr<QSaveFile> m_replacement; // while a regular file is being written
    bool m_written = false;
};
