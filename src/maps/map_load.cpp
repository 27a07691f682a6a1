#include "maps/map_load.h"

#include <QCoreApplication>
#include <QThreadPool>

MapLoad::MapLoad(const QString &path, MapFile::Format format, Listener listener)
    : m_path(path), m_format(format), m_listener(std::move(listener))
{
}

void MapLoad::start(QThreadPool *pool)
{
    pool->start([self = shared_from_this()] { self->run(); });
}

void MapLoad::run()
{
    if (!report(0, 0)) {
        return;
    }
    const Result result = read();
    post([this, result] { m_listener.finished(result); });
}

MapLoad::Result MapLoad::read()
{
    const std::unique_ptr<MapFile> file = MapFile::create(m_format);
    if (!file) {
        return {nullptr, QCoreApplication::translate("MapLoad", "The format of the map file is unknown.")};
    }
    file->setProgress([this](qint64 octetsRead, qint64 octetsTotal) { return report(octetsRead, octetsTotal); });
    if (!file->open(QFileInfo(m_path), m_format, QIODeviceBase::ReadOnly)) {
        return {nullptr, file->lastError()};
    }
    const auto data = QSharedPointer<MapData>::create(file->read());
    const QString error = file->lastError();
    file->close();
    return error.isEmpty() ? Result{data, {}} : Result{nullptr, error};
}

bool MapLoad::report(qint64 octetsRead, qint64 octetsTotal)
{
    const int percent = octetsTotal > 0 ? static_cast<int>(100 * octetsRead / octetsTotal) : 0;
    if (percent != m_percent) {
        m_percent = percent;
        post([this, percent] { m_listener.progressed(percent); });
    }
    return !m_cancelled;
}

// The load lives until what it posted has been delivered.
void MapLoad::post(const std::function<void()> &deliver)
{
    const auto unlessCancelled = [self = shared_from_this(), deliver] {
        if (!self->m_cancelled) {
            deliver();
        }
    };
    QMetaObject::invokeMethod(m_listener.object, unlessCancelled, Qt::QueuedConnection);
}
