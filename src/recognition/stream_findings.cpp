#include "recognition/stream_findings.h"

#include "recognition/report_facts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <numeric>

using korvane::modes::ModeSEncapsulation;

namespace {

constexpr int MostSourcesNamed = 6;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(StreamFindings)
};

QString number(qint64 value)
{
    return QLocale(QLocale::English).toString(value); // with commas between the thousands
}

// "a, b and c".
QString listOf(const QStringList &parts)
{
    return parts.size() < 2
        ? parts.join(QString())
        : Text::tr("%1 and %2").arg(parts.mid(0, parts.size() - 1).join(QStringLiteral(", ")), parts.last());
}

QString categoryText(const CategoryFindings &category)
{
    const QString name = categoryName(category.category);
    if (category.records == 0) {
        return Text::tr("%1 (cannot be decoded)").arg(name);
    }
    return category.editionChosen ? Text::tr("%1 in edition %2").arg(name, category.edition) : name;
}

QString categoriesText(const SourceFindings &source)
{
    QStringList parts;
    for (const CategoryFindings &category : source.categories) {
        parts += categoryText(category);
    }
    return listOf(parts);
}

QString recordsText(qint64 records)
{
    return records == 1 ? Text::tr("1 record") : Text::tr("%1 records").arg(number(records));
}

using Count = qint64 CategoryFindings::*;

// Of a source's reports of targets.
qint64 sum(const SourceFindings &source, Count count)
{
    return std::accumulate(source.categories.begin(), source.categories.end(), qint64(0),
        [count](qint64 total, const CategoryFindings &category) {
            return total + (category.reportsTargets() ? category.*count : 0);
        });
}

struct ItemText {
    Count count;
    const char *text;
};

constexpr ItemText PositionTexts[] = {
    {&CategoryFindings::polarPositions, QT_TRANSLATE_NOOP("StreamFindings", "polar positions")},
    {&CategoryFindings::cartesianPositions, QT_TRANSLATE_NOOP("StreamFindings", "Cartesian positions")},
    {&CategoryFindings::wgs84Positions, QT_TRANSLATE_NOOP("StreamFindings", "WGS-84 positions")},
};

constexpr ItemText IdentityTexts[] = {
    {&CategoryFindings::trackNumbers, QT_TRANSLATE_NOOP("StreamFindings", "track numbers")},
    {&CategoryFindings::addresses, QT_TRANSLATE_NOOP("StreamFindings", "aircraft addresses")},
};

template <std::size_t Size>
QString itemsText(const SourceFindings &source, const ItemText (&items)[Size], const QString &none)
{
    QStringList parts;
    for (const ItemText &item : items) {
        if (sum(source, item.count) > 0) {
            parts += Text::tr(item.text);
        }
    }
    return parts.isEmpty() ? none : listOf(parts);
}

QStringList targetTexts(const SourceFindings &source)
{
    const qint64 reports = sum(source, &CategoryFindings::records);
    if (reports == 0) {
        return {};
    }
    QStringList parts = {itemsText(source, PositionTexts, Text::tr("no positions")),
        itemsText(source, IdentityTexts, Text::tr("no track numbers"))};
    const qint64 trackable = sum(source, &CategoryFindings::trackable);
    if (trackable > 0 && trackable < reports) {
        parts += Text::tr("both in %1 of %2 reports").arg(number(trackable), number(reports));
    }
    return parts;
}

QString turnText(double seconds)
{
    return seconds > 0.0 ? Text::tr("turning once in %1 s").arg(seconds, 0, 'f', 1) : QString();
}

QString placeText(const PositionArea &area)
{
    return Text::tr("around %1").arg(area.center.toATCString(GeoCoordinate::NormalPrecisionSpace));
}

qint64 reportsOf(const SourceFindings &source)
{
    return std::accumulate(source.categories.begin(), source.categories.end(), qint64(0),
        [](qint64 total, const CategoryFindings &category) { return total + category.records; });
}

QString asterixText(const StreamFindings &findings)
{
    if (findings.sources.size() == 1) {
        return describe(findings.sources.first());
    }
    QList<SourceFindings> sources = findings.sources;
    std::stable_sort(sources.begin(), sources.end(),
        [](const SourceFindings &a, const SourceFindings &b) { return reportsOf(a) > reportsOf(b); });
    QStringList parts;
    for (const SourceFindings &source : sources.mid(0, MostSourcesNamed)) {
        parts += Text::tr("%1 from %2 (%3)").arg(categoriesText(source), source.name(), recordsText(reportsOf(source)));
    }
    if (sources.size() > MostSourcesNamed) {
        parts += Text::tr("%1 more").arg(sources.size() - MostSourcesNamed);
    }
    return Text::tr("%1 sources: %2").arg(sources.size()).arg(parts.join(QStringLiteral("; ")));
}

QString modeSText(const StreamFindings &findings)
{
    const ModeSFindings &modeS = findings.modeS;
    QStringList parts = {
        Text::tr("Mode S (%1): %2 frames")
            .arg(QString::fromStdString(ModeSEncapsulation::name(findings.modeSEncapsulation)), number(modeS.frames)),
        Text::tr("%1 aircraft with extended squitters").arg(number(modeS.aircraft))};
    parts += modeS.area.positions > 0 ? Text::tr("%1 positions").arg(number(modeS.area.positions))
                                      : Text::tr("no positions");
    if (modeS.area.positions > 0) {
        parts += placeText(modeS.area);
    }
    if (modeS.modeAcReplies > 0) {
        parts += Text::tr("%1 Mode A/C replies").arg(number(modeS.modeAcReplies));
    }
    return parts.join(QStringLiteral(", "));
}

QString sirMText(const StreamFindings &findings)
{
    const SirMFindings &sirM = findings.sirM;
    QStringList parts = {
        Text::tr("Alenia SIR-M radar %1: %2 tracks").arg(QString::number(sirM.radarId), number(sirM.tracks)),
        Text::tr("%1 plots").arg(number(sirM.plots))};
    parts += turnText(sirM.rotationPeriod);
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QString contentsText(const StreamFindings &findings)
{
    switch (*findings.kind) {
    case Config::ProcessorType::Asterix:
        return asterixText(findings);
    case Config::ProcessorType::ModeS:
        return modeSText(findings);
    case Config::ProcessorType::AleniaSirM:
        break;
    }
    return sirMText(findings);
}

// Raw data are in no envelope, which needs no mention.
QString envelopeText(const StreamFindings &findings)
{
    using Type = Config::ProcessorType;
    if (findings.kind == Type::Asterix && findings.asterixFormat != Config::AsterixFormat::Raw) {
        return Config::asterixFormatName(findings.asterixFormat);
    }
    return findings.kind == Type::AleniaSirM && findings.aleniaSirMFormat != Config::AleniaSirMFormat::Raw
        ? Config::aleniaSirMFormatName(findings.aleniaSirMFormat)
        : QString();
}

} // namespace

SensorType CategoryFindings::sensorType() const
{
    return multilateration ? MlatSensor : sensorTypeOf(category);
}

bool CategoryFindings::reportsTargets() const
{
    return isTargetCategory(category);
}

qint64 SourceFindings::trackable(SensorType type) const
{
    return std::accumulate(
        categories.begin(), categories.end(), qint64(0), [type](qint64 total, const CategoryFindings &category) {
            return total + (category.sensorType() == type ? category.trackable : 0);
        });
}

qint64 SourceFindings::records(SensorType type) const
{
    return std::accumulate(
        categories.begin(), categories.end(), qint64(0), [type](qint64 total, const CategoryFindings &category) {
            return total + (category.sensorType() == type ? category.records : 0);
        });
}

const CategoryFindings *SourceFindings::find(int category) const
{
    const auto found = std::find_if(categories.begin(), categories.end(),
        [category](const CategoryFindings &candidate) { return candidate.category == category; });
    return found == categories.end() ? nullptr : &*found;
}

QString SourceFindings::name() const
{
    return identified ? QStringLiteral("%1/%2").arg(sac).arg(sic) : Text::tr("a source without SAC/SIC");
}

QString categoryName(int category)
{
    return QStringLiteral("CAT%1").arg(category, 3, 10, QLatin1Char('0'));
}

QString formatText(const StreamFormat &format)
{
    switch (format.kind) {
    case Config::ProcessorType::Asterix:
        return format.asterix == Config::AsterixFormat::Raw
            ? Text::tr("ASTERIX")
            : Text::tr("ASTERIX in %1").arg(Config::asterixFormatName(format.asterix));
    case Config::ProcessorType::ModeS:
        return Text::tr("Mode S (%1)").arg(QString::fromStdString(ModeSEncapsulation::name(format.modeS)));
    case Config::ProcessorType::AleniaSirM:
        break;
    }
    return format.aleniaSirM == Config::AleniaSirMFormat::Raw
        ? Text::tr("Alenia SIR-M")
        : Text::tr("Alenia SIR-M in %1").arg(Config::aleniaSirMFormatName(format.aleniaSirM));
}

QString describe(const SourceFindings &source)
{
    QStringList parts = {Text::tr("%1 from %2").arg(categoriesText(source), source.name())};
    parts += targetTexts(source);
    parts += source.records(RadarSensor) > 0 ? turnText(source.rotationPeriod) : QString();
    parts += source.area.positions > 0 ? placeText(source.area) : QString();
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QString describe(const StreamFindings &findings)
{
    if (!findings.kind) {
        return Text::tr("no ASTERIX, Mode S or SIR-M data in %1 messages").arg(number(findings.messages));
    }
    QStringList parts = {contentsText(findings)};
    if (const QString envelope = envelopeText(findings); !envelope.isEmpty()) {
        parts += Text::tr("in %1").arg(envelope);
    }
    if (findings.undecodableOctets > 0) {
        parts += Text::tr("%1 of %2 octets cannot be decoded")
                     .arg(number(findings.undecodableOctets), number(findings.octets));
    }
    return parts.join(QStringLiteral(", "));
}
