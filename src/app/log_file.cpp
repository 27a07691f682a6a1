#include "app/log_file.h"

#include "app/app_log.h"
#include "app/app_paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLockFile>

#include <algorithm>
#include <cstdlib>

namespace {

// A line stays a line, whatever is in its text.
QByteArray logFileLine(LogLevel level, const QDateTime &time, QString text)
{
    for (QChar &character : text) {
        character = character.category() == QChar::Other_Control ? QLatin1Char(' ') : character;
    }
    return QStringLiteral("%1 [%2] %3\n")
        .arg(time.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzzZ")), logLevelLabel(level), text)
        .toUtf8();
}

} // namespace

QString LogFile::defaultDirectory()
{
    return AppPaths::appDataDir() + QStringLiteral("/logs");
}

LogFile::LogFile(const QString &directory) : m_directory(directory) { }

LogFile::~LogFile() = default;

void LogFile::setLimits(qint64 octets, int count)
{
    m_limit = octets;
    m_count = std::max(count, 1);
    if (m_limit <= 0) {
        m_lock.reset();
        m_failedMs.reset();
        m_lost = 0;
    }
}

QString LogFile::fileName(int age) const
{
    const QString newest = m_directory + QStringLiteral("/vyxdisplay.log");
    return age == 0 ? newest : QStringLiteral("%1.%2").arg(newest).arg(age);
}

QString LogFile::append(LogLevel level, const QDateTime &time, const QString &text)
{
    const qint64 nowMs = time.toMSecsSinceEpoch();
    if (m_limit <= 0) {
        return {};
    }
    if (m_failedMs && std::abs(nowMs - *m_failedMs) < RetryMs) { // also when the clock was set back
        ++m_lost;
        return {};
    }
    QByteArray line = logFileLine(level, time, text);
    if (m_lost > 0) {
        line.prepend(logFileLine(
            LogLevel::Warning, time, QCoreApplication::translate("LogFile", "%n lines are missing here.", "", m_lost)));
    }
    if (write(line)) {
        m_failedMs.reset();
        m_lost = 0;
        return {};
    }
    const bool told = m_failedMs.has_value();
    m_failedMs = nowMs;
    ++m_lost;
    return told ? QString() : m_error;
}

bool LogFile::write(const QByteArray &line)
{
    if (!lock()) {
        return false;
    }
    QFile file(fileName(0));
    if (file.size() > 0 && file.size() + line.size() > m_limit && !rotate()) {
        return false;
    }
    if (file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
        const qint64 before = file.size();
        if (file.write(line) == line.size()) {
            return true;
        }
        file.resize(before); // no half line on a full disk
    }
    m_error = QCoreApplication::translate("LogFile", "The log file %1 cannot be written: %2. It goes on when it can.")
                  .arg(QDir::toNativeSeparators(fileName(0)), file.errorString());
    return false;
}

// The directory may have been removed since, and the lock with it.
bool LogFile::lock()
{
    const QString lockName = fileName(0) + QStringLiteral(".lock");
    if (m_lock && QFile::exists(lockName)) {
        return true;
    }
    m_lock.reset();
    QDir().mkpath(m_directory);
    auto lock = std::make_unique<QLockFile>(lockName);
    lock->setStaleLockTime(0); // as long as its process lives
    if (lock->tryLock(0)) {
        m_lock = std::move(lock);
        return true;
    }
    m_error = lock->error() == QLockFile::LockFailedError
        ? QCoreApplication::translate("LogFile", "Another run of the program writes the log file; this one does not.")
        : QCoreApplication::translate("LogFile", "No log file can be written in %1.")
              .arg(QDir::toNativeSeparators(m_directory));
    return false;
}

// Every file grows older by one; those beyond the number that is kept go.
bool LogFile::rotate()
{
    for (int age = m_count - 1; age == m_count - 1 || QFile::exists(fileName(age)); ++age) {
        QFile::remove(fileName(age));
    }
    for (int age = m_count - 2; age >= 0; --age) {
        QFile older(fileName(age));
        if (older.exists() && !older.rename(fileName(age + 1))) {
            m_error = QCoreApplication::translate(
                "LogFile", "The log file %1 cannot be put aside: %2. It goes on when it can.")
                          .arg(QDir::toNativeSeparators(older.fileName()), older.errorString());
            return false;
        }
    }
    return true;
}
