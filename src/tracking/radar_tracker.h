#pragma once

#include "tracking/radar_sensor_info.h"
#include "tracking/tracker.h"

// Tracks of an air surveillance radar, from ASTERIX categories 1 and 48; antenna position from 2 and 34.
class RadarTracker final : public Tracker {
    Q_OBJECT

public:
    // The sensor's location is the origin of all measured positions.
    RadarTracker(const QSharedPointer<RadarSensorInfo> &sensor, const QSharedPointer<TrackManager> &trackManager,
        Projector *projector, QObject *parent = nullptr);

    SensorInfo::Type type() const override { return SensorInfo::RadarSensor; }
    void procAsterixMessage(const _ast_datablock_t &block) override;

Q_SIGNALS:
    // A sector was crossed: degrees clockwise from north.
    void antennaRotated(double azimuthDegrees);
    void antennaNorthCrossed();

private:
    void procCat001Message(const _ast_datarecord_001_t *record);
    void procCat002Message(const _ast_datarecord_002_t *record);
    void procCat034Message(const _ast_datarecord_034_t *record);
    void procCat048Message(const _ast_datarecord_048_t *record);
    template <typename Record>
    void procAntennaMessage(const Record *record);

    // The report's track, new where it is the first of an aircraft. Null when the report names none, which is logged,
    // or no track number is free.
    QSharedPointer<Track> associate(const _ast_datarecord_001_t &record);
    QSharedPointer<Track> associate(const _ast_datarecord_048_t &record, const QDateTime &now);
    QSharedPointer<Track> findByNumber(unsigned int number);
    QSharedPointer<Track> findByAddress(unsigned int address, unsigned int number, const QDateTime &now);
    bool isNumberInUse(const Track &track, const QDateTime &now) const;

    // Nautical miles and degrees clockwise from north, from the sensor.
    void place(Track &track, double range, double bearing) const;

    QSharedPointer<RadarSensorInfo> m_sensor;
};
