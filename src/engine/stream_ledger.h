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

    // No call is made for most records, so that nothing has to be saved for it.
    void take(const TakenReport &report) override
    {
        if (m_taps.isEmpty() && m_sources.needsCountingOnly(report) && m_archive.needsCopyingOnly(report)) [[likely]] {
            m_archive.copy(report);
            m_sources.count(report);
        } else {
            tellAll(report);
        }
    }

private:
    void tellAll(const TakenReport &report);

    SourceMonitor &m_sources;
    ReportArchive &m_archive;
    StreamTaps &m_taps;
};
