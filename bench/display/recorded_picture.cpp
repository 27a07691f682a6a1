#include "recorded_picture.h"

#include "engine/track_life_span.h"
#include "geo/stereographic_projector.h"
#include "processors/alert_processor.h"
#include "sensors/sensor_info.h"
#include "tracking/alert_manager.h"
#include "tracking/tracker.h"
#include "traffic/scenario_reader.h"
#include "traffic/sensor_json.h"
#include "traffic/traffic_source.h"

namespace {

void route(const QByteArray &datagram, Tracker &tracker, AlertProcessor &alerts)
{
    const auto *octets = reinterpret_cast<const unsigned char *>(datagram.constData());
    const auto size = static_cast<std::size_t>(datagram.size());
    _ast_datablock_t block;
    for (std::size_t at = 0; at < size && ast_datablock_smart_decode(&block, octets + at, size - at);
         at += block.size) {
        if (block.category == 4) {
            alerts.procMessage(block);
        } else {
            tracker.procAsterixMessage(block);
        }
    }
}

} // namespace

std::vector<QList<TrackSnapshot>> RecordedPicture::play(const QString &name, double first, double last)
{
    Scenario scenario = ScenarioReader().read(name).value();
    scenario.weatherRadars.clear();
    scenario.videoRadars.clear();
    const auto clock = std::make_shared<Clock>();
    clock->startRecorded(scenario.startTime);
    const auto advanceTo = [&](double seconds) {
        clock->advanceTo(scenario.startTime.addMSecs(qint64(seconds * 1000.0)));
    };
    const auto tracks = QSharedPointer<TrackManager>::create();
    const auto alertManager = QSharedPointer<AlertManager>::create();
    tracks->setClock(clock);
    alertManager->setClock(clock);
    const QSharedPointer<SensorInfo> sensor = SensorInfo::create(sensorJson(scenario));
    if (const auto lifeSpan = TrackLifeSpan::forSensor(sensor.data())) {
        tracks->setTrackLifeSpan(lifeSpan->coastingMs, lifeSpan->terminationMs);
    }
    StereographicProjector projector(sensor->location().latitude(), sensor->location().longitude());
    const QSharedPointer<Tracker> tracker = Tracker::create(sensor, tracks, &projector);
    AlertProcessor alerts(alertManager, tracks);

    std::vector<QList<TrackSnapshot>> pictures;
    TrafficSource source(scenario, scenario.seed);
    for (qint64 ms = 0; ms < qint64(last * 1000.0); ms += IntervalMs) {
        while (source.nextTime() * 1000.0 < double(ms + IntervalMs)) {
            const TrafficSource::Sending sending = source.next();
            advanceTo(sending.time);
            for (const QByteArray &datagram : *sending.datagrams) {
                route(datagram, *tracker, alerts);
            }
        }
        const double time = double(ms + IntervalMs) / 1000.0;
        advanceTo(time);
        if (ms % 1000 == 0) {
            tracks->checkLife();
            alertManager->checkLife();
        }
        if (time >= first) {
            pictures.push_back(tracks->snapshotTracks(0));
        }
    }
    return pictures;
}
