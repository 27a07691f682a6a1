#include "assessment/assessment_text.h"

#include "geo/wgs84.h"

#include <QCoreApplication>

#include <cmath>

namespace {

using assessment::Row;
using assessment::Table;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Assessment)
};

QString number(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

QString withConfidence(const AssessedValue &value, double unit, int decimals, const QString &name)
{
    const QString sign = value.value >= 0.0 ? QStringLiteral("+") : QString();
    return QStringLiteral("%1%2 \u00b1 %3 %4")
        .arg(sign, number(value.value * unit, decimals), number(value.confidence * unit, decimals), name);
}

QString milliseconds(double seconds)
{
    return Text::tr("%1 ms").arg(number(seconds * 1000.0, 0));
}

QString basisText(RotationReport::Basis basis)
{
    using Basis = RotationReport::Basis;
    switch (basis) {
    case Basis::NorthMarkers:
        return Text::tr("from north markers");
    case Basis::Sectors:
        return Text::tr("from sector crossings");
    case Basis::Reported:
        return Text::tr("as the radar says; not measured");
    case Basis::TrackUpdates:
        return Text::tr("from reports of the same targets");
    case Basis::None:
        break;
    }
    return {};
}

// Errors are errors against where the antenna is taken to stand.
Row siteRow(const GeoCoordinate &site)
{
    const QString height = std::isnan(site.altitude()) ? Text::tr("height not known, taken as 0 m")
                                                       : Text::tr("%1 m high").arg(number(site.altitude(), 0));
    return Row{Text::tr("Place"), site.toATCString(GeoCoordinate::HighPrecision), height};
}

Table antennaTable(const SensorReport &report)
{
    const RotationReport &rotation = report.rotation;
    Table table{Text::tr("Antenna"), {}};
    if (report.isSite()) {
        table.rows += siteRow(report.site);
    }
    if (rotation.basis == RotationReport::Basis::None) {
        table.rows += Row{Text::tr("Rotation period"), Text::tr("not known"), Text::tr("too few reports")};
        return table;
    }
    table.rows +=
        Row{Text::tr("Rotation period"), Text::tr("%1 s").arg(number(rotation.period, 3)), basisText(rotation.basis)};
    if (rotation.turns > 0) {
        table.rows += Row{Text::tr("Turns measured"), QString::number(rotation.turns), {}};
        table.rows += Row{Text::tr("Jitter"), milliseconds(rotation.jitter), Text::tr("one standard deviation")};
        table.rows += Row{Text::tr("Shortest and longest turn"),
            Text::tr("%1 s and %2 s").arg(number(rotation.shortest, 3), number(rotation.longest, 3)), {}};
    }
    return table;
}

Table delayTable(const SensorReport &report)
{
    Table table{Text::tr("Clock"), {}};
    const auto add = [&table](const QString &name, const DelayReport &delay, const QString &remark) {
        if (delay.count > 0) {
            table.rows += Row{name, milliseconds(delay.median),
                Text::tr("%1, least %2, 95 % below %3")
                    .arg(remark, milliseconds(delay.least), milliseconds(delay.most))};
        }
    };
    add(Text::tr("Delay of service messages"), report.serviceDelay, Text::tr("clock offset and way"));
    add(Text::tr("Delay of plots"), report.plotDelay, Text::tr("median"));
    if (table.rows.isEmpty()) {
        table.rows += Row{Text::tr("Delay"), Text::tr("not known"), Text::tr("the data have no times of arrival")};
    }
    return table;
}

QString proportion(qint64 hits, qint64 looks)
{
    if (looks <= 0) {
        return QStringLiteral("\u2013");
    }
    return Text::tr("%1 %").arg(number(100.0 * static_cast<double>(hits) / static_cast<double>(looks), 1));
}

QString intervalText(qint64 hits, qint64 looks)
{
    const ProportionInterval interval = ProportionInterval::of(hits, looks);
    return Text::tr("%1 to %2 %, %3 looks")
        .arg(number(interval.low * 100, 1), number(interval.high * 100, 1))
        .arg(looks);
}

// Within the range at which its primary radar detects anything.
DetectionGrid::Cell primaryArea(const DetectionReport &detection)
{
    DetectionGrid::Cell sum;
    for (int ring = 0; ring < DetectionGrid::Rings; ++ring) {
        if (DetectionGrid::RingWidth * (ring + 1) <= detection.primaryRange) {
            sum += detection.grid.ring(ring);
        }
    }
    return sum;
}

Table detectionTable(const SensorReport &report)
{
    const DetectionGrid::Cell all = report.detection.grid.total();
    Table table{Text::tr("Detection"), {}};
    if (all.looks == 0) {
        table.rows += Row{Text::tr("Probability of detection"), Text::tr("not known"),
            Text::tr("too few reports of the same targets")};
        return table;
    }
    table.rows +=
        Row{Text::tr("Probability of detection"), proportion(all.hits, all.looks), intervalText(all.hits, all.looks)};
    if (all.secondaryLooks > 0) {
        table.rows += Row{Text::tr("Secondary radar"), proportion(all.secondaryHits, all.secondaryLooks),
            intervalText(all.secondaryHits, all.secondaryLooks)};
    }
    const DetectionGrid::Cell primary = primaryArea(report.detection);
    if (primary.primaryHits > 0) {
        table.rows += Row{Text::tr("Primary radar"), proportion(primary.primaryHits, primary.looks),
            Text::tr("%1, within %2 NM")
                .arg(intervalText(primary.primaryHits, primary.looks),
                    number(report.detection.primaryRange / wgs84::MetresPerNauticalMile, 0))};
    }
    return table;
}

Table falsePlotTable(const FalsePlotReport &report)
{
    Table table{Text::tr("False plots"), {}};
    constexpr double LeastTurns = 3.0; // of which a rate can be told
    const QString perTurn = report.turns >= LeastTurns
        ? Text::tr("%1 a turn").arg(number(static_cast<double>(report.all()) / report.turns, 2))
        : QString();
    table.rows += Row{Text::tr("False plots"), proportion(report.all(), report.plots), perTurn};
    table.rows += Row{Text::tr("Lone plots"), QString::number(report.lone), Text::tr("belong to no track")};
    table.rows += Row{Text::tr("Second plots"), QString::number(report.doubled), Text::tr("of one target in one turn")};
    return table;
}

Table biasTable(const BiasReport &bias)
{
    Table table{Text::tr("Compared with %1").arg(assessment::nameOf(bias.reference)), {}};
    const QString kept = bias.sampled < bias.matched ? Text::tr(", an even sample of %1").arg(bias.sampled) : QString();
    table.rows += Row{Text::tr("Matched plots"), QString::number(bias.matched),
        bias.solved ? Text::tr("%1 used, of %2 aircraft%3").arg(bias.used).arg(bias.aircraft).arg(kept)
                    : Text::tr("too few, or in too few directions")};
    if (!bias.solved) {
        return table;
    }
    const QString interval = Text::tr("measured less reference, 95 % confidence");
    table.rows += Row{Text::tr("Range bias"), withConfidence(bias.rangeBias, 1.0, 1, Text::tr("m")), interval};
    table.rows += Row{Text::tr("Range gain"),
        withConfidence(bias.rangeGain, wgs84::MetresPerNauticalMile, 3, Text::tr("m/NM")), interval};
    table.rows +=
        Row{Text::tr("Azimuth bias"), withConfidence(bias.azimuthBias, 1.0, 4, QStringLiteral("\u00b0")), interval};
    table.rows += Row{Text::tr("Time offset"), withConfidence(bias.timeOffset, 1000.0, 1, Text::tr("ms")),
        bias.timeOffset.value >= 0 ? Text::tr("the radar's stamps are ahead")
                                   : Text::tr("the radar's stamps are behind")};
    table.rows += Row{Text::tr("Random error of range"), Text::tr("%1 m").arg(number(bias.rangeDeviation, 1)),
        Text::tr("one standard deviation, the reference's included")};
    table.rows +=
        Row{Text::tr("Random error of azimuth"), QStringLiteral("%1\u00b0").arg(number(bias.azimuthDeviation, 4)),
            Text::tr("one standard deviation, the reference's included")};
    return table;
}

QJsonObject valueJson(const AssessedValue &value)
{
    return {{QStringLiteral("value"), value.value}, {QStringLiteral("confidence95"), value.confidence}};
}

QJsonObject biasJson(const BiasReport &bias)
{
    QJsonObject object{{QStringLiteral("reference"),
                           bias.reference == ReferenceKind::Adsb ? QStringLiteral("adsb") : QStringLiteral("system")},
        {QStringLiteral("matched"), bias.matched}, {QStringLiteral("sampled"), bias.sampled},
        {QStringLiteral("used"), bias.used}, {QStringLiteral("aircraft"), bias.aircraft},
        {QStringLiteral("solved"), bias.solved}};
    if (bias.solved) {
        object[QStringLiteral("rangeBias")] = valueJson(bias.rangeBias);
        object[QStringLiteral("rangeGain")] = valueJson(bias.rangeGain);
        object[QStringLiteral("azimuthBias")] = valueJson(bias.azimuthBias);
        object[QStringLiteral("timeOffset")] = valueJson(bias.timeOffset);
        object[QStringLiteral("rangeDeviation")] = bias.rangeDeviation;
        object[QStringLiteral("azimuthDeviation")] = bias.azimuthDeviation;
    }
    return object;
}

QJsonObject cellJson(const DetectionGrid::Cell &cell)
{
    return {{QStringLiteral("looks"), cell.looks}, {QStringLiteral("hits"), cell.hits},
        {QStringLiteral("primaryHits"), cell.primaryHits}, {QStringLiteral("secondaryLooks"), cell.secondaryLooks},
        {QStringLiteral("secondaryHits"), cell.secondaryHits}, {QStringLiteral("falsePlots"), cell.falsePlots}};
}

QJsonObject detectionJson(const DetectionGrid &grid)
{
    QJsonArray cells;
    for (int ring = 0; ring < grid.usedRings(); ++ring) {
        for (int sector = 0; sector < DetectionGrid::Sectors; ++sector) {
            const DetectionGrid::Cell &cell = grid.cell(ring, sector);
            if (cell.looks == 0 && cell.falsePlots == 0) {
                continue;
            }
            QJsonObject object = cellJson(cell);
            object[QStringLiteral("range")] = ring * DetectionGrid::RingWidth;
            object[QStringLiteral("azimuth")] = sector * (360 / DetectionGrid::Sectors);
            cells += object;
        }
    }
    QJsonObject detection = cellJson(grid.total());
    detection[QStringLiteral("cells")] = cells;
    return detection;
}

QJsonObject delayJson(const DelayReport &delay)
{
    return {{QStringLiteral("count"), delay.count}, {QStringLiteral("least"), delay.least},
        {QStringLiteral("median"), delay.median}, {QStringLiteral("most"), delay.most}};
}

QJsonObject rotationJson(const RotationReport &rotation)
{
    static const QString names[] = {QStringLiteral("none"), QStringLiteral("northMarkers"), QStringLiteral("sectors"),
        QStringLiteral("reported"), QStringLiteral("trackUpdates")};
    return {{QStringLiteral("basis"), names[static_cast<int>(rotation.basis)]},
        {QStringLiteral("turns"), rotation.turns}, {QStringLiteral("period"), rotation.period},
        {QStringLiteral("jitter"), rotation.jitter}, {QStringLiteral("shortest"), rotation.shortest},
        {QStringLiteral("longest"), rotation.longest}};
}

QJsonObject sensorJson(const SensorReport &sensor)
{
    QJsonArray biases;
    for (const BiasReport &bias : sensor.biases) {
        biases += biasJson(bias);
    }
    const FalsePlotReport &falsePlots = sensor.falsePlots;
    QJsonObject object{{QStringLiteral("sac"), sensor.sac}, {QStringLiteral("sic"), sensor.sic},
        {QStringLiteral("name"), sensor.name}, {QStringLiteral("plots"), sensor.plots},
        {QStringLiteral("serviceMessages"), sensor.serviceMessages}, {QStringLiteral("trouble"), sensor.trouble},
        {QStringLiteral("rotation"), rotationJson(sensor.rotation)},
        {QStringLiteral("serviceDelay"), delayJson(sensor.serviceDelay)},
        {QStringLiteral("plotDelay"), delayJson(sensor.plotDelay)},
        {QStringLiteral("detection"), detectionJson(sensor.detection.grid)},
        {QStringLiteral("falsePlots"),
            QJsonObject{{QStringLiteral("plots"), falsePlots.plots}, {QStringLiteral("lone"), falsePlots.lone},
                {QStringLiteral("doubled"), falsePlots.doubled}, {QStringLiteral("turns"), falsePlots.turns}}},
        {QStringLiteral("biases"), biases}};
    if (sensor.isSite()) {
        object[QStringLiteral("site")] = QJsonObject{{QStringLiteral("latitude"), sensor.site.latitude()},
            {QStringLiteral("longitude"), sensor.site.longitude()},
            {QStringLiteral("height"), std::isnan(sensor.site.altitude()) ? 0.0 : sensor.site.altitude()}};
    }
    return object;
}

QString textOf(const SensorReport &sensor)
{
    QString text = QStringLiteral("\n%1\n%2\n").arg(sensor.title(), QString(sensor.title().size(), u'='));
    for (const Table &table : assessment::tablesOf(sensor)) {
        text += QStringLiteral("\n%1\n").arg(table.title);
        for (const Row &row : table.rows) {
            const QString line = QStringLiteral("  %1 %2  %3").arg(row.name, -28).arg(row.value, -24).arg(row.remark);
            text += line.trimmed().prepend(QStringLiteral("  ")) + u'\n';
        }
    }
    if (!sensor.trouble.isEmpty()) {
        text += QStringLiteral("\n%1\n").arg(sensor.trouble);
    }
    const QList<assessment::RangeRow> rows = assessment::rangeRows(sensor.detection);
    if (rows.isEmpty()) {
        return text;
    }
    const QStringList names = assessment::rangeHeadings();
    const auto line = [](const QStringList &cells) {
        return QStringLiteral("  %1 %2 %3 %4 %5 %6\n")
            .arg(cells[0], -14)
            .arg(cells[1], 9)
            .arg(cells[2], 10)
            .arg(cells[3], 10)
            .arg(cells[4], 10)
            .arg(cells[5], 12);
    };
    text += u'\n' + Text::tr("Detection by range") + u'\n' + line(names);
    for (const assessment::RangeRow &row : rows) {
        text += line({row.range, row.looks, row.any, row.primary, row.secondary, row.falsePlots});
    }
    return text;
}

} // namespace

QString assessment::nameOf(ReferenceKind kind)
{
    return kind == ReferenceKind::Adsb ? Text::tr("ADS-B (CAT021)") : Text::tr("system tracks (CAT062)");
}

QList<Table> assessment::tablesOf(const SensorReport &report)
{
    QList<Table> tables{
        antennaTable(report), delayTable(report), detectionTable(report), falsePlotTable(report.falsePlots)};
    for (const BiasReport &bias : report.biases) {
        tables += biasTable(bias);
    }
    return tables;
}

QStringList assessment::rangeHeadings()
{
    return {Text::tr("Range, NM"), Text::tr("Looks"), Text::tr("Detected"), Text::tr("Primary"), Text::tr("Secondary"),
        Text::tr("False plots")};
}

QList<assessment::RangeRow> assessment::rangeRows(const DetectionReport &report)
{
    constexpr double RingMiles = DetectionGrid::RingWidth / wgs84::MetresPerNauticalMile;
    QList<RangeRow> rows;
    for (int ring = 0; ring < report.grid.usedRings(); ++ring) {
        const DetectionGrid::Cell sum = report.grid.ring(ring);
        const bool isLast = ring + 1 == DetectionGrid::Rings;
        const QString from = number(ring * RingMiles, 0);
        rows += RangeRow{isLast ? Text::tr("%1 and more").arg(from)
                                : Text::tr("%1 to %2").arg(from, number((ring + 1) * RingMiles, 0)),
            QString::number(sum.looks), proportion(sum.hits, sum.looks),
            sum.primaryHits > 0 ? proportion(sum.primaryHits, sum.looks) : QStringLiteral("\u2013"),
            proportion(sum.secondaryHits, sum.secondaryLooks), QString::number(sum.falsePlots)};
    }
    return rows;
}

QString assessment::describeData(const AssessmentReport &report)
{
    QStringList parts;
    if (report.first.isValid()) {
        parts += report.first.toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss 'UTC'"));
    }
    const auto seconds = static_cast<qint64>(report.duration);
    parts += seconds >= 120 ? Text::tr("%1 min").arg(seconds / 60) : Text::tr("%1 s").arg(seconds);
    parts += Text::tr("%1 records").arg(report.records);
    parts += Text::tr("%1 reports of reference targets").arg(report.references);
    return parts.join(QStringLiteral(", "));
}

QStringList assessment::methods()
{
    return {Text::tr("Rotation: the times between north markers, or crossings of one sector. Jitter is their standard "
                     "deviation, less what the resolution of the time stamps (1/128 s) alone would give."),
        Text::tr(
            "Delay: time of arrival less time of day. It holds the way, the radar's processing and the difference of "
            "the "
            "two clocks."),
        Text::tr("Probability of detection: blips over scans. Of the turns between two detections of a target those "
                 "count in "
                 "which it was detected; five turns without end a track. Intervals are Wilson's, 95 %."),
        Text::tr("False plots: lone plots, to which no other plot within the neighbouring turns belongs, and second "
                 "plots of "
                 "one address in one turn."),
        Text::tr(
            "Bias, gain and time offset: weighted least squares over all matched plots, dr = b + g r - r' t and da = c "
            "- "
            "a' t, with r and a the slant range and azimuth of the reference on the ellipsoid of WGS-84 at the plot's "
            "time, "
            "r' and a' their rates. Outliers are kept out by Huber's weights and then beyond four deviations; "
            "confidence "
            "is the sandwich by aircraft. Refraction, some tens of metres at long range and low elevation, is part of "
            "the "
            "gain. Plots nearer than 5 km or above 30\u00b0 are left out.")};
}

QString assessment::toText(const AssessmentReport &report)
{
    QString text = Text::tr("Sensor check of %1").arg(report.source) + u'\n' + describeData(report) + u'\n';
    if (report.sensors.isEmpty()) {
        text += u'\n' + Text::tr("It holds no reports of radars (CAT001, CAT002, CAT034, CAT048).") + u'\n';
    }
    for (const SensorReport &sensor : report.sensors) {
        text += textOf(sensor);
    }
    return text;
}

QJsonObject assessment::toJson(const AssessmentReport &report)
{
    QJsonArray sensors;
    for (const SensorReport &sensor : report.sensors) {
        sensors += sensorJson(sensor);
    }
    return {{QStringLiteral("source"), report.source},
        {QStringLiteral("first"), report.first.isValid() ? report.first.toString(Qt::ISODateWithMs) : QString()},
        {QStringLiteral("duration"), report.duration}, {QStringLiteral("records"), report.records},
        {QStringLiteral("references"), report.references}, {QStringLiteral("sensors"), sensors}};
}
