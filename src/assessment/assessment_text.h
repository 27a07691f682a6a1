#pragma once

#include "assessment/sensor_report.h"

#include <QJsonArray>
#include <QJsonObject>

// Reports in words and figures. Everything that shows them takes its texts from here.
namespace assessment {

struct Row {
    QString name;
    QString value;
    QString remark; // maybe empty
};
struct Table {
    QString title;
    QList<Row> rows;
};

// What a sensor's report says but its detection by range and azimuth, in tables of a subject each.
QList<Table> tablesOf(const SensorReport &report);

// By ranges: kilometres and miles, looks and the probabilities of detection.
struct RangeRow {
    QString range;
    QString looks;
    QString any;
    QString primary;
    QString secondary;
    QString falsePlots;
};
QList<RangeRow> rangeRows(const DetectionReport &report);
QStringList rangeHeadings();

// "ADS-B (CAT021)".
QString nameOf(ReferenceKind kind);
// "2025-06-01 06:00:00 UTC, 10 minutes, 12345 records" as far as it is known.
QString describeData(const AssessmentReport &report);
// The methods by which all of this is found, a sentence or two each.
QStringList methods();

// Everything as plain text, 100 columns.
QString toText(const AssessmentReport &report);
// Everything but samples, in SI units and degrees.
QJsonObject toJson(const AssessmentReport &report);

} // namespace assessment
