#pragma once

#include "assessment/sensor_report.h"

// A report as a document that needs nothing beside it. Both need a GUI application, on any platform.
namespace assessment {

// One page with inline SVG.
QByteArray toHtml(const AssessmentReport &report);
// A4.
QByteArray toPdf(const AssessmentReport &report);

// As the file's ending says, .html, .htm or .pdf. Empty: written; otherwise why not, one sentence.
QString writeReport(const AssessmentReport &report, const QString &fileName);

} // namespace assessment
