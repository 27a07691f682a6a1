#pragma once

#include "explanation/report_view.h"

// How each form of report is taken apart: name, category and fields of the view. Octets that cannot be read leave it
// without fields.
void viewAsterix(const KeptReport &report, ReportView &view);
void viewModeS(const KeptReport &report, ReportView &view);
void viewAleniaSirM(const KeptReport &report, ReportView &view);

// The record as it was decoded when it came in; it points into the report's octets. False where it cannot be.
bool decodeKept(const KeptReport &report, _ast_datarecord_t &record);
