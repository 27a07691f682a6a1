#include "vyx-map/input_map.h"

namespace {

bool importMap(const CommandLine &command, MapData &map, const PercentSink &progress, const LineSink &err)
{
    const auto report = [&progress](int percent) {
        if (progress) {
            progress(percent);
        }
        return true;
    };
    QString error;
    MapImport::Report counts;
    map = MapImport::read(command.input, command.import, report, &error, &counts);
    if (!error.isEmpty()) {
        err(QStringLiteral("%1: %2").arg(command.input, error));
        return false;
    }
    for (const QString &message : std::as_const(counts.messages)) {
        err(QStringLiteral("%1: %2").arg(command.input, message));
    }
    return true;
}

bool readMap(const CommandLine &command, MapData &map, const PercentSink &progress, const LineSink &err)
{
    const std::unique_ptr<MapFile> file = MapFile::create(command.inputFormat);
    file->setProgress([&progress](qint64 read, qint64 total) {
        if (progress && total > 0) {
            progress(static_cast<int>(100 * read / total));
        }
        return true;
    });
    if (file->open(QFileInfo(command.input), command.inputFormat, QIODevice::ReadOnly)) {
        map = file->read();
    }
    if (file->lastError().isEmpty()) {
        return true;
    }
    err(QStringLiteral("%1: %2").arg(command.input, file->lastError()));
    return false;
}

} // namespace

bool readInput(const CommandLine &command, MapData &map, const PercentSink &progress, const LineSink &err)
{
    return command.inputFormat == MapFile::Unknown ? importMap(command, map, progress, err)
                                                   : readMap(command, map, progress, err);
}
