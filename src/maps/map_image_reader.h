#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QString>

class QImageReader;

// Reads the pictures of one map file. A picture is refused by what its header states, before any memory is spent on
// it: when it and those before it come to more than MaxOctets in memory, or when its file is too short to hold it.
class MapImageReader {
public:
    static constexpr qint64 MaxOctets = qint64(256) * 1024 * 1024;

    // Null when there is no picture, when it is refused, or without a QGuiApplication.
    QPixmap readFile(const QString &path);
    QPixmap readPng(const QByteArray &octets);

private:
    QPixmap read(QImageReader &reader, qint64 fileSize);

    qint64 m_octetsLeft = MaxOctets;
};
