#include "sensors/mlat_sensor_info.h"

#include "sensors/json_reader.h"

QJsonObject MlatSensorInfo::jsonObject() const
{
    auto object = SensorInfo::jsonObject();
    object[QLatin1String("coverage")] = static_cast<qint64>(m_coverage);
    return object;
}

bool MlatSensorInfo::setJsonObject(const QJsonObject &object)
{
    if (!SensorInfo::setJsonObject(object)) {
        return false;
    }
    auto values = reader(object);
    m_coverage = values.unsignedInteger("coverage", m_coverage);
    return true;
}
