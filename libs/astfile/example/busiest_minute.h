#pragma once

#include <QString>

// One line on the minute of a recording in which most messages came.
QString busiestMinute(const QString &fileName);
