#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

// The path, of a file with those contents.
inline QString writtenTo(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size()) {
        qFatal("no test file");
    }
    return path;
}

// Nothing when it cannot be read.
inline QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Whether a library's README shows its example, which is compiled with the tests, from the function on.
inline bool readmeShows(const QString &folder, const QString &example, const QByteArray &function)
{
    const QByteArray code = contentsOf(folder + "/example/" + example);
    const qsizetype start = code.indexOf(function);
    return start >= 0 && contentsOf(folder + "/README.md").contains(code.mid(start));
}
