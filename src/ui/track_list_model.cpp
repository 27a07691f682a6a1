#include "ui/track_list_model.h"

#include "tracking/track.h"
#include "widgets/figure_font.h"
#include "widgets/text_colors.h"

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>

#include <cmath>

namespace {

QString typeText(Track::Type type)
{
    static const char *const texts[] = {"", QT_TR_NOOP("PSR"), QT_TR_NOOP("SSR"), QT_TR_NOOP("PSR+SSR"),
        QT_TR_NOOP("Mode S"), QT_TR_NOOP("Mode S+PSR"), QT_TR_NOOP("ADS-B"), QT_TR_NOOP("MLAT"), QT_TR_NOOP("SMR"),
        QT_TR_NOOP("SDPS Mode S"), QT_TR_NOOP("SDPS")};
    return type == Track::Unknown ? QString() : TrackListModel::tr(texts[type]);
}

QString stateText(Track::State state)
{
    static const char *const texts[] = {
        QT_TR_NOOP("Tentative"), QT_TR_NOOP("Confirmed"), QT_TR_NOOP("Coasting"), QT_TR_NOOP("Terminated")};
    return TrackListModel::tr(texts[state]);
}

QString levelText(const TrackListEntry &entry)
{
    if (!entry.level) {
        return {};
    }
    // The arrow's place is kept free in level flight, so that the figures stand under each other.
    const QChar trend = entry.verticalTrend == Track::TrendClimbing ? QChar(0x2191)
        : entry.verticalTrend == Track::TrendDescending             ? QChar(0x2193)
                                                                    : QChar(0x2007);
    return QString("%1%2").arg(*entry.level, 3, 10, QChar('0')).arg(trend);
}

QString rateText(int feetPerMinute)
{
    return (feetPerMinute > 0 ? QString("+%1") : QString("%1")).arg(feetPerMinute);
}

QVariant textOrNone(const QString &text)
{
    return text.isEmpty() ? QVariant() : QVariant(text);
}

QVariant numberOrNone(const std::optional<int> &number)
{
    return number ? QVariant(*number) : QVariant();
}

bool isNumeric(int column)
{
    switch (column) {
    case TrackListModel::Level:
    case TrackListModel::GroundSpeed:
    case TrackListModel::Heading:
    case TrackListModel::VerticalRate:
    case TrackListModel::TrackNumber:
        return true;
    default:
        return false;
    }
}

} // namespace

TrackListModel::TrackListModel(QObject *parent) : RecordTableModel(parent), m_figures(figureFont()) { }

int TrackListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TrackListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const TrackListEntry &entry = record(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(entry, index.column());
    case SortRole:
        return sortValue(entry, index.column());
    case Qt::ForegroundRole:
        return foreground(entry);
    case Qt::FontRole:
        return m_figures;
    case Qt::DecorationRole:
        return index.column() == Country ? flag(entry) : QVariant();
    case Qt::ToolTipRole:
        return index.column() == Country ? textOrNone(entry.countryName) : QVariant();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(
            isNumeric(index.column()) ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant TrackListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const char *const titles[] = {QT_TR_NOOP("Callsign"), QT_TR_NOOP("Reg"), QT_TR_NOOP("Squawk"),
        QT_TR_NOOP("Level"), QT_TR_NOOP("Speed"), QT_TR_NOOP("Hdg"), QT_TR_NOOP("Rate"), QT_TR_NOOP("Type"),
        QT_TR_NOOP("State"), QT_TR_NOOP("Address"), QT_TR_NOOP("Number"), QT_TR_NOOP("Alert")};
    static_assert(std::size(titles) == ColumnCount);
    static const char *const explanations[] = {QT_TR_NOOP("Aircraft identification"),
        QT_TR_NOOP("Country of registration, by the aircraft address"), QT_TR_NOOP("Mode 3/A code"),
        QT_TR_NOOP("Flight level and vertical trend"), QT_TR_NOOP("Ground speed, knots"),
        QT_TR_NOOP("Track over ground, degrees"), QT_TR_NOOP("Vertical rate, feet per minute"),
        QT_TR_NOOP("What sees the track"), QT_TR_NOOP("Life state"), QT_TR_NOOP("24-bit aircraft address"),
        QT_TR_NOOP("Track number"), QT_TR_NOOP("Active safety-net alerts")};
    static_assert(std::size(explanations) == ColumnCount);
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return tr(titles[section]);
    case Qt::ToolTipRole:
        return tr(explanations[section]);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(
            isNumeric(section) ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

QStringList TrackListModel::widestTexts()
{
    return {"WWWW9999", "WWWWWWW", "7777GS", QString("000%1").arg(QChar(0x2191)), "9999", "360", "-9999",
        tr("SDPS Mode S"), tr("Terminated"), "AAAAAA", "99999", "MSAW STCA"};
}

TrackListEntry TrackListModel::entryFor(const TrackSnapshot &track) const
{
    TrackListEntry entry;
    entry.incarnationId = track.incarnationId;
    entry.callsign = track.callsignValid ? track.callsign : QString();
    entry.squawk = track.modeACodeValid ? track.modeAString : QString();
    entry.icaoAddr = track.icaoAddrValid ? track.icaoAddrString : QString();
    if (track.icaoAddrValid) {
        const auto info = m_addresses.getICAOAddrInfo(korvane::airdb::ICAOAddr(track.icaoAddr));
        entry.country = info.country().isoCode2();
        entry.countryName = info.country().name();
    }
    if (track.levelValid) {
        entry.level = track.level / 100;
    }
    entry.verticalTrend = track.verticalTrend;
    if (track.groundSpeedValid) {
        entry.groundSpeed = static_cast<int>(std::lround(track.groundSpeed));
    }
    if (track.headingValid) {
        const long degrees = std::lround(track.heading) % 360;
        entry.heading = static_cast<int>(degrees > 0 ? degrees : degrees + 360);
    }
    if (track.verticalRateValid) {
        entry.verticalRate = track.verticalRate;
    }
    entry.type = track.type;
    entry.state = track.state;
    entry.trackNumber = track.trackNumber;
    entry.alerts = track.alertsString;
    return entry;
}

void TrackListModel::setTracks(const QList<TrackSnapshot> &tracks)
{
    std::vector<TrackListEntry> entries;
    entries.reserve(static_cast<std::size_t>(tracks.size()));
    std::transform(tracks.cbegin(), tracks.cend(), std::back_inserter(entries),
        [this](const TrackSnapshot &track) { return entryFor(track); });
    replaceRecords(std::move(entries), &TrackListEntry::incarnationId);
}

void TrackListModel::clear()
{
    replaceRecords({}, &TrackListEntry::incarnationId);
}

QString TrackListModel::text(const TrackListEntry &entry, int column) const
{
    switch (column) {
    case Callsign:
        return entry.callsign;
    case Squawk:
        return entry.squawk;
    case Country:
        return entry.country;
    case IcaoAddr:
        return entry.icaoAddr;
    case Level:
        return levelText(entry);
    case GroundSpeed:
        return entry.groundSpeed ? QString::number(*entry.groundSpeed) : QString();
    case Heading:
        return entry.heading ? QString("%1").arg(*entry.heading, 3, 10, QChar('0')) : QString();
    case VerticalRate:
        return entry.verticalRate ? rateText(*entry.verticalRate) : QString();
    case Type:
        return typeText(entry.type);
    case State:
        return stateText(entry.state);
    case TrackNumber:
        return QString::number(entry.trackNumber);
    case Alerts:
        return entry.alerts;
    default:
        return {};
    }
}

QVariant TrackListModel::sortValue(const TrackListEntry &entry, int column) const
{
    switch (column) {
    case Level:
        return numberOrNone(entry.level);
    case GroundSpeed:
        return numberOrNone(entry.groundSpeed);
    case Heading:
        return numberOrNone(entry.heading);
    case VerticalRate:
        return numberOrNone(entry.verticalRate);
    case State:
        return entry.state;
    case TrackNumber:
        return entry.trackNumber;
    default:
        return textOrNone(text(entry, column));
    }
}

QVariant TrackListModel::foreground(const TrackListEntry &entry) const
{
    if (!entry.alerts.isEmpty()) {
        return QBrush(alarmTextColor(QGuiApplication::palette()));
    }
    if (entry.state == Track::Coasting) {
        return QBrush(quietTextColor(QGuiApplication::palette()));
    }
    return {};
}

QVariant TrackListModel::flag(const TrackListEntry &entry) const
{
    if (entry.country.isEmpty()) {
        return {};
    }
    auto found = m_flags.find(entry.country);
    if (found == m_flags.end()) {
        found = m_flags.insert(entry.country, QPixmap(QString(":/flags/%1.png").arg(entry.country.toLower())));
    }
    return found->isNull() ? QVariant() : QVariant(*found);
}
