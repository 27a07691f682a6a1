#pragma once

#include "app/log_level.h"
#include "asterix/asterix.h"
#include "tracking/sensor_info.h"
#include "tracking/track_manager.h"

#include <QObject>
#include <QSharedPointer>

class Projector;

// Turns the decoded reports of one sensor into tracks: association, position, identity, kinematics. It neither filters
// nor ages. One per open input, on the thread of its track manager.
class Tracker : public QObject {
    Q_OBJECT

public:
    // The projector is not owned and must outlive the tracker.
    Tracker(const QSharedPointer<TrackManager> &trackManager, Projector *projector, QObject *parent = nullptr);

    // The kind of sensor that it serves.
    virtual SensorInfo::Type type() const { return SensorInfo::UnknownSensor; }
    // Takes a decoded block; blocks of other categories and invalid blocks are ignored.
    virtual void procAsterixMessage(const _ast_datablock_t &block) = 0;

    // The tracker for the sensor's type; null for a null sensor and for a type without a tracker. There is one for
    // radars today.
    static QSharedPointer<Tracker> create(const QSharedPointer<SensorInfo> &sensor,
        const QSharedPointer<TrackManager> &trackManager, Projector *projector, QObject *parent = nullptr);

Q_SIGNALS:
    void message(LogLevel level, const QString &text);

protected:
    TrackManager &trackManager() const { return *m_trackManager; }
    // Sets the track's plane position from its WGS-84 position, if that is valid.
    void project(Track &track) const;

private:
    QSharedPointer<TrackManager> m_trackManager;
    Projector *m_projector;
};
