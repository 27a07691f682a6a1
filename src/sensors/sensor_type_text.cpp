#include "sensors/sensor_type_text.h"

#include <QCoreApplication>

QString sensorTypeText(SensorType type)
{
    switch (type) {
    case UnknownSensor:
        return QCoreApplication::translate("SensorType", "Unknown");
    case RadarSensor:
        return QCoreApplication::translate("SensorType", "Radar");
    default:
        return sensorTypeFullName(type); // abbreviations, the same everywhere
    }
}
