#pragma once

#include "sensors/sensor_info.h"

#include <QList>
#include <QSharedPointer>

class SensorManager;

// What has been done to the sensor records since they were read or saved, step by step, and the way back. Records are
// replaced, never changed, so that pointers to them keep the old state.
class SensorHistory final {
public:
    using Records = QList<QSharedPointer<SensorInfo>>;

    // The manager must outlive this object. Its records count as saved.
    explicit SensorHistory(SensorManager *sensors);

    // Puts these records, in this order, in the place of those that are there; one step. False if they are the same.
    bool change(const Records &records);
    bool canUndo() const { return !m_before.isEmpty(); }
    void undo();

    // Whether the records differ from the saved ones, in their order too.
    bool changed() const;
    // The records as they are now are on disk.
    void noteSaved();
    // Back to those, for good.
    void discard();

private:
    SensorManager *m_sensors;
    Records m_saved;
    QList<Records> m_before; // each step, the latest last
};
