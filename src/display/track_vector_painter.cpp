#include "display/track_vector_painter.h"

#include "display/track_frame.h"
#include "display/track_label_visibility.h"
#include "geo/wgs84.h"

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr int TickReach = 2; // pixels to either side of a vector
constexpr int EndReach = 3;

// The direction of an angle in degrees clockwise from the top of the screen.
QPointF direction(double degrees)
{
    const double radians = qDegreesToRadians(degrees);
    return QPointF(std::sin(radians), -std::cos(radians));
}

// Pixels for a minute's travel or a nautical mile; 0 when the speed is not known.
double unitPixels(const TrackFrame &frame, const TrackSnapshot &track)
{
    const double pixelsPerMile = wgs84::MetresPerNauticalMile / frame.view.metresPerPixel();
    if (!frame.look.vectorTimeMode) {
        return pixelsPerMile;
    }
    return track.groundSpeedValid && track.groundSpeed > 0.0 ? track.groundSpeed / 60.0 * pixelsPerMile : 0.0;
}

} // namespace

void TrackVectorPainter::prepare(const TrackFrame &frame)
{
    m_pens.prepare(frame.view.devicePixelRatio());
}

void TrackVectorPainter::paint(
    QPainter *painter, const TrackFrame &frame, const ShownTrack &shown, const TrackLabelVisibility *labels)
{
    const TrackLook &look = frame.look;
    const double unit = look.vectorVisible && shown.track->headingValid ? unitPixels(frame, *shown.track) : 0.0;
    const int range = look.vectorRangeOf(shown.selected);
    const double length = unit * range;
    if (length < 1.0) {
        return;
    }
    const QPointF ahead = direction(shown.track->heading + frame.view.rotation());
    const QPointF across(-ahead.y(), ahead.x());
    m_lines.clear();
    // In a small symbol the beginning of the line would look like a part of it.
    const double begin = look.isCompact() ? std::min(look.symbolSize / 2.0, length) : 0.0;
    m_lines.emplace_back(shown.place + ahead * begin, shown.place + ahead * length);
    for (int i = 1; i < range && look.vectorTicksVisible; ++i) {
        const QPointF tick = shown.place + ahead * (i * unit);
        m_lines.emplace_back(tick - across * TickReach, tick + across * TickReach);
    }
    if (look.isCompact()) {
        m_lines.emplace_back(m_lines.front().p2() - across * EndReach, m_lines.front().p2() + across * EndReach);
    }
    const QRectF bounds = QRectF(m_lines.front().p1(), m_lines.front().p2()).normalized();
    if (labels && labels->isHidden(bounds.adjusted(-EndReach, -EndReach, EndReach, EndReach))) {
        return;
    }
    painter->setPen(m_pens.line(frame.color(shown), shown.track->coasting));
    painter->drawLines(m_lines.data(), static_cast<int>(m_lines.size()));
}
