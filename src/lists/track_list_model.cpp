#include "lists/track_list_model.h"

#include "display/track_label_lines.h"
#include "tracking/track.h"
#include "widgets/text_colors.h"

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>

#include <cmath>

namespace {

QString typeText(Track::Type type)
{
    static const char *const texts[] = {"", QT_TRANSLATE_NOOP("TrackListModel", "PSR"),
        QT_TRANSLATE_NOOP("TrackListModel", "SSR"), QT_TRANSLATE_NOOP("TrackListModel", "PSR+SSR"),
        QT_TRANSLATE_NOOP("TrackListModel", "Mode S"), QT_TRANSLATE_NOOP("TrackListModel", "Mode S+PSR"),
        QT_TRANSLATE_NOOP("TrackListModel", "ADS-B"), QT_TRANSLATE_NOOP("TrackListModel", "MLAT"),
        QT_TRANSLATE_NOOP("TrackListModel", "SMR"), QT_TRANSLATE_NOOP("TrackListModel", "SDPS Mode S"),
        QT_TRANSLATE_NOOP("TrackListModel", "SDPS")};
    return type == Track::Unknown ? QString() : TrackListModel::tr(texts[type]);
}

QString stateText(Track::State state)
{
    static const char *const texts[] = {QT_TRANSLATE_NOOP("TrackListModel", "Tentative"),
        QT_TRANSLATE_NOOP("TrackListModel", "Confirmed"), QT_TRANSLATE_NOOP("TrackListModel", "Coasting"),
        QT_TRANSLATE_NOOP("TrackListModel", "Terminated")};
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

QVariant numberOrNone(const std::optional<int> &number)
{
    return number ? QVariant(*number) : QVariant();
}

} // namespace

// In the order of Column.
QList<ListColumn> TrackListModel::makeColumns()
{
    return {
        {tr("Callsign"), tr("Aircraft identification"), "WWWW9999"},
        {tr("Reg"), tr("Country of registration, by the aircraft address"), "WWWWWWW"},
        {tr("Squawk"), tr("Mode 3/A code"), "7777GS"},
        {tr("Level"), tr("Flight level and vertical trend"), QString("000%1").arg(QChar(0x2191)), Qt::AlignRight},
        {tr("Speed"), tr("Ground speed, knots"), "9999", Qt::AlignRight},
        {tr("Hdg"), tr("Track over ground, degrees"), "360", Qt::AlignRight},
        {tr("Rate"), tr("Vertical rate, feet per minute"), "-9999", Qt::AlignRight},
        {tr("Type"), tr("What sees the track"), tr("SDPS Mode S")},
        {tr("State"), tr("Life state"), tr("Terminated")},
        {tr("Address"), tr("24-bit aircraft address"), "AAAAAA"},
        {tr("Number"), tr("Track number"), "99999", Qt::AlignRight},
        {tr("Alert"), tr("Active safety-net alerts, emergencies (HIJ, RDO, EMG) and special pulse (SPI)"), "MSAW STCA"},
    };
}

TrackListModel::TrackListModel(QObject *parent) : RecordTableModel(makeColumns(), parent)
{
    Q_ASSERT(columnCount() == ColumnCount);
}

QVariant TrackListModel::look(const TrackListEntry &entry, int column, int role) const
{
    switch (role) {
    case Qt::ForegroundRole:
        return foreground(entry);
    case Qt::DecorationRole:
        return column == Country ? flag(entry) : QVariant();
    case Qt::ToolTipRole:
        return column == Country ? textOrNone(entry.countryName) : QVariant();
    default:
        return {};
    }
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
    entry.marks = trackMarks(track);
    entry.inDistress = track.emergency != Track::NoEmergency;
    return entry;
}

void TrackListModel::setTracks(const QList<TrackSnapshot> &tracks)
{
    showSnapshots(tracks, [this](const TrackSnapshot &track) { return entryFor(track); });
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
        return QStringList({entry.alerts, entry.marks}).join(' ').trimmed();
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
        return RecordTableModel::sortValue(entry, column);
    }
}

QVariant TrackListModel::foreground(const TrackListEntry &entry) const
{
    if (!entry.alerts.isEmpty() || entry.inDistress) {
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
