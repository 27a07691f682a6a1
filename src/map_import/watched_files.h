#pragma once

#ifdef VYX_WITH_GDAL

#include <QByteArray>
#include <QString>

#include <functional>

// Lets the GDAL library open files in a way that tells how much of them it reads, and that can be ended: some of its
// drivers read a whole file before they hand over the first feature. Works for what this thread reads while the object
// lives; one at a time.
class WatchedFiles {
public:
    // Octets read so far, of all files and more than once where they are read again; false makes this and all further
    // reading fail.
    using Watch = std::function<bool(qint64 octetsRead)>;

    explicit WatchedFiles(Watch watch);
    ~WatchedFiles();
    Q_DISABLE_COPY_MOVE(WatchedFiles)

    // What GDAL is to open instead of the file, whose path is absolute.
    static QByteArray nameOf(const QString &path);
    // The name stands in messages of GDAL; gives them back with the path alone.
    static QString withPaths(const QString &message);
    // The watch has ended the reading. What was read until then may be incomplete without an error of GDAL's.
    bool ended() const { return m_ended; }

    // For GDAL.
    bool mayRead(qint64 octets);

private:
    Watch m_watch;
    qint64 m_octetsRead = 0;
    bool m_ended = false;
};

#endif
