#pragma once

#include <QtGlobal>

// Where a report stands in the ReportLog; 0: nowhere.
using ReportLink = quint64;
