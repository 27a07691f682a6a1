#include "assessment_report/assessment_charts.h"

#include "geo/wgs84.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

using assessment::Chart;

constexpr double Miles = 1.0 / wgs84::MetresPerNauticalMile;
constexpr double RingMiles = DetectionGrid::RingWidth * Miles;
constexpr double DotRadius = 0.9;
constexpr int MostDots = 2000;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Assessment)
};

const BiasReport *shownBias(const SensorReport &report)
{
    const auto solved =
        std::find_if(report.biases.begin(), report.biases.end(), [](const BiasReport &bias) { return bias.solved; });
    return solved == report.biases.end() ? nullptr : &*solved;
}

// The wedge of a cell, north up.
QPainterPath cellPath(const QPointF &center, double inner, double outer, int sector)
{
    const double width = 360.0 / DetectionGrid::Sectors;
    const double start = 90.0 - width * sector; // counterclockwise from east
    const QRectF outerBox(center.x() - outer, center.y() - outer, 2 * outer, 2 * outer);
    const QRectF innerBox(center.x() - inner, center.y() - inner, 2 * inner, 2 * inner);
    QPainterPath path;
    path.arcMoveTo(outerBox, start);
    path.arcTo(outerBox, start, -width);
    path.arcTo(innerBox, start - width, width);
    path.closeSubpath();
    return path;
}

void paintKey(QPainter &painter, const QRectF &area, const ChartLook &look)
{
    constexpr double Line = 16.0;
    const double top = area.bottom() - Line * static_cast<double>(detectionscale::Steps.size());
    for (std::size_t i = 0; i < detectionscale::Steps.size(); ++i) {
        const std::size_t step = detectionscale::Steps.size() - 1 - i;
        const double y = top + Line * static_cast<double>(i);
        painter.fillRect(QRectF(area.left(), y + 3, 12, 10), QColor(detectionscale::Steps[step].color));
        painter.setPen(look.ink);
        painter.drawText(QRectF(area.left() + 18, y, area.width() - 18, Line), Qt::AlignLeft | Qt::AlignVCenter,
            detectionscale::stepText(step));
    }
}

void paintRings(QPainter &painter, const QPointF &center, double radius, int rings, const ChartLook &look)
{
    const int every = rings > 12 ? 4 : rings > 6 ? 2 : 1;
    painter.setBrush(Qt::NoBrush);
    for (int ring = every; ring <= rings; ring += every) {
        const double r = radius * ring / rings;
        painter.setPen(QPen(look.grid, 0.8));
        painter.drawEllipse(center, r, r);
    }
    painter.setPen(look.ink);
    for (int ring = every; ring <= rings; ring += every) {
        const double r = radius * ring / rings;
        const QRectF place(center.x() + 2, center.y() - r - 13, 40, 13);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignBottom, QString::number(ring * RingMiles, 'f', 0));
    }
}

void paintDetectionMap(QPainter &painter, const QRectF &area, const SensorReport &report, const ChartLook &look)
{
    const DetectionGrid &grid = report.detection.grid;
    const int rings = std::max(grid.usedRings(), 1);
    constexpr double KeyWidth = 132.0;
    const double radius = std::min(area.width() - KeyWidth, area.height() - 26.0) / 2;
    const QPointF center(area.left() + radius + 4, area.top() + 18 + radius);
    for (int ring = 0; ring < rings; ++ring) {
        for (int sector = 0; sector < DetectionGrid::Sectors; ++sector) {
            const auto probability = detectionscale::probability(grid.cell(ring, sector), DetectionKind::Any);
            if (probability) {
                painter.fillPath(cellPath(center, radius * ring / rings, radius * (ring + 1) / rings, sector),
                    detectionscale::color(*probability));
            }
        }
    }
    paintRings(painter, center, radius, rings, look);
    painter.drawText(
        QRectF(center.x() - 44, center.y() - radius - 14, 40, 14), Qt::AlignRight | Qt::AlignBottom, Text::tr("N"));
    paintKey(painter, QRectF(area.right() - KeyWidth + 6, area.top(), KeyWidth - 6, area.height() - 14), look);
    painter.drawText(QRectF(area.right() - KeyWidth + 6, area.bottom() - 14, KeyWidth - 6, 14), Qt::AlignLeft,
        Text::tr("rings in NM"));
}

struct Series {
    QString name;
    QColor color;
    DetectionKind kind;
};

void paintSeriesKey(QPainter &painter, const QRectF &plot, const QList<Series> &all, const ChartLook &look)
{
    double y = plot.bottom() - 6 - 14.0 * static_cast<double>(all.size());
    for (const Series &series : all) {
        painter.setPen(QPen(series.color, 2));
        painter.drawLine(QPointF(plot.left() + 8, y + 7), QPointF(plot.left() + 26, y + 7));
        painter.setPen(look.ink);
        painter.drawText(QRectF(plot.left() + 32, y, 140, 14), Qt::AlignLeft | Qt::AlignVCenter, series.name);
        y += 14;
    }
}

// The primary radar's ends with its range.
void paintSeries(QPainter &painter, const ChartFrame &frame, const DetectionReport &detection, const Series &series)
{
    const DetectionGrid &grid = detection.grid;
    const int primaryRings = static_cast<int>(std::ceil(detection.primaryRange / DetectionGrid::RingWidth));
    const int rings = series.kind == DetectionKind::Primary ? primaryRings : grid.usedRings();
    QPainterPath line;
    for (int ring = 0; ring < std::min(rings, grid.usedRings()); ++ring) {
        const DetectionGrid::Cell sum = grid.ring(ring);
        const auto probability = detectionscale::probability(sum, series.kind);
        if (!probability) {
            continue;
        }
        const QPointF point = frame.at((ring + 0.5) * RingMiles, *probability * 100);
        line.elementCount() == 0 ? line.moveTo(point) : line.lineTo(point);
        const qint64 looks = series.kind == DetectionKind::Secondary ? sum.secondaryLooks : sum.looks;
        const auto interval = ProportionInterval::of(std::llround(*probability * static_cast<double>(looks)), looks);
        painter.setPen(QPen(series.color, 1));
        painter.drawLine(frame.at((ring + 0.5) * RingMiles, interval.low * 100),
            frame.at((ring + 0.5) * RingMiles, interval.high * 100));
        painter.setBrush(series.color);
        painter.drawEllipse(point, 2.2, 2.2);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(series.color, 1.6));
    painter.drawPath(line);
}

void paintDetectionByRange(QPainter &painter, const QRectF &area, const SensorReport &report, const ChartLook &look)
{
    const DetectionGrid &grid = report.detection.grid;
    const DetectionGrid::Cell all = grid.total();
    const ChartFrame frame(
        area, {Text::tr("Range, NM"), 0.0, grid.usedRings() * RingMiles}, {Text::tr("Detected, %"), 0.0, 100.0});
    frame.paint(painter, look);
    QList<Series> series;
    if (all.primaryHits > 0) {
        series += Series{Text::tr("Primary"), look.third, DetectionKind::Primary};
    }
    if (all.secondaryLooks > 0) {
        series += Series{Text::tr("Secondary"), look.second, DetectionKind::Secondary};
    }
    series += Series{Text::tr("Any"), look.first, DetectionKind::Any};
    for (const Series &one : series) {
        paintSeries(painter, frame, report.detection, one);
    }
    paintSeriesKey(painter, frame.plotArea(), series, look);
}

// Between what leaves two of a hundred values out at either end, and some room.
ChartFrame::Axis errorAxis(const QString &title, std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const auto at = [&values](double part) {
        return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
    };
    const double low = std::min(at(0.02), 0.0);
    const double high = std::max(at(0.98), 0.0);
    const double room = (high - low) * 0.25;
    return {title, low - room, high + room};
}

void paintErrors(QPainter &painter, const QRectF &area, const BiasReport &bias, bool isRange, const ChartLook &look)
{
    const auto x = [isRange](const BiasReport::Residual &point) {
        return isRange ? point.range * Miles : static_cast<double>(point.azimuth);
    };
    const auto y = [isRange](const BiasReport::Residual &point) {
        return static_cast<double>(isRange ? point.rangeError : point.azimuthError);
    };
    std::vector<double> errors;
    double farthest = 0.0;
    for (const BiasReport::Residual &point : bias.residuals) {
        errors.push_back(y(point));
        farthest = std::max(farthest, point.range * Miles);
    }
    const double end = isRange ? std::ceil(farthest / 10) * 10 : 360.0;
    const ChartFrame frame(area, {isRange ? Text::tr("Range, NM") : Text::tr("Azimuth, degrees"), 0.0, end},
        errorAxis(
            isRange ? Text::tr("Measured minus reference, m") : Text::tr("Measured minus reference, degrees"), errors));
    frame.paint(painter, look);
    painter.setPen(Qt::NoPen);
    QColor dot = look.first;
    dot.setAlphaF(0.45F);
    painter.setBrush(dot);
    const std::size_t stride = bias.residuals.size() / MostDots + 1;
    for (std::size_t i = 0; i < bias.residuals.size(); i += stride) {
        if (frame.contains(x(bias.residuals[i]), y(bias.residuals[i]))) {
            painter.drawEllipse(frame.at(x(bias.residuals[i]), y(bias.residuals[i])), DotRadius, DotRadius);
        }
    }
    const double begin = isRange ? bias.rangeBias.value : bias.azimuthBias.value;
    const double slope = isRange ? bias.rangeGain.value * wgs84::MetresPerNauticalMile : 0.0;
    painter.setPen(QPen(look.second, 1.8));
    painter.setClipRect(frame.plotArea());
    painter.drawLine(frame.at(0.0, begin), frame.at(end, begin + slope * end));
    painter.setClipping(false);
}

void paintRotation(QPainter &painter, const QRectF &area, const RotationReport &rotation, const ChartLook &look)
{
    const double room = std::max((rotation.longest - rotation.shortest) * 0.2, 0.01);
    const ChartFrame frame(area, {Text::tr("Time, s"), rotation.course.front().time, rotation.course.back().time},
        {Text::tr("Turn, s"), rotation.shortest - room, rotation.longest + room});
    frame.paint(painter, look);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.first);
    for (const RotationReport::Turn &turn : rotation.course) {
        painter.drawEllipse(frame.at(turn.time, turn.period), 1.2, 1.2);
    }
    painter.setPen(QPen(look.second, 1.4));
    painter.drawLine(frame.at(rotation.course.front().time, rotation.period),
        frame.at(rotation.course.back().time, rotation.period));
}

} // namespace

QList<Chart> assessment::chartsOf(const SensorReport &report)
{
    QList<Chart> charts;
    if (report.detection.grid.total().looks > 0) {
        charts += {Chart::DetectionMap, Chart::DetectionByRange};
    }
    if (shownBias(report)) {
        charts += {Chart::RangeErrors, Chart::AzimuthErrors};
    }
    if (report.rotation.course.size() > 1) {
        charts += Chart::Rotation;
    }
    return charts;
}

QString assessment::chartTitle(Chart chart)
{
    switch (chart) {
    case Chart::DetectionMap:
        return Text::tr("Probability of detection by range and azimuth");
    case Chart::DetectionByRange:
        return Text::tr("Probability of detection by range");
    case Chart::RangeErrors:
        return Text::tr("Range errors");
    case Chart::AzimuthErrors:
        return Text::tr("Azimuth errors");
    case Chart::Rotation:
        return Text::tr("Turns of the antenna");
    }
    return {};
}

void assessment::paintChart(
    QPainter &painter, const QRectF &area, Chart chart, const SensorReport &report, const ChartLook &look)
{
    if (!chartsOf(report).contains(chart)) {
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    switch (chart) {
    case Chart::DetectionMap:
        paintDetectionMap(painter, area, report, look);
        break;
    case Chart::DetectionByRange:
        paintDetectionByRange(painter, area, report, look);
        break;
    case Chart::RangeErrors:
    case Chart::AzimuthErrors:
        paintErrors(painter, area, *shownBias(report), chart == Chart::RangeErrors, look);
        break;
    case Chart::Rotation:
        paintRotation(painter, area, report.rotation, look);
        break;
    }
    painter.restore();
}
