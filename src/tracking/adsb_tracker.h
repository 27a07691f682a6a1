#pragma once

#include "modes/adsb_tracker.h"
#include "sensors/adsb_sensor_info.h"
#include "tracking/tracker.h"

// Tracks of an ADS-B ground station network, from ASTERIX category 21 and from the aircraft's own Mode S messages. They
// are known by their aircraft addresses.
class AdsbTracker final : public Tracker {
    Q_OBJECT

public:
    // The sensor's location tells apart the places where an aircraft on the ground could be.
    AdsbTracker(const QSharedPointer<AdsbSensorInfo> &sensor, const QSharedPointer<TrackManager> &trackManager,
        Projector *projector, QObject *parent = nullptr);

    SensorInfo::Type type() const override { return SensorInfo::AdsbSensor; }
    void procAsterixMessage(const _ast_datablock_t &block) override;
    void procModeSMessage(const std::shared_ptr<korvane::modes::ModeSMessage> &message) override;

    // With the check on, an altitude that differs by more than maxChange feet from the last one is not taken while that
    // is no older than checkingTime seconds. Off at first; the spelling is the library's.
    void setAltituteBaroChecking(bool enable, unsigned int checkingTime, unsigned int maxChange);
    // Seconds of silence after which what the library knows of an aircraft is dropped; 10 at first.
    void setNoUpdatedTargetDeletionTime(unsigned int seconds) { m_noUpdatedTargetDeletionTime = seconds; }

private:
    Taken procCat021Record(const _ast_datarecord_t &record);
    Taken takeMessage(const std::shared_ptr<korvane::modes::ModeSMessage> &message);
    // Nothing where the report has no position. Reports are plots as well.
    std::optional<Place> takePlace(const _ast_datarecord_t &record, const QDateTime &now) const;
    // Null when no track number is free.
    QSharedPointer<Track> trackOf(unsigned int address);
    void takeTarget(Track &track, const korvane::modes::ADSBTarget &target) const;
    void cleanUpTargets();
    void reportRefusedPositions();

    korvane::modes::ADSBTracker m_modesTracker;
    unsigned int m_noUpdatedTargetDeletionTime = 10;
    QDateTime m_lastTargetCleanup; // of the last Mode S message
    unsigned long long m_reportedRefusals = 0; // of positions out of range
    QDateTime m_lastRefusalReport;
};
