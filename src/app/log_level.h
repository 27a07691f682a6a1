#pragma once

#include <QMetaType>

// Severity carried by every message of the application.
enum class LogLevel { None = 0, Debug = 1, Info = 2, Warning = 3, Critical = 4, Panic = 5 };

Q_DECLARE_METATYPE(LogLevel)
