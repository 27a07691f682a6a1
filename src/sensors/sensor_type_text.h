#pragma once

#include "sensors/sensor_type.h"

// The kind of sensor in the operator's language. What stands in files is sensorTypeFullName().
QString sensorTypeText(SensorType type);
