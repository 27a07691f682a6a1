#include "explanation/explained_fields.h"

#include <algorithm>

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
