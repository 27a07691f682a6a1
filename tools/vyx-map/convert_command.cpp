#include "vyx-map/convert_command.h"

namespace {

void reportMissingImages(const CommandLine &command, const MapData &map, const LineSink &err)
{
    for (const MapElementGroup &group : map.groups) {
        for (const MapImageElement &image : group.images) {
            if (image.pixmap.isNull()) {
                err(QStringLiteral("%1: the image \"%2\" is missing").arg(command.input, image.file));
            }
        }
    }
}

bool writeMap(const CommandLine &command, const MapData &map, const LineSink &err)
{
    const std::unique_ptr<MapFile> file = MapFile::create(command.outputFormat);
    bool isWritten = file->open(QFileInfo(command.output), command.outputFormat, QIODevice::WriteOnly);
    isWritten = isWritten && file->write(map);
    file->close(); // puts the file in its place, which may fail as well
    isWritten = isWritten && file->lastError().isEmpty();
    if (!isWritten) {
        err(QStringLiteral("%1: %2").arg(command.output, file->lastError()));
    }
    return isWritten;
}

} // namespace

int runConvert(const CommandLine &command, const PercentSink &progress, const LineSink &err)
{
    MapData map;
    if (!readInput(command, map, progress, err)) {
        return 1;
    }
    reportMissingImages(command, map, err);
    return writeMap(command, map, err) ? 0 : 1;
}
