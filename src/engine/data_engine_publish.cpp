#include "engine/data_engine.h"
#include "processors/alert_processor.h"
#include "tracking/alert_manager.h"
#include "tracking/track_manager.h"

void DataEngine::setSnapshotTrailDots(int count)
{
    m_trailDots = count;
}

void DataEngine::publishSnapshot()
{
    QElapsedTimer stopwatch;
    stopwatch.start();
    const auto snapshot = QSharedPointer<DisplaySnapshot>::create();
    snapshot->tracks = m_trackManager->snapshotTracks(m_trailDots);
    snapshot->alerts = m_alertManager->snapshotAlerts();
    snapshot->alertStatus = {m_alertProcessor->alertStatus(Alert::MSAW), m_alertProcessor->alertStatus(Alert::APW),
        m_alertProcessor->alertStatus(Alert::STCA)};
    m_displaySlot->publish(snapshot);
    m_meter.countSnapshot(stopwatch.elapsed());

    const auto stats = m_meter.takeStats(
        m_clock.elapsed(), static_cast<int>(snapshot->tracks.size()), static_cast<int>(snapshot->alerts.size()));
    if (stats) {
        Q_EMIT pipelineStats(*stats);
    }
}

void DataEngine::accumulateVideoRadial(const VideoProcessor::Radial &radial)
{
    if (!m_videoBatch) {
        m_videoBatch = QSharedPointer<VideoBatch>::create();
    }
    if (m_videoBatch->radials.isEmpty()) {
        m_videoBatch->firstTime = radial.timeOfDay;
    }
    m_videoBatch->lastTime = radial.timeOfDay;
    m_videoBatch->radials += radial;
    m_meter.countRadial();
}

void DataEngine::publishVideoBatch()
{
    if (m_videoBatch && !m_videoBatch->radials.isEmpty()) {
        m_videoSlot->publish(m_videoBatch);
        m_videoBatch.reset();
    }
}

void DataEngine::publishWeatherPicture(const WeatherProcessor::Picture &picture)
{
    m_weatherSlot->publish(QSharedPointer<WeatherProcessor::Picture>::create(picture));
    m_meter.countWeatherPicture(m_clock.elapsed(), static_cast<int>(picture.vectors.size()));
}
