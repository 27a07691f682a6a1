#pragma once

#include "assessment/sensor_report.h"
#include "assessment_report/chart_frame.h"
#include "assessment_report/detection_scale.h"

#include <QList>

class QPainter;

// The pictures of a sensor's report. All of them are painted into any rectangle, in the font of the painter; sizes are
// meant for some 420 by 300 units.
namespace assessment {

enum class Chart { DetectionMap, DetectionByRange, RangeErrors, AzimuthErrors, Rotation };

// Those that have something to show.
QList<Chart> chartsOf(const SensorReport &report);
QString chartTitle(Chart chart);
void paintChart(QPainter &painter, const QRectF &area, Chart chart, const SensorReport &report, const ChartLook &look);

} // namespace assessment
