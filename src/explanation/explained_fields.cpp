#include "explanation/explained_fields.h"

#include <QTime>

#include <algorithm>
#include <cmath>

std::optional<ExplainedValue> explainedFields(
    const QString &name, const QString &keys, const ReportView &view, int report, const QDateTime &now)
{
    ExplainedValue row;
    row.name = name;
    row.report = report;
    row.ageMs = std::max<qint64>(0, now.toMSecsSinceEpoch() - view.timeMs);
    for (const QString &key : keys.split(' ')) {
        const ReportField *field = view.find(key);
        if (!field && row.bits.isEmpty()) {
            return std::nullopt;
        }
        if (field) {
            const bool isFirst = row.bits.isEmpty();
            row.value += isFirst ? field->text() : ", " + field->text();
            row.item += isFirst ? field->name : ", " + field->name.section('/', -1);
            row.bits.append(field->bits);
        }
    }
    return row;
}

void addExplained(QList<ExplainedValue> &values, const QString &name, const std::optional<ExplainedValue> &fields,
    const QString &text, const QString &rule)
{
    if (!fields && text.isEmpty()) {
        return;
    }
    ExplainedValue row = fields.value_or(ExplainedValue());
    row.name = name;
    row.value = text.isEmpty() ? row.value : text;
    row.rule = rule;
    values.append(row);
}

QString timeOfDayText(double secondsOfDay)
{
    constexpr qint64 DayMs = 86400 * 1000;
    const auto ms = static_cast<int>(std::llround(secondsOfDay * 1000.0) % DayMs);
    return QTime::fromMSecsSinceStartOfDay(ms).toString("HH:mm:ss.zzz");
}
