#include "maps/map_file.h"

#include <benchmark/benchmark.h>
#include <QTemporaryDir>

// A map of a million points to and from the disk, in lines of the length given.

namespace {

constexpr int Points = 1000000;

MapData map(int pointsPerLine)
{
    MapElementGroup group;
    for (int line = 0; line < Points / pointsPerLine; ++line) {
        MapPolylineElement polyline;
        for (int i = 0; i < pointsPerLine; ++i) {
            polyline.points.append({40.0 + 1e-5 * line, 5.0 + 1e-5 * i});
        }
        group.polylines.append(polyline);
    }
    MapData map;
    map.groups.append(group);
    return map;
}

bool write(const QString &path, MapFile::Format format, const MapData &map)
{
    const auto file = MapFile::create(format);
    const bool good = file->open(QFileInfo(path), format, QIODevice::WriteOnly) && file->write(map);
    file->close();
    return good;
}

void reads(benchmark::State &state, MapFile::Format format)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("map");
    if (!write(path, format, map(int(state.range(0))))) {
        return state.SkipWithError("no map written");
    }
    for (auto _ : state) {
        const auto file = MapFile::create(format);
        if (!file->open(QFileInfo(path), format, QIODevice::ReadOnly) || file->read().groups.size() != 1) {
            return state.SkipWithError("no map read");
        }
    }
    state.SetItemsProcessed(state.iterations() * Points);
}

void writes(benchmark::State &state, MapFile::Format format)
{
    const QTemporaryDir folder;
    const MapData data = map(1000);
    for (auto _ : state) {
        if (!write(folder.filePath("map"), format, data)) {
            return state.SkipWithError("no map written");
        }
    }
    state.SetItemsProcessed(state.iterations() * Points);
}

BENCHMARK_CAPTURE(reads, xml, MapFile::Xml)->Arg(1000)->Arg(20)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(reads, binary, MapFile::Map)->Arg(1000)->Arg(2)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, xml, MapFile::Xml)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writes, binary, MapFile::Map)->Unit(benchmark::kMillisecond);

} // namespace
