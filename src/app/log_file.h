#pragma once

#include "app/log_level.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <memory>
#include <optional>

class QLockFile;

// The application log on disk: "vyxdisplay.log" in a directory of its own, and the files before it as
// "vyxdisplay.log.1", "vyxdisplay.log.2" and so on, the newest first. A line is "<UTC, ISO 8601, ms> [<label>] <text>".
// The file is opened for every line, so that it may be moved or removed at any time. Of several processes the first one
// writes. GUI thread.
class LogFile final {
public:
    static constexpr qint64 RetryMs = 5000; // after a line that could not be written

    // "logs" among the profile's data.
    static QString defaultDirectory();

    explicit LogFile(const QString &directory = defaultDirectory());
    ~LogFile();

    // Octets at which a new file is begun, 0 or less: none is written; and how many files are kept, the newest among
    // them, at least 1.
    void setLimits(qint64 octets, int count);

    // Takes the time from outside, UTC. What the log should say about the file itself, a warning, for once when lines
    // cannot be written; else empty. Lines are lost until it works again; the file then says how many.
    [[nodiscard]] QString append(LogLevel level, const QDateTime &time, const QString &text);

private:
    bool lock();
    bool rotate();
    bool write(const QByteArray &line);
    QString fileName(int age) const;

    QString m_directory;
    qint64 m_limit = 0; // octets
    int m_count = 1;
    std::unique_ptr<QLockFile> m_lock; // of the directory
    std::optional<qint64> m_failedMs; // of the last attempt, UTC; nothing: all is well
    int m_lost = 0; // lines since then
    QString m_error;
};
