#pragma once

#include "explanation/track_explanation.h"
#include "tracking/alert_snapshot.h"

// What a plot is made of: the values of its newest report by which a track is or would be made. reports: those of its
// place, newest first. track: the name of the one that it belongs to; empty: to none.
QList<ExplainedValue> explainPlot(const QList<ReportView> &reports, const QDateTime &now, const QString &track = {});

// Where what the display shows of an alert comes from. reports: of safety nets, newest first; those of other alerts are
// passed over.
QList<ExplainedValue> explainAlert(const AlertSnapshot &alert, const QList<ReportView> &reports, const QDateTime &now);

// Whether the report is about that alert.
bool isOfAlert(const ReportView &report, unsigned int alertId);
