#pragma once

#include "maps/map_file.h"

#include <QSharedPointer>
#include <QString>

#include <atomic>
#include <functional>
#include <memory>

class QThreadPool;

// One reading of a map file beside everything else.
class MapLoad final : public std::enable_shared_from_this<MapLoad> {
public:
    struct Result {
        QSharedPointer<const MapData> data; // null on failure
        QString error;
    };
    // Called on the thread of the object that listens; no more once the load is cancelled there.
    struct Listener {
        QObject *object; // outlives the reading
        std::function<void(int percent)> progressed; // each value once
        std::function<void(const Result &result)> finished;
    };

    MapLoad(const QString &path, MapFile::Format format, Listener listener);

    void start(QThreadPool *pool);
    void cancel() { m_cancelled = true; }

private:
    void run();
    Result read();
    void post(const std::function<void()> &deliver);
    bool report(qint64 octetsRead, qint64 octetsTotal);

    const QString m_path;
    const MapFile::Format m_format;
    const Listener m_listener;
    std::atomic<bool> m_cancelled = false;
    int m_percent = -1; // reading thread
};
