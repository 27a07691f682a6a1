#pragma once

#include "sensors/mlat_sensor_info.h"
#include "tracking/system_tracker.h"

// Tracks of a multilateration system, from ASTERIX category 20, or from category 10 as those of airports send it.
class MlatTracker final : public SystemTracker {
    Q_OBJECT

public:
    // The sensor's location is the origin of Cartesian positions.
    MlatTracker(const QSharedPointer<MlatSensorInfo> &sensor, const QSharedPointer<TrackManager> &trackManager,
        Projector *projector, QObject *parent = nullptr);

    SensorInfo::Type type() const override { return SensorInfo::MlatSensor; }
    void procAsterixMessage(const _ast_datablock_t &block) override;

private:
    // Of either category: what they have in common has the same names in both.
    template <typename Record>
    Taken procTargetReport(const Record &record);
    Taken procCat010Message(const _ast_datarecord_010_t &record);
    template <typename Record>
    static Identity identityOf(const Record &record);
    template <typename Record>
    void takeReport(Track &track, const Record &record, const QDateTime &now);
    void takeTrend(Track &track, const _ast_datarecord_020_t &record, std::optional<int> previousLevel);
    // Category 10 sends no trend: it is that of the rate.
    void takeTrend(Track &, const _ast_datarecord_010_t &, std::optional<int>) { }
    void compareTrend(const Track &track, int levelChange, const _ast_sacsic_t &code);
};
