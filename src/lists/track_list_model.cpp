#include "lists/track_list_model.h"

#include "display/track_label_lines.h"
#include "display/track_label_text.h"
#include "geo/wgs84.h"
#include "widgets/text_colors.h"

#include <QBrush>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using Entry = TrackListEntry;
using Number = std::optional<double>;
using Field = RecordColumn<TrackListEntry>;

QString typeText(const Entry &entry)
{
    static const char *const texts[] = {"", QT_TRANSLATE_NOOP("TrackListModel", "PSR"),
        QT_TRANSLATE_NOOP("TrackListModel", "SSR"), QT_TRANSLATE_NOOP("TrackListModel", "PSR+SSR"),
        QT_TRANSLATE_NOOP("TrackListModel", "Mode S"), QT_TRANSLATE_NOOP("TrackListModel", "Mode S+PSR"),
        QT_TRANSLATE_NOOP("TrackListModel", "ADS-B"), QT_TRANSLATE_NOOP("TrackListModel", "MLAT"),
        QT_TRANSLATE_NOOP("TrackListModel", "SMR"), QT_TRANSLATE_NOOP("TrackListModel", "SDPS Mode S"),
        QT_TRANSLATE_NOOP("TrackListModel", "SDPS")};
    const Track::Type type = entry.track->type;
    return type == Track::Unknown ? QString() : TrackListModel::tr(texts[type]);
}

QString stateText(const Entry &entry)
{
    static const char *const texts[] = {QT_TRANSLATE_NOOP("TrackListModel", "Tentative"),
        QT_TRANSLATE_NOOP("TrackListModel", "Confirmed"), QT_TRANSLATE_NOOP("TrackListModel", "Coasting"),
        QT_TRANSLATE_NOOP("TrackListModel", "Terminated")};
    return TrackListModel::tr(texts[entry.track->state]);
}

Number knownNumber(bool valid, double number)
{
    return valid ? Number(number) : Number();
}

// With zeros in front up to the width; empty without a number.
QString figures(const Number &number, int width = 1)
{
    QString text;
    if (number) {
        tracklabel::appendNumber(text, int(*number), width);
    }
    return text;
}

Number level(const Entry &entry)
{
    return knownNumber(entry.track->levelValid, tracklabel::shownLevel(entry.track->level));
}

QString levelText(const Entry &entry)
{
    QString text = entry.track->onGround ? QStringLiteral("GND") : figures(level(entry), 3);
    if (!text.isEmpty()) {
        const qsizetype length = text.size();
        tracklabel::appendTrend(text, entry.track->verticalTrend);
        // The arrow's place is kept free in level flight, so that the figures stand under each other.
        text += text.size() == length ? QString(QChar(0x2007)) : QString();
    }
    return text;
}

Number speed(const Entry &entry)
{
    return knownNumber(entry.track->groundSpeedValid, tracklabel::shownSpeed(entry.track->groundSpeed));
}

Number heading(const Entry &entry)
{
    return knownNumber(entry.track->headingValid, tracklabel::shownHeading(entry.track->heading));
}

Number rate(const Entry &entry)
{
    return knownNumber(entry.track->verticalRateValid, entry.track->verticalRate);
}

Number selectedAltitude(const Entry &entry)
{
    return knownNumber(entry.track->selectedAltitudeValid, tracklabel::hundreds(entry.track->selectedAltitude));
}

bool isPlaced(const Entry &entry)
{
    return entry.track->geoCoordinateValid && entry.context->sensor.isValid();
}

Number distance(const Entry &entry)
{
    return isPlaced(entry)
        ? Number(entry.context->sensor.distanceTo(entry.track->geoCoordinate) / wgs84::MetresPerNauticalMile)
        : Number();
}

// North is 360, as in the read-outs.
Number bearing(const Entry &entry)
{
    return isPlaced(entry)
        ? Number((qRound(entry.context->sensor.azimuthTo(entry.track->geoCoordinate)) + 359) % 360 + 1)
        : Number();
}

Number age(const Entry &entry)
{
    const QDateTime &heard = entry.track->lastUpdate;
    const bool known = heard.isValid() && entry.context->time.isValid();
    return known ? Number(static_cast<double>(std::max<qint64>(0, heard.msecsTo(entry.context->time) / 1000)))
                 : Number();
}

QString alertText(const Entry &entry)
{
    return QString(entry.track->alertsString + QLatin1Char(' ') + trackMarks(*entry.track)).trimmed();
}

korvane::airdb::Country countryOf(const Entry &entry)
{
    return entry.context->addresses.getICAOAddrInfo(korvane::airdb::ICAOAddr(entry.track->icaoAddr)).country();
}

QString countryCode(const Entry &entry)
{
    return entry.track->icaoAddrValid ? countryOf(entry).isoCode2() : QString();
}

// Numbers stand at the right.
Field shownField(const char *key, const QString &title, const QString &explanation, const QString &widest,
    QString (*text)(const Entry &), Number (*number)(const Entry &) = nullptr)
{
    return {
        {QLatin1String(key), title, explanation, widest, number ? Qt::AlignRight : Qt::AlignLeft, true}, text, number};
}

Field hiddenField(const char *key, const QString &title, const QString &explanation, const QString &widest,
    QString (*text)(const Entry &), Number (*number)(const Entry &) = nullptr)
{
    Field field = shownField(key, title, explanation, widest, text, number);
    field.column.shownAtFirst = false;
    return field;
}

QList<Field> shownFields()
{
    return {
        shownField("callsign", TrackListModel::tr("Callsign"), TrackListModel::tr("Aircraft identification"),
            "WWWW9999",
            [](const Entry &entry) { return entry.track->callsignValid ? entry.track->callsign : QString(); }),
        shownField("squawk", TrackListModel::tr("Squawk"), TrackListModel::tr("Mode 3/A code"), "7777GS",
            [](const Entry &entry) { return entry.track->modeACodeValid ? entry.track->modeAString : QString(); }),
        shownField("fl", TrackListModel::tr("Level"), TrackListModel::tr("Flight level and vertical trend"),
            QString("000%1").arg(QChar(0x2191)), levelText, level),
        shownField(
            "speed", TrackListModel::tr("Speed"), TrackListModel::tr("Ground speed, knots"), "999",
            [](const Entry &entry) { return figures(speed(entry), 3); }, speed),
        shownField("alert", TrackListModel::tr("Alert"),
            TrackListModel::tr("Active safety-net alerts, emergencies (HIJ, RDO, EMG) and special pulse (SPI)"),
            "MSAW SPI", alertText),
        shownField("reg", TrackListModel::tr("Reg"),
            TrackListModel::tr("Country of registration, by the aircraft address"), "WWWWW", countryCode),
        shownField("type", TrackListModel::tr("Type"), TrackListModel::tr("What sees the track"),
            TrackListModel::tr("SDPS Mode S"), typeText),
    };
}

QList<Field> motionFields()
{
    return {
        hiddenField(
            "hdg", TrackListModel::tr("Hdg"), TrackListModel::tr("Track over ground, degrees"), "360",
            [](const Entry &entry) { return figures(heading(entry), 3); }, heading),
        hiddenField(
            "rate", TrackListModel::tr("Rate"), TrackListModel::tr("Vertical rate, feet per minute"), "-9999",
            [](const Entry &entry) { return (rate(entry) > 0.0 ? "+" : "") + figures(rate(entry)); }, rate),
        hiddenField(
            "sel", TrackListModel::tr("Sel"), TrackListModel::tr("Selected altitude, hundreds of feet"), "999",
            [](const Entry &entry) { return figures(selectedAltitude(entry), 3); }, selectedAltitude),
        hiddenField(
            "dist", TrackListModel::tr("Dist"), TrackListModel::tr("Distance from the sensor, nautical miles"), "999.9",
            [](const Entry &entry) {
                const Number miles = distance(entry);
                return miles ? QString::number(*miles, 'f', 1) : QString();
            },
            distance),
        hiddenField(
            "brg", TrackListModel::tr("Brg"), TrackListModel::tr("True bearing from the sensor, degrees"), "360",
            [](const Entry &entry) { return figures(bearing(entry), 3); }, bearing),
    };
}

QList<Field> recordFields()
{
    return {
        hiddenField(
            "age", TrackListModel::tr("Age"), TrackListModel::tr("Since the last report, seconds"), "9999",
            [](const Entry &entry) { return figures(age(entry)); }, age),
        hiddenField("state", TrackListModel::tr("State"), TrackListModel::tr("Life state"),
            TrackListModel::tr("Terminated"), stateText),
        hiddenField("address", TrackListModel::tr("Address"), TrackListModel::tr("24-bit aircraft address"), "AAAAAA",
            [](const Entry &entry) { return entry.track->icaoAddrValid ? entry.track->icaoAddrString : QString(); }),
        hiddenField(
            "number", TrackListModel::tr("Number"), TrackListModel::tr("Track number"), "99999",
            [](const Entry &entry) { return QString::number(entry.track->trackNumber); },
            [](const Entry &entry) { return Number(entry.track->trackNumber); }),
        hiddenField(
            "sensor", TrackListModel::tr("Sensor No."), TrackListModel::tr("The sensor's own track number"), "99999",
            [](const Entry &entry) {
                const unsigned int number = entry.track->sensorTrackNumber;
                return number != 0 ? QString::number(number) : QString();
            },
            [](const Entry &entry) {
                return knownNumber(entry.track->sensorTrackNumber != 0, entry.track->sensorTrackNumber);
            }),
    };
}

QVariant foreground(const TrackSnapshot &track)
{
    if (!track.alertsString.isEmpty() || track.emergency != Track::NoEmergency) {
        return QBrush(alarmTextColor(QGuiApplication::palette()));
    }
    return track.state == Track::Coasting ? QVariant(QBrush(quietTextColor(QGuiApplication::palette()))) : QVariant();
}

} // namespace

TrackListModel::TrackListModel(QObject *parent)
    : RecordTableModel(shownFields() + motionFields() + recordFields(), parent)
{
    Q_ASSERT(columnCount() == ColumnCount);
}

void TrackListModel::setSnapshot(const QSharedPointer<const DisplaySnapshot> &snapshot)
{
    std::vector<TrackListEntry> entries;
    if (snapshot) {
        m_context.time = snapshot->time;
        entries.reserve(static_cast<std::size_t>(snapshot->tracks.size()));
        for (const TrackSnapshot &track : snapshot->tracks) {
            entries.push_back({track.incarnationId, &track, &m_context});
        }
    }
    replaceRecords(std::move(entries));
    m_snapshot = snapshot; // until now rows may have pointed into the one before
}

QVariant TrackListModel::look(const TrackListEntry &entry, int column, int role) const
{
    switch (role) {
    case Qt::ForegroundRole:
        return foreground(*entry.track);
    case Qt::DecorationRole:
        return column == Country ? flag(entry) : QVariant();
    case Qt::ToolTipRole:
        return column == Country && entry.track->icaoAddrValid ? textOrNone(countryOf(entry).name()) : QVariant();
    default:
        return {};
    }
}

QVariant TrackListModel::flag(const TrackListEntry &entry) const
{
    const QString country = countryCode(entry);
    if (country.isEmpty()) {
        return {};
    }
    auto found = m_flags.find(country);
    if (found == m_flags.end()) {
        found = m_flags.insert(country, QPixmap(QString(":/flags/%1.png").arg(country.toLower())));
    }
    return found->isNull() ? QVariant() : QVariant(*found);
}
