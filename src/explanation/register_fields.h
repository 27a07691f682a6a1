#pragma once

#include "explanation/report_view.h"

// What a Mode S register holds, as far as its contents are known and it says that they count; nothing of other
// registers. code: 0x40 for 4,0. mb: its seven octets. firstBit: of the report, where they begin.
QList<ReportField> registerFields(int code, const unsigned char *mb, int firstBit);
