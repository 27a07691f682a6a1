#pragma once

#include "sensors/radar_sensor_info.h"
#include "tracking/tracker.h"

#include <span>

class AleniaSirMRadarDataMessage;
class AleniaSirMRadarNorthMarkerMessage;
class AleniaSirMRadarPlotRecord;
class AleniaSirMRadarTrackRecord;

// Tracks of an air surveillance radar, from ASTERIX categories 1 and 48; antenna position from 2 and 34. Both also from
// Alenia SIR-M messages.
class RadarTracker final : public Tracker {
    Q_OBJECT

public:
    // The sensor's location is the origin of all measured positions.
    RadarTracker(const QSharedPointer<RadarSensorInfo> &sensor, const QSharedPointer<TrackManager> &trackManager,
        Projector *projector, QObject *parent = nullptr);

    SensorInfo::Type type() const override { return SensorInfo::RadarSensor; }
    void procAsterixMessage(const _ast_datablock_t &block) override;
    void procModeSMessage(const std::shared_ptr<korvane::modes::ModeSMessage> &message) override { refuse(*message); }
    void procAleniaSirMMessage(const QSharedPointer<AleniaSirMRadarMessage> &message) override;

Q_SIGNALS:
    // A sector was crossed: degrees clockwise from north.
    void antennaRotated(double azimuthDegrees);
    void antennaNorthCrossed();

private:
    Taken procCat001Message(const _ast_datarecord_001_t &record);
    Taken procCat048Message(const _ast_datarecord_048_t &record);
    template <typename Record>
    Taken procAntennaMessage(const Record &record);

    // A target report that names its track; null: the store is full.
    template <typename Record>
    Taken takeTracked(const QSharedPointer<Track> &track, const Record &record, const Identity &identity,
        const std::optional<Place> &place, const QDateTime &now);
    void takeReport(Track &track, const _ast_datarecord_001_t &record, const QDateTime &now);
    void takeReport(Track &track, const _ast_datarecord_048_t &record, const QDateTime &now);
    Identity identityOf(const _ast_datarecord_048_t &record) const;

    // Nothing where the report has no position; Cartesian ones count in the unit, nautical miles. Reports are plots as
    // well.
    template <typename Record>
    std::optional<Place> takePlace(
        const Record &record, const Identity &identity, double cartesianUnit, const QDateTime &now);
    // In feet, of the report or else of its track; asked for only where it changes anything.
    template <typename Record>
    std::optional<int> levelForPlace(const Record &record, const Identity &identity, const QDateTime &now);
    // Slant range in metres and degrees clockwise from north, from the sensor; level in feet where it is known.
    Place polarPlace(double range, double bearing, std::optional<int> level) const;

    void procAleniaSirMNorthMarker(const AleniaSirMRadarNorthMarkerMessage &marker);
    void procAleniaSirMDataMessage(const AleniaSirMRadarDataMessage &data);
    Taken procAleniaSirMPlotRecord(const AleniaSirMRadarPlotRecord &record);
    Taken procAleniaSirMTrackRecord(const AleniaSirMRadarTrackRecord &record);
    void handInSirM(
        const AleniaSirMRadarDataMessage &data, std::span<const unsigned char> record, const Taken &taken) const;

    QSharedPointer<RadarSensorInfo> m_sensor;
    PolarOrigin m_site;
    bool m_northNotSynchronized = false; // as the last north marker said
    bool m_clockNotSynchronized = false;
};
