#include "engine/stream_ledger.h"

void StreamLedger::tellAll(const TakenReport &report)
{
    m_sources.take(report);
    m_archive.take(report);
    m_taps.take(report);
}
