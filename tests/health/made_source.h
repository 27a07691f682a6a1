#pragma once

#include "health/source_judgement.h"

// A source of CAT048, SAC/SIC 25/12, that has sent ten reports a second for the last ten minutes, all of them tracks,
// and a basis by which it is healthy.
struct MadeSource {
    static constexpr qint64 NowMs = 1'800'000'000'000;

    MadeSource()
    {
        source.identified = true;
        source.sac = 25;
        source.sic = 12;
        source.category = 48;
        source.edition = "1.32";
        source.firstArrivalMs = NowMs - 600'000;
        source.lastArrivalMs = NowMs;
        source.expectedInterval = 4.0;
        source.history.fill(100);
        source.rate10 = source.rate60 = 10.0;
        become(ReportOutcome::Track, 6000);
        source.delay.samples = 100;
        source.delay.median = 0.3;
        source.delay.percentile95 = 0.5;
        source.delay.smallest = 0.2;
        basis.nowMs = NowMs;
        basis.sensorKind = RadarSensor;
        basis.sensorSac = 25;
        basis.sensorSic = 12;
    }

    MadeSource &silentFor(double seconds)
    {
        source.lastArrivalMs = NowMs - qRound64(seconds * 1000.0);
        return *this;
    }

    MadeSource &become(ReportOutcome outcome, quint64 records)
    {
        source.outcomes.fill(0);
        return add(outcome, records);
    }

    MadeSource &add(ReportOutcome outcome, quint64 records)
    {
        source.outcomes[static_cast<std::size_t>(outcome)] = records;
        source.records = 0;
        for (const quint64 count : source.outcomes) {
            source.records += count;
        }
        return *this;
    }

    SourceJudgement judge() const { return SourceJudge::judge(source, basis); }

    SourceStatistics source;
    JudgementBasis basis;
};
