#include "maps/file_watch.h"

#include <QFileInfo>
#include <QSet>

namespace {
constexpr int SettlingMs = 200;
} // namespace

FileWatch::FileWatch(QObject *parent) : QObject(parent)
{
    m_settling.setSingleShot(true);
    m_settling.setInterval(SettlingMs);
    connect(&m_settling, &QTimer::timeout, this, &FileWatch::compare);
    // Restarting the timer with every sign of life is what waits for the end of the writing.
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_settling, qOverload<>(&QTimer::start));
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_settling, qOverload<>(&QTimer::start));
}

FileWatch::Stamp FileWatch::stamp(const QString &file)
{
    const QFileInfo info(file);
    return info.isFile() ? Stamp{info.size(), info.lastModified()} : Stamp();
}

void FileWatch::setFiles(const QStringList &files)
{
    QHash<QString, Stamp> stamps;
    for (const QString &file : files) {
        const auto known = m_stamps.constFind(file);
        stamps.insert(file, known != m_stamps.constEnd() ? *known : stamp(file));
    }
    m_stamps = stamps;
    watchPaths();
}

void FileWatch::accept(const QString &file)
{
    if (m_stamps.contains(file)) {
        m_stamps[file] = stamp(file);
    }
}

// The directories are watched too: they tell of files that come, and of those that take another's place.
void FileWatch::watchPaths()
{
    QSet<QString> wanted;
    for (auto file = m_stamps.keyBegin(); file != m_stamps.keyEnd(); ++file) {
        const QFileInfo info(*file);
        for (const QString &path : {info.filePath(), info.path()}) {
            if (QFileInfo::exists(path)) {
                wanted.insert(path);
            }
        }
    }
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    const QSet<QString> present(watched.begin(), watched.end());
    if (const QSet<QString> gone = present - wanted; !gone.isEmpty()) {
        m_watcher.removePaths(gone.values());
    }
    if (const QSet<QString> added = wanted - present; !added.isEmpty()) {
        m_watcher.addPaths(added.values());
    }
}

void FileWatch::compare()
{
    watchPaths(); // a file that was replaced is no longer watched
    QStringList different;
    for (auto known = m_stamps.begin(); known != m_stamps.end(); ++known) {
        const Stamp now = stamp(known.key());
        if (now != known.value()) {
            known.value() = now;
            different.append(known.key());
        }
    }
    for (const QString &file : std::as_const(different)) {
        Q_EMIT changed(file);
    }
}
