#pragma once

#include "explanation/track_explanation.h"

#include <optional>

// The fields of a report with these keys, blanks between, as one explained value without a rule; nothing where it lacks
// the first. report: the view's number among those that are explained.
std::optional<ExplainedValue> explainedFields(
    const QString &name, const QString &keys, const ReportView &view, int report, const QDateTime &now);

// Adds what fields say. A text stands instead of their value, and alone where there are no fields; without either there
// is nothing to add.
void addExplained(QList<ExplainedValue> &values, const QString &name, const std::optional<ExplainedValue> &fields,
    const QString &text, const QString &rule);

// "12:00:00.500"; days are counted off.
QString timeOfDayText(double secondsOfDay);
