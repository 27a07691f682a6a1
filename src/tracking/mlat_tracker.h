#pragma once

#include "sensors/mlat_sensor_info.h"
#include "tracking/system_tracker.h"

// Tracks of a multilateration system, from ASTERIX category 20.
class MlatTracker final : public SystemTracker {
    Q_OBJECT

public:
    // The sensor's location is the origin of Cartesian positions.
    MlatTracker(const QSharedPointer<MlatSensorInfo> &sensor, const QSharedPointer<TrackManager> &trackManager,
        Projector *projector, QObject *parent = nullptr);

    SensorInfo::Type type() const override { return SensorInfo::MlatSensor; }
    void procAsterixMessage(const _ast_datablock_t &block) override;

private:
    Taken procCat020Message(const _ast_datarecord_020_t &record);
    static Identity identityOf(const _ast_datarecord_020_t &record);
    void takeReport(Track &track, const _ast_datarecord_020_t &record, const QDateTime &now);
    void compareTrend(const Track &track, int levelChange, const _ast_sacsic_t &code);
};
