#pragma once

#include "maps/map_file.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

inline void require(bool condition, const char *what)
{
    if (condition) {
        return;
    }
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

// The input as a file in a folder in memory, and the application that pixmaps need, without a screen. Lives as long as
// the process.
class MapFuzzFiles {
public:
    MapFuzzFiles()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {}); // half of the time
        static int count = 1;
        static char name[] = "fuzz";
        static char *arguments[] = {name, nullptr};
        m_application = std::make_unique<QGuiApplication>(count, arguments);
        require(m_folder.isValid(), "no folder");
    }

    QString path() const { return m_folder.filePath(QStringLiteral("input")); }
    QString copyPath() const { return m_folder.filePath(QStringLiteral("copy")); }

    void readTwice(MapFile::Format format, const unsigned char *data, std::size_t size)
    {
        QFile file(path());
        const char *octets = reinterpret_cast<const char *>(data);
        require(file.open(QIODevice::WriteOnly) && file.write(octets, qint64(size)) == qint64(size), "no input");
        file.close();
        MapData map = read(format);
        if (map == MapData{}) {
            return;
        }
        for (MapElementGroup &group : map.groups) {
            for (MapImageElement &image : group.images) {
                image.file.clear(); // must not write where the input says
            }
        }
        require(write(format, map) && sameShape(read(format, copyPath()), map), "second reading differs");
    }

    MapData read(MapFile::Format format) { return read(format, path()); }

private:
    static MapData read(MapFile::Format format, const QString &path)
    {
        const auto file = MapFile::create(format);
        if (!file->open(QFileInfo(path), format, QIODevice::ReadOnly)) {
            require(!file->lastError().isEmpty(), "fault without reason");
            return {};
        }
        const MapData map = file->read();
        require(file->lastError().isEmpty() || map == MapData{}, "map in spite of an error");
        return map;
    }

    bool write(MapFile::Format format, const MapData &map)
    {
        const auto file = MapFile::create(format);
        return file->open(QFileInfo(copyPath()), format, QIODevice::WriteOnly) && file->write(map)
            && (file->close(), file->lastError().isEmpty());
    }

    // Texts may lose characters and coordinates digits; nothing may get lost or be made.
    static bool sameShape(const MapData &one, const MapData &other)
    {
        bool same = one.groups.size() == other.groups.size();
        for (qsizetype i = 0; same && i < one.groups.size(); ++i) {
            const MapElementGroup &a = one.groups.at(i);
            const MapElementGroup &b = other.groups.at(i);
            same = a.polylines.size() == b.polylines.size() && a.polygons.size() == b.polygons.size()
                && a.labels.size() == b.labels.size() && a.symbols.size() == b.symbols.size()
                && a.images.size() == b.images.size();
            for (qsizetype k = 0; same && k < a.polylines.size(); ++k) {
                same = a.polylines.at(k).points.size() == b.polylines.at(k).points.size();
            }
        }
        return same;
    }

    std::unique_ptr<QGuiApplication> m_application;
    QTemporaryDir m_folder{QStringLiteral("/dev/shm/fuzz_map_XXXXXX")};
};
