#include "explanation/symbol_explanation.h"

#include "explanation/track_value_text.h"
#include "explanation/value_sources.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(SymbolExplanation)
};

struct AlertSource {
    const char *name;
    const char *keys; // the first that a report has counts
};

constexpr AlertSource AlertSources[] = {
    {QT_TRANSLATE_NOOP("SymbolExplanation", "Type"), "000"},
    {QT_TRANSLATE_NOOP("SymbolExplanation", "State"), "045/STAT"},
    {QT_TRANSLATE_NOOP("SymbolExplanation", "Alert identifier"), "040"},
    {QT_TRANSLATE_NOOP("SymbolExplanation", "Time of message"), "020"},
    {QT_TRANSLATE_NOOP("SymbolExplanation", "First track number"), "030"},
    {QT_TRANSLATE_NOOP("SymbolExplanation", "First callsign"), "170/AI1 170/MS1"},
    {QT_TRANSLATE_NOOP("SymbolExplanation", "First squawk"), "170/M31/MODE3A"},
    {QT_TRANSLATE_NOOP("SymbolExplanation", "Second track number"), "035"},
    {QT_TRANSLATE_NOOP("SymbolExplanation", "Second callsign"), "171/AI2 171/MS2"},
    {QT_TRANSLATE_NOOP("SymbolExplanation", "Second squawk"), "171/M32/MODE3A"},
    {QT_TRANSLATE_NOOP("SymbolExplanation", "Area"), "100/AN 100/CAN"},
    {QT_TRANSLATE_NOOP("SymbolExplanation", "Time to conflict"), "070/TC"},
    {QT_TRANSLATE_NOOP("SymbolExplanation", "Time to closest approach"), "070/TCA"},
    {QT_TRANSLATE_NOOP("SymbolExplanation", "Horizontal separation"), "070/CHS"},
    {QT_TRANSLATE_NOOP("SymbolExplanation", "Vertical separation"), "070/CVS"},
};

ExplainedValue rowOf(const ReportField &field, const QString &name, int report, qint64 ageMs)
{
    ExplainedValue row;
    row.name = name;
    row.value = field.text();
    row.item = field.name;
    row.report = report;
    row.ageMs = std::max<qint64>(0, ageMs);
    row.bits = {field.bits};
    return row;
}

// All fields of a source that the report has; the first one must be there.
std::optional<ExplainedValue> plotRow(const ValueSource &source, const ReportView &view, qint64 ageMs)
{
    std::optional<ExplainedValue> row;
    for (const QString &key : QString::fromLatin1(source.keys).split(' ')) {
        const ReportField *field = view.find(key);
        if (!field && !row) {
            return std::nullopt;
        }
        if (field && !row) {
            row = rowOf(*field, trackValueName(source.value), 0, ageMs);
        } else if (field) {
            row->value += ", " + field->text();
            row->item += ", " + field->name.section('/', -1);
            row->bits.append(field->bits);
        }
    }
    row->rule = *source.rule ? QCoreApplication::translate("TrackExplanation", source.rule) : QString();
    return row;
}

QString typeOf(const AlertSnapshot &alert)
{
    constexpr const char *Names[] = {"", "MSAW", "APW", "STCA"};
    const auto type = static_cast<std::size_t>(alert.type);
    return type < std::size(Names) ? QString::fromLatin1(Names[type]) : QString();
}

} // namespace

QList<ExplainedValue> explainPlot(const QList<ReportView> &reports, const QDateTime &now)
{
    QList<ExplainedValue> values;
    if (reports.isEmpty()) {
        return values;
    }
    const ReportView &view = reports.first();
    std::optional<TrackValue> last; // the first source of a value that the report has is the one
    for (const ValueSource &source : valueSources()) {
        if (source.category != view.category || source.value == last) {
            continue;
        }
        if (const auto row = plotRow(source, view, now.toMSecsSinceEpoch() - view.timeMs)) {
            values.append(*row);
            last = source.value;
        }
    }
    ExplainedValue none;
    none.name = Text::tr("Track");
    none.value = noValueText();
    none.rule = Text::tr("the report names no track by number or address");
    values.append(none);
    return values;
}

bool isOfAlert(const ReportView &report, unsigned int alertId)
{
    const ReportField *id = report.find("040");
    return report.category == 4 && id && id->value.toUInt() == alertId;
}

QList<ExplainedValue> explainAlert(const AlertSnapshot &alert, const QList<ReportView> &reports, const QDateTime &now)
{
    QList<ExplainedValue> values;
    const auto found = std::find_if(
        reports.begin(), reports.end(), [&alert](const ReportView &view) { return isOfAlert(view, alert.id); });
    if (found == reports.end()) {
        return values;
    }
    for (const AlertSource &source : AlertSources) {
        for (const QString &key : QString::fromLatin1(source.keys).split(' ')) {
            if (const ReportField *field = found->find(key)) {
                values.append(rowOf(*field, Text::tr(source.name), static_cast<int>(found - reports.begin()),
                    now.toMSecsSinceEpoch() - found->timeMs));
                break;
            }
        }
    }
    if (!values.isEmpty()) {
        values.first().rule = Text::tr("shown as %1, %2").arg(typeOf(alert), alert.stateString);
    }
    return values;
}
