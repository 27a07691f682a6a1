#include "explanation/symbol_explanation.h"

#include "explanation/explained_fields.h"
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

QString typeOf(const AlertSnapshot &alert)
{
    constexpr const char *Names[] = {"", "MSAW", "APW", "STCA"};
    const auto type = static_cast<std::size_t>(alert.type);
    return type < std::size(Names) ? QString::fromLatin1(Names[type]) : QString();
}

} // namespace

QList<ExplainedValue> explainPlot(const QList<ReportView> &reports, const QDateTime &now, const QString &track)
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
        if (auto row = explainedFields(trackValueName(source.value), source.keys, view, 0, now)) {
            row->rule = *source.rule ? QCoreApplication::translate("TrackExplanation", source.rule) : QString();
            values.append(*row);
            last = source.value;
        }
    }
    ExplainedValue owner;
    owner.name = Text::tr("Track");
    owner.value = track.isEmpty() ? noValueText() : track;
    owner.rule = track.isEmpty() ? Text::tr("the report names no track by number or address")
                                 : Text::tr("the report is one of those that this track is made of");
    values.append(owner);
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
            const auto number = static_cast<int>(found - reports.begin());
            if (const auto row = explainedFields(Text::tr(source.name), key, *found, number, now)) {
                values.append(*row);
                break;
            }
        }
    }
    if (!values.isEmpty()) {
        values.first().rule = Text::tr("shown as %1, %2").arg(typeOf(alert), alert.stateString);
    }
    return values;
}
