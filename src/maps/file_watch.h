#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

// Tells when files have changed on the disk: written to, replaced by another file of the name, gone or come. A file
// need not exist to be watched, but its directory must. A change is told when nothing more has happened for a moment,
// so that a file is not read while it is being written.
class FileWatch final : public QObject {
    Q_OBJECT

public:
    explicit FileWatch(QObject *parent = nullptr);

    // Absolute paths, in place of those before.
    void setFiles(const QStringList &files);
    // What the file is now is no change: it is about to be read, or was written by the program itself.
    void accept(const QString &file);

Q_SIGNALS:
    void changed(const QString &file);

private:
    struct Stamp {
        qint64 size = -1; // -1: there is no file
        QDateTime modified;

        bool operator==(const Stamp &) const = default;
    };

    static Stamp stamp(const QString &file);
    void watchPaths();
    void compare();

    QFileSystemWatcher m_watcher;
    QTimer m_settling;
    QHash<QString, Stamp> m_stamps;
};
