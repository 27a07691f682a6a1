#pragma once

#include "explanation/track_explanation.h"
#include "processors/shown_cells.h"

// reports: records of CAT240 of its direction, newest first; none where the antenna has not come round since they were
// asked for.
QList<ExplainedValue> explainEcho(const ShownEcho &echo, const QList<ReportView> &reports, const QDateTime &now);
