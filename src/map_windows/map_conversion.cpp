#include "map_windows/map_conversion.h"

#include "maps/map_file.h"

#include <utility>

namespace {

// What went wrong; empty: nothing.
QString writeMap(const MapData &map, const QString &target)
{
    const std::unique_ptr<MapFile> file = MapFile::create(MapFile::formatFromFileName(target));
    if (!file) {
        return MapConversion::tr("The suffix of \"%1\" is that of no map format.").arg(target);
    }
    if (file->open(QFileInfo(target), file->format(), QIODeviceBase::WriteOnly) && file->write(map)) {
        file->close();
    }
    return file->lastError();
}

} // namespace

MapConversion::MapConversion(QObject *parent) : QObject(parent) { }

MapConversion::~MapConversion()
{
    cancel();
}

void MapConversion::start(const QString &source, const QString &target, const MapImport::Options &options)
{
    cancel();
    m_pass = std::make_shared<Pass>();
    m_thread.reset(
        QThread::create([this, pass = m_pass, source, target, options] { convert(pass, source, target, options); }));
    m_thread->setObjectName("conversion");
    m_thread->start(QThread::LowPriority);
}

void MapConversion::cancel()
{
    if (const std::shared_ptr<Pass> pass = std::exchange(m_pass, nullptr)) {
        pass->cancelled = true;
        m_thread->wait();
        m_thread.reset();
    }
}

// On the conversion's own thread. What it posts after it has been cancelled is not delivered.
void MapConversion::convert(
    const std::shared_ptr<Pass> &pass, const QString &source, const QString &target, const MapImport::Options &options)
{
    const auto post = [this, pass](auto deliver) {
        const auto unlessCancelled = [pass, deliver] {
            if (!pass->cancelled) {
                deliver();
            }
        };
        QMetaObject::invokeMethod(this, unlessCancelled, Qt::QueuedConnection);
    };
    const auto progress = [this, pass, post](int percent) {
        if (std::exchange(pass->percent, percent) != percent) {
            post([this, percent] { Q_EMIT progressed(percent); });
        }
        return !pass->cancelled;
    };
    QString error;
    MapImport::Report report;
    const MapData map = MapImport::read(source, options, progress, &error, &report);
    if (error.isEmpty() && !pass->cancelled) {
        error = writeMap(map, target);
    }
    post([this, target, error, notes = report.messages] {
        cancel();
        Q_EMIT finished(target, error, notes);
    });
}
