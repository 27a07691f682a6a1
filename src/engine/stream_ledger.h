#pragma once

#include "engine/report_archive.h"
#include "engine/source_monitor.h"
#include "engine/stream_tap.h"

// Tells all those of an engine who are to know of each record, in one call from the outside. Owns none of them.
class StreamLedger final : public ReportLedger {
public:
    StreamLedger(SourceMonitor &sources, ReportArchive &archive, StreamTaps &taps)
        : m_sources(sources), m_archive(archive), m_taps(taps)
    {
    }

    void take(const TakenReport &report) override
    {
        m_sources.take(report);
        m_archive.take(report);
        m_taps.take(report);
    }

private:
    SourceMonitor &m_sources;
    ReportArchive &m_archive;
    StreamTaps &m_taps;
};
