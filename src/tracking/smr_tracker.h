#pragma once

#include "sensors/smr_sensor_info.h"
#include "tracking/tracker.h"

// Tracks of a surface movement radar, from ASTERIX category 10. All of them are on the ground.
class SmrTracker final : public Tracker {
    Q_OBJECT

public:
    // The sensor's location is the origin of the measured positions.
    SmrTracker(const QSharedPointer<SmrSensorInfo> &sensor, const QSharedPointer<TrackManager> &trackManager,
        Projector *projector, QObject *parent = nullptr);

    SensorInfo::Type type() const override { return SensorInfo::SmrSensor; }
    void procAsterixMessage(const _ast_datablock_t &block) override;
    void procModeSMessage(const std::shared_ptr<korvane::modes::ModeSMessage> &message) override { refuse(*message); }

private:
    Taken procCat010Message(const _ast_datarecord_010_t &record);
    // Nothing where the report has no position.
    std::optional<Place> placeOfReport(const _ast_datarecord_010_t &record) const;

    PolarOrigin m_site;
};
