#pragma once

#include "traffic/earth.h"

#include "asterix/asterix.h"
#include "sirm/alenia_sir_m_radar_decoder.h"

#include <QByteArray>
#include <QGeoCoordinate>
#include <QTest>

#include <cmath>
#include <functional>
#include <optional>

// What a report of any format says of a target; nothing where it does not say it.
struct ReportedTarget {
    std::optional<QGeoCoordinate> position;
    std::optional<double> altitude; // feet
    std::optional<double> speed; // knots
    std::optional<double> track; // degrees
    std::optional<double> verticalRate; // feet per minute
    std::optional<double> selectedAltitude; // feet
    std::optional<unsigned> address;
    std::optional<unsigned> squawk;
    QByteArray callsign;
    unsigned trackNumber = 0;
    bool coasting = false;
    bool last = false;
};

using TakeTarget = std::function<void(const ReportedTarget &)>;

inline QGeoCoordinate atPolar(const QGeoCoordinate &site, double metres, double azimuth)
{
    return site.atDistanceAndAzimuth(metres, azimuth);
}

inline QGeoCoordinate atPlane(const QGeoCoordinate &site, double east, double north)
{
    return atPolar(site, std::hypot(east, north), std::atan2(east, north) / Earth::radians(1));
}

inline void setVelocity(ReportedTarget &target, double east, double north)
{
    target.speed = std::hypot(east, north) * 3600 / 1852;
    target.track = Earth::normalized(std::atan2(east, north) / Earth::radians(1));
}

template <typename Item, typename Value>
std::optional<double> numberOf(const Item &item, Value value)
{
    return item.present ? std::optional<double>(value) : std::nullopt;
}

inline ReportedTarget reportOf021(const _ast_datarecord_t &record)
{
    ReportedTarget target;
    const auto position = ast_datarecord_get_wgs84coord(record);
    if (position.present) {
        target.position = QGeoCoordinate(position.latitude, position.longitude);
    }
    const auto level = ast_datarecord_get_flightlevel(record);
    const auto speed = ast_datarecord_get_speed(record);
    const auto heading = ast_datarecord_get_heading(record);
    const auto rate = ast_datarecord_get_vrate(record);
    const auto selected = ast_datarecord_021_get_selaltitude(record);
    const auto squawk = ast_datarecord_021_get_squawk(record);
    target.altitude = numberOf(level, level.altitude);
    target.speed = numberOf(speed, speed.speed);
    target.track = numberOf(heading, heading.heading);
    target.verticalRate = numberOf(rate, rate.rate);
    target.selectedAltitude = numberOf(selected, selected.altitude);
    target.address = ast_datarecord_get_icaoaddr(record).address;
    if (squawk.present) {
        target.squawk = squawk.code;
    }
    target.callsign = ast_datarecord_get_callsign(record).text;
    return target;
}

inline ReportedTarget reportOf020(const _ast_datarecord_t &generic, const QGeoCoordinate &site)
{
    _ast_datarecord_020_t record;
    ast_datarecord_020_disassemble(&record, generic);
    ReportedTarget target;
    if (record.i042.present) {
        target.position = atPlane(site, record.i042.x, record.i042.y);
    }
    if (record.i041.present) {
        target.position = QGeoCoordinate(record.i041.latitude, record.i041.longitude);
    }
    target.altitude = numberOf(record.i090, record.i090.flightLevel * 100);
    setVelocity(target, record.i202.vx, record.i202.vy);
    if (record.i220.present) {
        target.address = record.i220.address;
    }
    target.squawk = record.i070.code;
    target.callsign = record.i245.text;
    if (record.i250.present) {
        target.selectedAltitude = ast_bds_40_decode(record.i250.octets).mcpAltitude;
        target.verticalRate = ast_bds_60_decode(record.i250.octets + 8).baroRate;
    }
    target.trackNumber = record.i161.trackNumber;
    target.coasting = record.i170.cst;
    target.last = record.i170.tre;
    return target;
}

inline ReportedTarget reportOf062(const _ast_datarecord_t &generic, const QGeoCoordinate &site)
{
    _ast_datarecord_062_t record;
    ast_datarecord_062_disassemble(&record, generic);
    ReportedTarget target;
    if (record.i100.present) {
        target.position = atPlane(site, record.i100.x, record.i100.y);
    }
    if (record.i105.present) {
        target.position = QGeoCoordinate(record.i105.latitude, record.i105.longitude);
    }
    target.altitude = numberOf(record.i136, record.i136.level * 25);
    setVelocity(target, record.i185.vx, record.i185.vy);
    target.verticalRate = numberOf(record.i220, record.i220.rate);
    if (record.i380.addressPresent) {
        target.address = record.i380.address;
    }
    if (record.i380.selectedAltitudePresent) {
        target.selectedAltitude = record.i380.selectedAltitude;
    }
    if (record.i060.present) {
        target.squawk = record.i060.code;
    }
    target.callsign = record.i390.callsignPresent ? record.i390.callsign : "";
    target.trackNumber = record.i040.trackNumber;
    target.coasting = record.i080.cst;
    target.last = record.i080.tse;
    return target;
}

inline ReportedTarget reportOf010(const _ast_datarecord_010_t &record, const QGeoCoordinate &site)
{
    ReportedTarget target;
    target.position = atPolar(site, record.i040.rho, record.i040.theta);
    target.speed = record.i200.groundSpeed;
    target.track = record.i200.heading;
    target.trackNumber = record.i161.trackNumber;
    target.last = record.i170.tre;
    return target;
}

// Positions are slant ones: the height goes off again.
inline ReportedTarget reportOfSirM(const AleniaSirMRadarTrackRecord &record, const QGeoCoordinate &site)
{
    ReportedTarget target;
    target.trackNumber = record.trackNumber();
    target.coasting = record.coasting();
    target.last = record.trackEnd();
    if (record.modeCHeightValid()) {
        target.altitude = record.modeCHeightImperial();
    }
    const double slant = std::hypot(record.x(), record.y()) * 1000;
    const double height = target.altitude.value_or(0) * Earth::MetresPerFoot;
    const double ground = std::sqrt(std::max(slant * slant - height * height, 0.0));
    target.position = atPolar(site, ground, std::atan2(record.x(), record.y()) / Earth::radians(1));
    if (record.velocityValid()) {
        setVelocity(target, record.vx(), record.vy());
    }
    if (record.modeACodeValid()) {
        target.squawk = record.modeACode();
    }
    if (record.rateOfClimbDescentValid()) {
        target.verticalRate = record.rateOfClimbDescent() * 60 / Earth::MetresPerFoot;
    }
    return target;
}

// Calls take for each record of the blocks.
inline void eachRecord(const QByteArray &datagram, const std::function<void(int, const _ast_datarecord_t &)> &take)
{
    const auto *data = reinterpret_cast<const unsigned char *>(datagram.constData());
    _ast_datablock_t block;
    for (std::size_t at = 0; at < static_cast<std::size_t>(datagram.size()); at += block.size) {
        const bool whole =
            ast_datablock_smart_decode(&block, data + at, static_cast<std::size_t>(datagram.size()) - at);
        QVERIFY2(whole && block.valid, korvane::asterix::errorText(block.error));
        for (const _ast_datarecord_t &record : block.records) {
            take(static_cast<int>(block.category), record);
        }
    }
}

inline void eachTarget(const QByteArray &datagram, const QGeoCoordinate &site, bool isSirM, const TakeTarget &take)
{
    if (isSirM) {
        const auto *octets = reinterpret_cast<const unsigned char *>(datagram.constData());
        const auto decoded = AleniaSirMRadarDecoder::decode(octets, static_cast<std::size_t>(datagram.size()));
        QVERIFY2(decoded.valid(), AleniaSirMRadarDecoder::errorText(decoded.error));
        if (const auto *data = dynamic_cast<const AleniaSirMRadarDataMessage *>(decoded.message.get())) {
            for (const AleniaSirMRadarTrackRecord &record : data->trackRecords()) {
                take(reportOfSirM(record, site));
            }
        }
        return;
    }
    eachRecord(datagram, [&](int category, const _ast_datarecord_t &record) {
        _ast_datarecord_010_t surface;
        ast_datarecord_010_disassemble(&surface, record);
        if (category == 21) {
            take(reportOf021(record));
        } else if (category == 20) {
            take(reportOf020(record, site));
        } else if (category == 62) {
            take(reportOf062(record, site));
        } else if (surface.i000.type == 1) {
            take(reportOf010(surface, site));
        }
    });
}
