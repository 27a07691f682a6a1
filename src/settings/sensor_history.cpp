#include "settings/sensor_history.h"

#include "sensors/sensor_manager.h"

SensorHistory::SensorHistory(SensorManager *sensors) : m_sensors(sensors), m_saved(sensors->sensors()) { }

bool SensorHistory::change(const Records &records)
{
    const Records before = m_sensors->sensors();
    if (records == before) {
        return false;
    }
    m_before.append(before);
    m_sensors->setSensors(records);
    return true;
}

void SensorHistory::undo()
{
    if (canUndo()) {
        m_sensors->setSensors(m_before.takeLast());
    }
}

bool SensorHistory::changed() const
{
    return m_sensors->sensors() != m_saved;
}

void SensorHistory::noteSaved()
{
    m_saved = m_sensors->sensors();
}

void SensorHistory::discard()
{
    m_sensors->setSensors(m_saved);
    m_before.clear();
}
