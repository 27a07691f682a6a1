#pragma once

#include "app/log_level.h"

#include <QDateTime>
#include <QString>

// The level's name, padded with blanks to eight characters so that log lines align.
QString logLevelLabel(LogLevel level);

// "[<label>][yyyy-MM-dd hh:mm:ss] <text>"
QString formatLogLine(LogLevel level, const QDateTime &localTime, const QString &text);

// True when a file "<executable>.dbg" stands beside the executable. Decided at the first call and kept.
bool debugModeMarked();

// Messages below this level are dropped.
constexpr LogLevel minimumLogLevel(bool debugMode)
{
    return debugMode ? LogLevel::Debug : LogLevel::Info;
}
