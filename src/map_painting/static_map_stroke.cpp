#include "map_painting/static_map_stroke.h"

#include "map_painting/static_map_clip.h"
#include "map_painting/static_map_frame.h"
#include "map_painting/static_map_shape.h"
#include "view/contrast.h"

#include <QLineF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr double Softness = 2.0; // pixels beside a line that smoothing may touch
constexpr double SmallestVisible = 0.5; // pixels

// Qt strokes such lines several times as fast segment by segment as in one go. Their square ends fill the corners as
// long as they are not too wide; but they overlap, which must not show.
bool segmentWise(const QPen &pen)
{
    constexpr double Widest = 6.0; // pixels
    return pen.widthF() > 1.0 && pen.widthF() <= Widest && pen.style() == Qt::SolidLine
        && pen.capStyle() == Qt::SquareCap && pen.color().alpha() == 255;
}

// Qt draws lines of up to a pixel in a way of its own: quickly, but up to a pixel beside their place where they are cut
// off at the rim of what is painted. That shows where a picture is painted in parts, so it is left to crowded pictures;
// and wide broken lines, which take longest, become thin in these.
QPen affordable(const QPen &wanted, bool crowded)
{
    constexpr double NotThin = 1.01; // pixels
    QPen pen = wanted;
    if (!crowded) {
        pen.setWidthF(std::max(pen.widthF(), NotThin));
    } else if (pen.style() != Qt::SolidLine) {
        pen.setWidth(1);
    }
    return pen;
}

// What the numbers of a dash pattern are multiples of.
double dashUnit(const QPen &pen)
{
    return std::max(pen.widthF(), 1.0);
}

double dashLength(const QPen &pen)
{
    if (pen.style() == Qt::SolidLine) {
        return 0.0;
    }
    double length = 0.0;
    for (const qreal part : pen.dashPattern()) {
        length += part;
    }
    return length * dashUnit(pen);
}

class StaticMapStroke {
public:
    // All must outlive this.
    StaticMapStroke(QPainter &painter, const StaticMapFrame &frame, const QPen &pen);

    void draw(const StaticMapShape &shape);

private:
    void drawSegments(const StaticMapClip::Run &run);

    QPainter &m_painter;
    const StaticMapFrame &m_frame;
    QPen m_pen;
    StaticMapClip m_clip;
    double m_dashLength = 0.0; // pixels after which the pattern repeats; 0 for a solid line
    bool m_segmentWise = false;
    double m_detailScale = 1.0; // metres per pixel of the detail that the pen can show
    std::vector<QLineF> m_segments;
};

StaticMapStroke::StaticMapStroke(QPainter &painter, const StaticMapFrame &frame, const QPen &pen)
    : m_painter(painter), m_frame(frame), m_pen(affordable(pen, frame.crowded)), m_clip(frame, pen.widthF() + Softness),
      m_dashLength(dashLength(m_pen)), m_segmentWise(segmentWise(m_pen)),
      m_detailScale(frame.metresPerPixel * std::max(pen.widthF(), 1.0))
{
    m_painter.setPen(m_pen);
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setRenderHint(QPainter::Antialiasing, !(frame.crowded && m_segmentWise));
}

void StaticMapStroke::draw(const StaticMapShape &shape)
{
    const double margin = (m_pen.widthF() + Softness) * m_frame.metresPerPixel;
    if (shape.bounds().extent() < SmallestVisible * m_frame.metresPerPixel
        || !shape.bounds().touches(m_frame.sight.grown(margin))) {
        return;
    }
    m_clip.clipLine(shape.level(m_detailScale), m_dashLength > 0.0);
    for (const StaticMapClip::Run &run : m_clip.runs()) {
        if (m_dashLength > 0.0) {
            m_pen.setDashOffset(std::fmod(run.distance, m_dashLength) / dashUnit(m_pen));
            m_painter.setPen(m_pen);
        }
        if (m_segmentWise) {
            drawSegments(run);
        } else {
            m_painter.drawPolyline(m_clip.points().data() + run.first, static_cast<int>(run.count));
        }
    }
}

void StaticMapStroke::drawSegments(const StaticMapClip::Run &run)
{
    m_segments.clear();
    const QPointF *point = m_clip.points().data() + run.first;
    for (std::size_t i = 1; i < run.count; ++i, ++point) {
        m_segments.emplace_back(point[0], point[1]);
    }
    m_painter.drawLines(m_segments.data(), static_cast<int>(m_segments.size()));
}

} // namespace

QPen casingPen(const QPen &pen)
{
    constexpr double Rim = 1.0; // pixels on each side
    return QPen(groundFor(pen.color()), std::max(pen.widthF(), 1.0) + 2.0 * Rim);
}

void strokeShapes(
    QPainter &painter, const StaticMapFrame &frame, const std::vector<StaticMapShape> &shapes, const QPen &pen)
{
    if (shapes.empty() || pen.style() == Qt::NoPen) {
        return;
    }
    StaticMapStroke stroke(painter, frame, pen);
    for (const StaticMapShape &shape : shapes) {
        stroke.draw(shape);
    }
}
