#pragma once

#include "sensors/sdps_sensor_info.h"
#include "tracking/system_tracker.h"

// System tracks of a surveillance data processing system, from ASTERIX category 62.
class SdpsTracker final : public SystemTracker {
    Q_OBJECT

public:
    // The sensor's location is the origin of Cartesian positions.
    SdpsTracker(const QSharedPointer<SdpsSensorInfo> &sensor, const QSharedPointer<TrackManager> &trackManager,
        Projector *projector, QObject *parent = nullptr);

    SensorInfo::Type type() const override { return SensorInfo::SdpsSensor; }
    void procAsterixMessage(const _ast_datablock_t &block) override;

    // For sources whose western longitudes arrive 180 degrees too small: adds 180 degrees to each negative longitude.
    // Off at first.
    bool correctLongitudeWrap() const { return m_correctLongitudeWrap; }
    void setCorrectLongitudeWrap(bool correct) { m_correctLongitudeWrap = correct; }

private:
    Taken procCat062Message(const _ast_datarecord_062_t &record);
    Identity identityOf(const _ast_datarecord_062_t &record) const;

    QSharedPointer<SdpsSensorInfo> m_sensor;
    bool m_correctLongitudeWrap = false;
};
