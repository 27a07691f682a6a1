#pragma once

#include "engine_rig.h"
#include "traffic/sensor_json.h"
#include "traffic/traffic_source.h"

#include "sensors/sensor_info.h"

#include <QTest>

// An engine that is given what a scenario sends, set up for the scenario's sensor, at the scenario's time.
class ScenarioRig : public EngineRig {
public:
    explicit ScenarioRig(const Scenario &scenario) : source(scenario, 1), m_start(scenario.startTime)
    {
        const QJsonObject sensor = sensorJson(scenario);
        const QJsonValue processor = sensor["processor"];
        config.processorType = processor == "modes" ? Config::ProcessorType::ModeS
            : processor == "sirm"                   ? Config::ProcessorType::AleniaSirM
                                                    : Config::ProcessorType::Asterix;
        nowMs = m_start.toMSecsSinceEpoch();
        open(1, SensorInfo::create(sensor));
    }

    // Calls took after each datagram, with the datagram and the seconds from the start.
    template <typename Took>
    void play(double until, Took took)
    {
        while (source.nextTime() < until) {
            const TrafficSource::Sending sending = source.next();
            nowMs = m_start.toMSecsSinceEpoch() + qRound64(sending.time * 1000);
            for (const QByteArray &datagram : *sending.datagrams) {
                engine.procMessage(datagram);
                took(datagram, sending.time);
            }
        }
    }

    TrafficSource source;

private:
    const QDateTime m_start;
};
