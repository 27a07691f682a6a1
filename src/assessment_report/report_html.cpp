#include "assessment/assessment_text.h"
#include "assessment_report/assessment_charts.h"
#include "assessment_report/report_document.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QPainter>
#include <QSvgGenerator>

namespace {

constexpr QSize ChartSize(460, 320);

constexpr char Style[] = R"(
body { font: 14px/1.45 system-ui, sans-serif; color: #202428; background: #fff; max-width: 1020px; margin: 2em auto;
       padding: 0 1em; }
h1 { font-size: 1.6em; margin-bottom: 0; } h2 { font-size: 1.25em; margin: 2em 0 .4em; border-bottom: 2px solid #2166ac; }
h3 { font-size: 1em; margin: 1.2em 0 .2em; }
p.data { color: #586069; margin-top: .2em; }
p.trouble { border-left: 4px solid #b2182b; padding: .4em .8em; background: #fbeeee; }
table { border-collapse: collapse; font-variant-numeric: tabular-nums; }
td, th { padding: .15em 1.2em .15em 0; text-align: left; vertical-align: top; }
table.grid td, table.grid th { text-align: right; border-bottom: 1px solid #e4e7ea; }
td.value { white-space: nowrap; font-weight: 600; } td.remark { color: #586069; }
.columns { display: flex; flex-wrap: wrap; gap: 0 2.5em; }
figure { margin: 1em 0; break-inside: avoid; } figcaption { font-weight: 600; }
footer { margin-top: 3em; color: #586069; font-size: .9em; }
)";

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Assessment)
};

QString element(const char *name, const QString &text, const char *cssClass = nullptr)
{
    const QString attribute = cssClass ? QStringLiteral(" class=\"%1\"").arg(QLatin1String(cssClass)) : QString();
    return QStringLiteral("<%1%2>%3</%1>").arg(QLatin1String(name), attribute, text);
}

QString escaped(const char *name, const QString &text, const char *cssClass = nullptr)
{
    return element(name, text.toHtmlEscaped(), cssClass);
}

// Without the prologue of a file of its own.
QString svgOf(assessment::Chart chart, const SensorReport &report)
{
    QByteArray svg;
    QBuffer buffer(&svg);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(ChartSize);
    generator.setViewBox(QRect(QPoint(), ChartSize));
    generator.setResolution(96);
    QPainter painter(&generator);
    QFont font(QStringLiteral("sans-serif"));
    font.setPixelSize(11);
    painter.setFont(font);
    assessment::paintChart(painter, QRect(QPoint(), ChartSize), chart, report, ChartLook());
    painter.end();
    return QString::fromUtf8(svg.mid(svg.indexOf("<svg")));
}

QString tableHtml(const assessment::Table &table)
{
    QString rows;
    for (const assessment::Row &row : table.rows) {
        rows += element(
            "tr", escaped("td", row.name) + escaped("td", row.value, "value") + escaped("td", row.remark, "remark"));
    }
    return QStringLiteral("<div>%1%2</div>\n").arg(escaped("h3", table.title), element("table", rows));
}

QString rangeTableHtml(const SensorReport &sensor)
{
    const QList<assessment::RangeRow> rows = assessment::rangeRows(sensor.detection);
    if (rows.isEmpty()) {
        return {};
    }
    QString html;
    for (const QString &heading : assessment::rangeHeadings()) {
        html += escaped("th", heading);
    }
    html = element("tr", html);
    for (const assessment::RangeRow &row : rows) {
        html += element("tr",
            escaped("td", row.range) + escaped("td", row.looks) + escaped("td", row.any) + escaped("td", row.primary)
                + escaped("td", row.secondary) + escaped("td", row.falsePlots));
    }
    return escaped("h3", Text::tr("Detection by range")) + element("table", html, "grid");
}

QString sensorHtml(const SensorReport &sensor)
{
    QString html = escaped("h2", sensor.title());
    if (!sensor.trouble.isEmpty()) {
        html += escaped("p", sensor.trouble, "trouble");
    }
    QString tables;
    for (const assessment::Table &table : assessment::tablesOf(sensor)) {
        tables += tableHtml(table);
    }
    html += element("div", tables, "columns");
    QString charts;
    for (const assessment::Chart chart : assessment::chartsOf(sensor)) {
        charts +=
            element("figure", escaped("figcaption", assessment::chartTitle(chart)) + svgOf(chart, sensor)) + u'\n';
    }
    return html + element("div", charts, "columns") + rangeTableHtml(sensor);
}

} // namespace

QByteArray assessment::toHtml(const AssessmentReport &report)
{
    const QString title = Text::tr("Sensor check of %1").arg(report.source);
    QString body = escaped("h1", title) + escaped("p", describeData(report), "data");
    if (report.sensors.isEmpty()) {
        body += escaped("p", Text::tr("It holds no reports of radars (CAT001, CAT002, CAT034, CAT048)."), "trouble");
    }
    for (const SensorReport &sensor : report.sensors) {
        body += sensorHtml(sensor);
    }
    QString notes = escaped("h3", Text::tr("Methods"));
    for (const QString &method : methods()) {
        notes += escaped("p", method);
    }
    return QStringLiteral("<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\">%1<style>%2</style></head>\n<body>%3%4"
                          "</body></html>\n")
        .arg(escaped("title", title), QLatin1String(Style), body, element("footer", notes))
        .toUtf8();
}
