#include "ui/snapshot_pump.h"

#include "display/geo_map_display.h"
#include "display/geo_plot_map.h"
#include "plan_view/plan_display.h"
#include "radar_painting/geo_weather_map.h"

#include <QDateTime>

namespace {
constexpr int PullIntervalMs = 100;
constexpr int DropStatsIntervalMs = 60000;
} // namespace

SnapshotPump::SnapshotPump(const EngineHost::Shared *shared, PlanDisplay *plan) : m_shared(shared), m_plan(plan)
{
    m_pullTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_pullTimer, &QTimer::timeout, this, &SnapshotPump::pull);
    connect(&m_dropStatsTimer, &QTimer::timeout, this, &SnapshotPump::publishDropStats);
}

void SnapshotPump::start()
{
    m_pullTimer.start(PullIntervalMs);
    m_dropStatsTimer.start(DropStatsIntervalMs);
}

void SnapshotPump::stop()
{
    m_pullTimer.stop();
}

void SnapshotPump::pull()
{
    pullVideo();
    pullWeather();
    pullDisplay();
    pullStatistics();
}

void SnapshotPump::pullVideo()
{
    const auto batch = m_videoReader.take(m_shared->video);
    if (!batch) {
        return;
    }
    for (const VideoProcessor::Radial &radial : batch->radials) {
        showRadial(radial);
    }
    Q_EMIT radarPictureTaken();
    if (m_live && !batch->radials.isEmpty()) {
        m_videoDelay.add(batch->radials.constFirst().timeOfDay, QDateTime::currentDateTimeUtc());
    }
}

void SnapshotPump::pullWeather()
{
    const auto picture = m_weatherReader.take(m_shared->weather);
    if (!picture) {
        return;
    }
    showWeather(*picture);
    Q_EMIT radarPictureTaken();
    if (m_live) {
        m_weatherDelay.add(picture->timeOfDay, QDateTime::currentDateTimeUtc());
    }
}

void SnapshotPump::pullDisplay()
{
    const QSharedPointer<const DisplaySnapshot> snapshot = m_displayReader.take(m_shared->display);
    if (!snapshot) {
        return;
    }
    m_newest = snapshot;
    m_plan->setSnapshot(snapshot);
    Q_EMIT snapshotTaken(*snapshot);
    for (std::size_t i = 0; i < m_alertStatus.size(); ++i) {
        if (m_alertStatus[i] != snapshot->alertStatus[i]) {
            m_alertStatus[i] = snapshot->alertStatus[i];
            Q_EMIT alertStatusChanged(static_cast<Alert::Type>(i + 1), m_alertStatus[i]);
        }
    }
}

void SnapshotPump::pullStatistics()
{
    if (const auto statistics = m_statisticsReader.take(m_shared->statistics)) {
        Q_EMIT statisticsTaken(*statistics);
    }
}

void SnapshotPump::showWeather(const WeatherProcessor::Picture &picture)
{
    m_plan->showWeather(picture);
    Q_EMIT weatherTaken(picture);
}

void SnapshotPump::showRadial(const VideoProcessor::Radial &radial)
{
    m_plan->showRadial(radial);
    Q_EMIT radialTaken(radial);
}

void SnapshotPump::publishDropStats()
{
    const GeoWeatherMap *weather = m_plan->map()->weatherMap();
    Q_EMIT dropStats({m_displayReader.dropped(), m_videoReader.dropped(), m_weatherReader.dropped(),
        weather->emptyPictures(), m_weatherDelay.milliseconds(), m_videoDelay.milliseconds(),
        weather->placelessPictures(), m_plan->map()->plotMap()->lostPlots()});
}
