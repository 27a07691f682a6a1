#pragma once

#include "engine/engine_host.h"
#include "engine/largest_delay.h"
#include "engine/slot_reader.h"
#include "processors/video_processor.h"
#include "processors/weather_processor.h"
#include "tracking/alert.h"
#include "ui/drop_stats.h"

#include <QObject>
#include <QTimer>

class PlanDisplay;

#include <array>

// Takes what the engine publishes from the slots, ten times a second, and hands it to the layers that show it. Counts
// what was replaced before it came and how late the rest is. GUI thread.
class SnapshotPump final : public QObject {
    Q_OBJECT

public:
    // Both must outlive the pump.
    SnapshotPump(const EngineHost::Shared *shared, PlanDisplay *plan);

    void start();
    void stop();

    // Null before the first.
    QSharedPointer<const DisplaySnapshot> newest() const { return m_newest; }

    // Delays are measured while the input is live: a recording's times of day are of another day.
    void setInputLive(bool live) { m_live = live; }

public Q_SLOTS:
    void pull();
    void showWeather(const WeatherProcessor::Picture &picture);
    void showRadial(const VideoProcessor::Radial &radial);
    // Otherwise once a minute.
    void publishDropStats();

Q_SIGNALS:
    // The layers show it.
    void snapshotTaken(const DisplaySnapshot &snapshot);
    // The same of weather or radar video.
    void radarPictureTaken();
    // What the plan view has been given of them, for others.
    void weatherTaken(const WeatherProcessor::Picture &picture);
    void radialTaken(const VideoProcessor::Radial &radial);
    // What the engine counts of its input; once a second.
    void statisticsTaken(const InputStatistics &statistics);
    // The status of this type differs from that in the snapshot before.
    void alertStatusChanged(Alert::Type type, bool on);
    void dropStats(const DropStats &stats);

private:
    void pullVideo();
    void pullWeather();
    void pullDisplay();
    void pullStatistics();

    const EngineHost::Shared *m_shared;
    PlanDisplay *m_plan;
    QTimer m_pullTimer;
    QTimer m_dropStatsTimer;
    SlotReader<DisplaySnapshot> m_displayReader;
    SlotReader<VideoBatch> m_videoReader;
    SlotReader<WeatherProcessor::Picture> m_weatherReader;
    SlotReader<InputStatistics> m_statisticsReader;
    LargestDelay m_videoDelay;
    LargestDelay m_weatherDelay;
    bool m_live = true;
    QSharedPointer<const DisplaySnapshot> m_newest;
    std::array<bool, 3> m_alertStatus = {}; // as in the newest snapshot
};
