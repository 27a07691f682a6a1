#include "maps/map_load.h"

#include <QCoreApplication>

MapLoad loadMap(const QString &path, MapFile::Format format, const MapFile::Progress &progress)
{
    const std::unique_ptr<MapFile> file = MapFile::create(format);
    if (!file) {
        return {nullptr, QCoreApplication::translate("MapLoad", "The format of the map file is unknown.")};
    }
    file->setProgress(progress);
    if (!file->open(QFileInfo(path), format, QIODeviceBase::ReadOnly)) {
        return {nullptr, file->lastError()};
    }
    const auto data = QSharedPointer<MapData>::create(file->read());
    const QString error = file->lastError();
    file->close();
    return error.isEmpty() ? MapLoad{data, {}} : MapLoad{nullptr, error};
}
