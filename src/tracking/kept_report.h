#pragma once

#include "asterix/asterix.h"
#include "tracking/report_ledger.h"

#include <QByteArray>

// One report as it came in.
struct KeptReport {
    TakenReport::Form form = TakenReport::Form::Asterix;
    qint64 timeMs = 0; // when it arrived, since 1970 UTC; a recording's own time
    const korvane::asterix::Uap *uap = nullptr; // with which the record was decoded; null for other formats
    QByteArray octets; // as TakenReport has them
};
