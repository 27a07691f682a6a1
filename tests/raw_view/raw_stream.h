#pragma once

#include "asterix/asterix.h"
#include "encoded_report.h"
#include "engine/stream_tap.h"
#include "sirm/alenia_sir_m_radar_message.h"

// Batches as the engine hands them over, of records made by hand; a millisecond from one to the next.
class RawStream {
public:
    using Batches = std::vector<std::shared_ptr<const StreamBatch>>;

    RawStream() { m_tap.setClock(m_clock); }

    // The records of a data block, all of which became the same.
    RawStream &add(const QByteArray &block, ReportOutcome outcome = ReportOutcome::Track)
    {
        _ast_datablock_t decoded;
        const auto *octets = reinterpret_cast<const unsigned char *>(block.constData());
        ast_datablock_smart_decode(&decoded, octets, static_cast<std::size_t>(block.size()));
        for (const _ast_datarecord_t &record : decoded.records) {
            TakenReport report;
            report.category = static_cast<quint8>(decoded.category);
            report.fate.outcome = outcome;
            report.octets = record.data;
            report.size = record.length;
            report.record = &record;
            take(report);
        }
        if (!decoded.valid) {
            TakenReport report;
            report.category = static_cast<quint8>(decoded.category);
            report.octets = octets;
            report.size = static_cast<quint32>(block.size());
            report.fault = korvane::asterix::errorText(decoded.error);
            report.faultOffset = decoded.errorOffset;
            take(report);
        }
        return *this;
    }

    RawStream &add(int category, const QString &report, ReportOutcome outcome = ReportOutcome::Track)
    {
        return add(encodedReport(category, report), outcome);
    }

    // Each record of a message of SIR-M, or the message itself where it has none.
    RawStream &add(const AleniaSirMRadarMessage &message, ReportOutcome outcome = ReportOutcome::Plot)
    {
        ++m_nowMs;
        m_tap.takeSirM(message, outcome);
        return *this;
    }

    Batches batches()
    {
        m_tap.flush();
        return m_tap.takeAll().batches;
    }

private:
    void take(const TakenReport &report)
    {
        ++m_nowMs;
        m_tap.take(report);
    }

    qint64 m_nowMs = 1714564800000; // 2024-05-01 12:00:00 UTC
    std::shared_ptr<Clock> m_clock = std::make_shared<Clock>([this] { return m_nowMs; }, [this] { return m_nowMs; });
    StreamTap m_tap{StreamTap::Content::Records};
};
