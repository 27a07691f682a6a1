#include "map_windows/map_conversion.h"

#include "maps/map_file.h"

namespace {

// Writing takes about a tenth of the time.
constexpr int ReadingPercent = 90;

struct Outcome {
    QString error; // empty: none
    QStringList notes;
};

QString writeMap(const MapData &map, const QString &target, const MapFile::Progress &progress)
{
    const std::unique_ptr<MapFile> file = MapFile::create(MapFile::formatFromFileName(target));
    if (!file) {
        return MapConversion::tr("The suffix of \"%1\" is that of no map format.").arg(target);
    }
    file->setProgress(progress);
    if (file->open(QFileInfo(target), file->format(), QIODeviceBase::WriteOnly) && file->write(map)) {
        file->close();
    }
    return file->lastError();
}

Outcome convert(
    const QString &source, const QString &target, const MapImport::Options &options, const BackgroundPass::Token &token)
{
    const auto reading = [&token](int percent) { return token.report(ReadingPercent * percent, 100 * 100); };
    const auto writing = [&token](qint64 done, qint64 total) {
        const qint64 writingPercent = total > 0 ? (100 - ReadingPercent) * done / total : 0;
        return token.report(ReadingPercent + writingPercent, 100);
    };
    QString error;
    MapImport::Report report;
    const MapData map = MapImport::read(source, options, reading, &error, &report);
    if (error.isEmpty()) {
        error = writeMap(map, target, writing);
    }
    return {error, report.messages};
}

} // namespace

MapConversion::MapConversion(QObject *parent) : QObject(parent)
{
    connect(&m_pass, &BackgroundPass::progressed, this, &MapConversion::progressed);
}

void MapConversion::start(const QString &source, const QString &target, const MapImport::Options &options)
{
    const auto work = [source, target, options](
                          const BackgroundPass::Token &token) { return convert(source, target, options, token); };
    m_pass.start(
        work, [this, target](const Outcome &outcome) { Q_EMIT finished(target, outcome.error, outcome.notes); });
}
