#pragma once

#include "engine/display_snapshot.h"
#include "engine/pipeline_meter.h"
#include "engine/snapshot_slot.h"
#include "engine/source_statistics.h"
#include "engine/video_batch.h"
#include "processors/weather_processor.h"

#include <QElapsedTimer>
#include <QSharedPointer>

#include <optional>

// Puts pictures and statistics into the slots, and measures what it takes. Belongs to the engine's thread; the slots
// are read by another one.
class PicturePublisher {
public:
    // The slots outlive the publisher. Without a slot for statistics these are published nowhere.
    PicturePublisher(SnapshotSlot<DisplaySnapshot> *displaySlot, SnapshotSlot<VideoBatch> *videoSlot,
        SnapshotSlot<WeatherProcessor::Picture> *weatherSlot, SnapshotSlot<InputStatistics> *statisticsSlot);

    // Forgets video that is not published yet, and all counts, as a new input does.
    void reset();

    // Builds the snapshot by calling fill(snapshot). The statistics when their window is over.
    template <typename Fill>
    std::optional<PipelineStats> publishSnapshot(Fill fill)
    {
        QElapsedTimer stopwatch;
        stopwatch.start();
        const auto snapshot = QSharedPointer<DisplaySnapshot>::create();
        fill(*snapshot);
        m_displaySlot->publish(snapshot);
        m_meter.countSnapshot(stopwatch.elapsed());
        return m_meter.takeStats(
            m_clock.elapsed(), static_cast<int>(snapshot->tracks.size()), static_cast<int>(snapshot->alerts.size()));
    }

    // What has been added since the last batch; nothing when that is nothing.
    void publishVideoBatch();
    void addVideoRadial(const VideoProcessor::Radial &radial);

    void publishWeatherPicture(const WeatherProcessor::Picture &picture);

    // Makes the statistics by calling make().
    template <typename Make>
    void publishStatistics(Make make)
    {
        if (m_statisticsSlot) {
            m_statisticsSlot->publish(QSharedPointer<InputStatistics>::create(make()));
        }
    }

    PipelineMeter &meter() { return m_meter; }
    const PipelineMeter &meter() const { return m_meter; }

private:
    SnapshotSlot<DisplaySnapshot> *const m_displaySlot;
    SnapshotSlot<VideoBatch> *const m_videoSlot;
    SnapshotSlot<WeatherProcessor::Picture> *const m_weatherSlot;
    SnapshotSlot<InputStatistics> *const m_statisticsSlot;
    QSharedPointer<VideoBatch> m_videoBatch; // null while there is none under way
    QElapsedTimer m_clock; // the meter's
    PipelineMeter m_meter;
};
