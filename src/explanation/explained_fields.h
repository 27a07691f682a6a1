#pragma once

#include "explanation/track_explanation.h"

#include <optional>

// The fields of a report with these keys, blanks between, as one explained value without a rule; nothing where it lacks
// the first. report: the view's number among those that are explained.
std::optional<ExplainedValue> explainedFields(
    const QString &name, const QString &keys, const ReportView &view, int report, const QDateTime &now);
