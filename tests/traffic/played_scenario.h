#pragma once

#include "traffic/scenario_reader.h"
#include "traffic/traffic_source.h"

#include "asterix/asterix.h"

#include <QTest>

// What the radars of a scenario send, decoded.
struct PlayedScenario {
    struct Target {
        double sentAt = 0;
        _ast_datarecord_048_t record{};
        QByteArray octets; // of the datagram that the record points into
    };

    QByteArray octets; // of all datagrams
    std::vector<_ast_datarecord_034_t> services;
    std::vector<Target> targets;
    qsizetype largest = 0; // datagram

    static Scenario read(const char *json)
    {
        ScenarioReader reader;
        std::optional<Scenario> scenario = reader.parse(json, QStringLiteral("test"));
        if (!scenario) {
            qFatal("%s", qPrintable(reader.error()));
        }
        return *scenario;
    }

    // Until the time is reached; CAT034 and CAT048 only.
    PlayedScenario(const Scenario &scenario, double until, std::uint64_t seed = 1)
    {
        TrafficSource source(scenario, seed);
        while (source.nextTime() < until) {
            const TrafficSource::Sending sending = source.next();
            for (const QByteArray &datagram : *sending.datagrams) {
                take(datagram, sending.time);
            }
        }
    }

private:
    void take(const QByteArray &datagram, double time)
    {
        octets += datagram;
        largest = std::max(largest, datagram.size());
        const auto *data = reinterpret_cast<const unsigned char *>(datagram.constData());
        _ast_datablock_t block;
        for (std::size_t at = 0; at < static_cast<std::size_t>(datagram.size()); at += block.size) {
            const bool whole =
                ast_datablock_smart_decode(&block, data + at, static_cast<std::size_t>(datagram.size()) - at);
            QVERIFY2(whole && block.valid, korvane::asterix::errorText(block.error));
            for (const _ast_datarecord_t &record : block.records) {
                takeRecord(block.category, record, datagram, time);
            }
        }
    }

    void takeRecord(std::uint32_t category, const _ast_datarecord_t &record, const QByteArray &datagram, double time)
    {
        if (category == 34) {
            _ast_datarecord_034_t service;
            ast_datarecord_034_disassemble(&service, record);
            services.push_back(service);
        } else {
            Target target{time, {}, datagram};
            ast_datarecord_048_disassemble(&target.record, record);
            targets.push_back(target);
        }
    }
};
