#include "explanation/track_explanation.h"

#include "explanation/explained_fields.h"
#include "explanation/track_value_text.h"
#include "explanation/value_sources.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr qint64 PairSpanMs = 10000; // between the even and the odd position of an aircraft in the air
constexpr qint64 SurfacePairSpanMs = 25000;
constexpr double MaximumVerticalRate = 6000.0; // feet per minute, of a register
constexpr qint64 DayMs = 86400000;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(TrackExplanation)
};

QString seconds(qint64 ms)
{
    return QString::number(static_cast<double>(ms) / 1000.0, 'f', 1);
}

// Of these 0 and blanks mean that the sender knows none.
bool isIdentity(TrackValue value)
{
    return value == TrackValue::Callsign || value == TrackValue::Address || value == TrackValue::SensorNumber;
}

// Whether the tracker would have passed over the field although it was sent.
bool isPassedOver(const ValueSource &source, const ReportField &field, const ReportView &view)
{
    if (isIdentity(source.value)) {
        return field.value.count('0') == field.value.size();
    }
    if (field.key.startsWith("bds60/")) {
        return std::abs(field.value.toDouble()) > MaximumVerticalRate;
    }
    if (field.key == "135/CTB") {
        const ReportField *qnh = view.find("135/QNH");
        return qnh && qnh->value == "1";
    }
    return false;
}

class TrackExplainer {
public:
    TrackExplainer(const TrackSnapshot &track, const QList<ReportView> &reports, const QDateTime &now,
        const ExplanationSettings &settings)
        : m_track(track), m_reports(reports), m_nowMs(now.toMSecsSinceEpoch()), m_settings(settings)
    {
    }

    QList<ExplainedValue> run()
    {
        for (int i = 0; i <= static_cast<int>(TrackValue::OnGround); ++i) {
            explain(static_cast<TrackValue>(i));
        }
        addNumber();
        if (m_track.emergency != Track::NoEmergency) {
            explain(TrackValue::Emergency);
        }
        if (m_track.spi) {
            explain(TrackValue::Spi);
        }
        return m_values;
    }

private:
    void explain(TrackValue value)
    {
        ExplainedValue row;
        row.name = trackValueName(value);
        row.value = trackValueText(m_track, value);
        const ValueSource *source = find(value, row);
        if (source) {
            row.rule = Text::tr(source->rule);
            if (source->lifeMs > 0) {
                addRule(row, Text::tr("valid for %1 s").arg(source->lifeMs / 1000));
            }
        } else if (row.value != noValueText()) {
            addRule(row, Text::tr("told before the reports that are kept"));
        }
        refine(value, source, row);
        m_values.append(row);
    }

    // The newest report that has it, among those that count.
    const ValueSource *find(TrackValue value, ExplainedValue &row) const
    {
        for (int i = 0; i < m_reports.size(); ++i) {
            for (const ValueSource &source : valueSources()) {
                if (source.value == value && source.category == m_reports[i].category && (i == 0 || source.lifeMs != 0)
                    && !isIgnored(source) && take(source, i, row)) {
                    return &source;
                }
            }
        }
        return nullptr;
    }

    bool isIgnored(const ValueSource &source) const
    {
        const QString keys = QString::fromLatin1(source.keys);
        if (source.category == 10 && isOfOtherSensor(source.value, keys)) {
            return true;
        }
        const bool ofSystem = source.category == 20 || source.category == 62 || isMlat(source.category);
        if (source.value != TrackValue::Position || !ofSystem) {
            return false;
        }
        return keys.contains("/X") ? m_settings.ignoreCartesian : m_settings.ignoreWgs84;
    }

    bool isMlat(int category) const { return category == 10 && m_track.type == Track::Mlat; }

    // Surface movement radars and multilateration send the same category; each tracker takes its own items of it.
    bool isOfOtherSensor(TrackValue value, const QString &keys) const
    {
        if (isMlat(10)) {
            return keys.startsWith("040") || keys.startsWith("200");
        }
        const bool identity = value == TrackValue::Callsign || value == TrackValue::ModeA
            || value == TrackValue::Address || value == TrackValue::Level;
        return identity || keys.startsWith("202");
    }

    bool take(const ValueSource &source, int report, ExplainedValue &row) const
    {
        const ReportView &view = m_reports[report];
        QStringList names;
        QList<BitRange> bits;
        for (const QString &key : QString::fromLatin1(source.keys).split(' ')) {
            const ReportField *field = view.find(key);
            if (field && isPassedOver(source, *field, view)) {
                return false;
            }
            if (field) {
                names.append(names.isEmpty() ? fullName(view, *field) : field->name.section('/', -1));
                bits.append(field->bits);
            } else if (names.isEmpty()) {
                return false;
            }
        }
        row.item = names.join(", ");
        row.bits = bits;
        row.report = report;
        row.ageMs = std::max<qint64>(0, m_nowMs - view.timeMs);
        return true;
    }

    static QString fullName(const ReportView &view, const ReportField &field)
    {
        if (field.key.startsWith("bds")) {
            return QString("%1 %2").arg(view.itemName("250"), field.name);
        }
        return view.category == ReportView::ModeS ? QString("%1, %2").arg(view.name, field.name) : field.name;
    }

    static void addRule(ExplainedValue &row, const QString &rule)
    {
        row.rule += row.rule.isEmpty() ? rule : "; " + rule;
    }

    const ReportView *reportOf(const ExplainedValue &row) const
    {
        return row.report < 0 ? nullptr : &m_reports[row.report];
    }

    // The field that a value of one field was taken from.
    const ReportField *fieldOf(const ExplainedValue &row) const
    {
        const ReportView *view = reportOf(row);
        for (int i = 0; view && i < view->fields.size(); ++i) {
            if (view->fields[i].bits == row.bits.first()) {
                return &view->fields[i];
            }
        }
        return nullptr;
    }

    bool isSet(const ExplainedValue &row, const QString &key) const
    {
        const ReportView *view = reportOf(row);
        return view && isSet(*view, key);
    }

    static bool isSet(const ReportView &view, const QString &key)
    {
        const ReportField *field = view.find(key);
        return field && field->value == "1";
    }

    void refine(TrackValue value, const ValueSource *source, ExplainedValue &row)
    {
        switch (value) {
        case TrackValue::ModeA:
            return refineModeA(row);
        case TrackValue::SensorNumber:
            return refineNumber(row);
        case TrackValue::TimeOfDay:
            return refineTime(row);
        case TrackValue::Position:
            return refinePosition(row);
        case TrackValue::Level:
            return refineLevel(row);
        case TrackValue::VerticalTrend:
            if (!source) {
                deriveTrend(row);
            }
            return;
        case TrackValue::Type:
            if (!source) {
                refineType(row);
            }
            return;
        case TrackValue::State:
            return refineState(source, row);
        case TrackValue::OnGround:
            if (!source) {
                refineGround(row);
            }
            return;
        case TrackValue::Emergency:
            return refineEmergency(row);
        default:
            return noteAbsence(value, row);
        }
    }

    // Why there is none, where only the last report counts.
    void noteAbsence(TrackValue value, ExplainedValue &row) const
    {
        if (row.report >= 0 || row.value != noValueText() || m_reports.isEmpty()) {
            return;
        }
        const ReportView &last = m_reports.first();
        const auto sources = valueSources();
        const auto source = std::find_if(sources.begin(), sources.end(), [&](const ValueSource &candidate) {
            return candidate.value == value && candidate.category == last.category;
        });
        if (source == sources.end()) {
            row.rule = Text::tr("these reports do not carry it");
            return;
        }
        row.rule = source->lifeMs == ValueSource::LastReport
            ? Text::tr("not in the last report, so the value before it is not kept")
            : Text::tr("in none of the last %n report(s)", nullptr, static_cast<int>(m_reports.size()));
    }

    void refineModeA(ExplainedValue &row) const
    {
        const ReportView *view = reportOf(row);
        if (!view) {
            return noteAbsence(TrackValue::ModeA, row);
        }
        for (const QString &item : {QStringLiteral("070"), QStringLiteral("060")}) {
            if (isSet(row, item + "/G")) {
                addRule(row, Text::tr("garbled (G)"));
            }
            if (isSet(row, item + "/L")) {
                addRule(row, Text::tr("smoothed or not extracted in the last scan (L)"));
            }
            if (isSet(row, item + "/V")) {
                addRule(row, Text::tr("not validated (V)"));
            }
        }
    }

    // The display does not show it: what the report says is all there is.
    void refineNumber(ExplainedValue &row) const
    {
        if (const ReportField *field = fieldOf(row)) {
            row.value = field->value;
            row.rule = Text::tr("by which the report finds its track");
        } else {
            noteAbsence(TrackValue::SensorNumber, row);
        }
    }

    void refineTime(ExplainedValue &row) const
    {
        const ReportView *view = reportOf(row);
        if (!view) {
            return noteAbsence(TrackValue::TimeOfDay, row);
        }
        const ReportField *field = fieldOf(row);
        const double sent = field->value.toDouble();
        row.value = timeOfDayText(sent);
        // Midnight may lie between the two.
        const qint64 gone =
            ((view->timeMs % DayMs) - std::llround(sent * 1000.0) + DayMs + DayMs / 2) % DayMs - DayMs / 2;
        row.rule = gone >= 0 ? Text::tr("the report arrived %1 s later").arg(seconds(gone))
                             : Text::tr("the report arrived %1 s earlier: the clocks differ").arg(seconds(-gone));
    }

    void refinePosition(ExplainedValue &row) const
    {
        const ReportView *view = reportOf(row);
        if (!view) {
            return noteAbsence(TrackValue::Position, row);
        }
        if (view->category == ReportView::ModeS) {
            row.rule = cprRule(row.report);
        } else if (isOfRadar(view->category)) {
            addRule(row, groundRule(*view));
        } else if (view->category == 62 && m_settings.correctLongitudeWrap && row.item.startsWith("I062/105")) {
            addRule(row, Text::tr("180° added to western longitudes, as the settings say"));
        }
        if ((view->category == 20 || view->category == 62) && (m_settings.ignoreWgs84 || m_settings.ignoreCartesian)) {
            addRule(row,
                m_settings.ignoreWgs84 ? Text::tr("WGS-84 positions are ignored, as the settings say")
                                       : Text::tr("Cartesian positions are ignored, as the settings say"));
        }
    }

    static bool isOfRadar(int category)
    {
        return category == 48 || category == 1 || category == ReportView::AleniaSirM;
    }

    // How the way to the target became the distance over ground.
    QString groundRule(const ReportView &view) const
    {
        if (!m_settings.correctSlantRange) {
            return Text::tr("the slant range is taken as the distance over ground");
        }
        const bool hasLevel =
            isSet(view, "heightValid") || ((view.find("090/FL") || view.find("090/HGT")) && !isSet(view, "090/G"));
        if (hasLevel) {
            return Text::tr("the slant range is corrected by the level of this report, as the sensor's settings say");
        }
        return m_track.levelValid
            ? Text::tr(
                "the slant range is corrected by the track's level, as the sensor's settings say; this report has none")
            : Text::tr(
                "the slant range is taken as the distance over ground, since no level is known to correct it by");
    }

    // Of compact positions: the newest of the other format, if it is near enough in time, makes a pair.
    QString cprRule(int report) const
    {
        const ReportView &newest = m_reports[report];
        const QString format = newest.find("cprFormat")->value;
        const bool surface = newest.find("speed") != nullptr;
        const qint64 span = surface ? SurfacePairSpanMs : PairSpanMs;
        for (int i = report + 1; i < m_reports.size() && newest.timeMs - m_reports[i].timeMs <= span; ++i) {
            const ReportField *other = m_reports[i].find("cprFormat");
            if (other && other->value != format) {
                return Text::tr("CPR global: this %1 position and the %2 one of %3 s before")
                    .arg(format, other->value, seconds(newest.timeMs - m_reports[i].timeMs));
            }
        }
        return Text::tr("CPR local: the place nearest to the one before, since there is no pair of even and odd");
    }

    void refineLevel(ExplainedValue &row) const
    {
        if (isSet(row, "090/G")) {
            row.rule = Text::tr("Mode C garbled (G): the level is not taken");
            return;
        }
        if (isSet(row, "090/V")) {
            addRule(row, Text::tr("not validated (V), which is not looked at"));
        }
        const ReportView *last = m_reports.isEmpty() ? nullptr : &m_reports.first();
        if (row.report < 0 && last && last->find("135/QNH") && isQnh(*last)) {
            row.rule = Text::tr("the calculated altitude is corrected by QNH (I062/135/QNH), so it is no flight level");
            return;
        }
        noteAbsence(TrackValue::Level, row);
    }

    static bool isQnh(const ReportView &view) { return view.find("135/QNH")->value == "1"; }

    void deriveTrend(ExplainedValue &row) const
    {
        const auto rate = std::find_if(m_values.begin(), m_values.end(),
            [](const ExplainedValue &value) { return value.name == trackValueName(TrackValue::VerticalRate); });
        if (!m_track.verticalRateValid || rate == m_values.end()) {
            row.rule = Text::tr("no vertical rate to tell it from");
            return;
        }
        row.item = rate->item;
        row.bits = rate->bits;
        row.report = rate->report;
        row.ageMs = rate->ageMs;
        row.rule = Text::tr("from the vertical rate: climbing or descending beyond 200 ft/min, else level");
    }

    void refineType(ExplainedValue &row) const
    {
        const ReportView *last = m_reports.isEmpty() ? nullptr : &m_reports.first();
        if (!last) {
            return;
        }
        if (last->category == 62) {
            row.rule = Text::tr("SDPS Mode S with aircraft-derived data (I062/380), SDPS without");
        } else {
            row.rule = Text::tr("every track of such reports is");
        }
    }

    void refineState(const ValueSource *source, ExplainedValue &row) const
    {
        const bool byReport = source && (isSet(row, "170/CST") || isSet(row, "080/CST") || isSet(row, "coasting"));
        if (m_track.coasting && !byReport) {
            const qint64 silent = std::max<qint64>(0, m_nowMs - m_track.lastUpdate.toMSecsSinceEpoch());
            row = {row.name, row.value, {}, Text::tr("no position for %1 s").arg(seconds(silent)), -1, silent, {}};
        } else if (!source) {
            row.rule = Text::tr("a report without a track status confirms it");
        }
    }

    void refineGround(ExplainedValue &row) const
    {
        if (m_track.onGround) {
            row.rule = m_track.type == Track::Smr ? Text::tr("all that a surface movement radar sees is") : row.rule;
        } else {
            row.rule = Text::tr("no report says so");
        }
    }

    void refineEmergency(ExplainedValue &row) const
    {
        const bool bySquawk = m_track.modeACodeValid
            && (m_track.modeACode == 07500 || m_track.modeACode == 07600 || m_track.modeACode == 07700);
        const auto squawk = std::find_if(m_values.begin(), m_values.end(),
            [](const ExplainedValue &value) { return value.name == trackValueName(TrackValue::ModeA); });
        if (bySquawk && squawk != m_values.end()) {
            const QString name = row.name;
            const QString value = row.value;
            row = *squawk;
            row.name = name;
            row.value = value;
            row.rule = Text::tr("by the Mode A code %1").arg(m_track.modeAString);
        } else {
            addRule(row, Text::tr("as reported; kept for 20 s without being repeated"));
        }
    }

    // This system's own, which no report has.
    void addNumber()
    {
        ExplainedValue row;
        row.name = Text::tr("Track number");
        row.value = QString::number(m_track.trackNumber);
        row.rule = Text::tr("given by this system");
        m_values.append(row);
    }

    const TrackSnapshot &m_track;
    const QList<ReportView> &m_reports;
    const qint64 m_nowMs;
    const ExplanationSettings m_settings;
    QList<ExplainedValue> m_values;
};

} // namespace

QList<ExplainedValue> explainTrack(const TrackSnapshot &track, const QList<ReportView> &reports, const QDateTime &now,
    const ExplanationSettings &settings)
{
    return TrackExplainer(track, reports, now, settings).run();
}

QString explanationText(const QList<ExplainedValue> &values)
{
    QString text;
    for (const ExplainedValue &value : values) {
        const QString age = value.ageMs ? Text::tr("%1 s").arg(seconds(*value.ageMs)) : QString();
        text += QStringList{value.name, value.value, value.item, age, value.rule}.join('\t') + '\n';
    }
    return text;
}
