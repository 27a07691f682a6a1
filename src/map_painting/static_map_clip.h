#pragma once

#include "map_painting/static_map_shape.h"

#include <QPointF>
#include <QTransform>

#include <cstddef>
#include <vector>

struct StaticMapFrame;

// What of lines and areas can be seen, in logical pixels. Never cuts close to what is seen, and where it cuts does not
// depend on what is seen: so that a line meets the same pixels in every view that differs by whole pixels, and stays
// within what a rasteriser can count.
class StaticMapClip {
public:
    // A part of a line.
    struct Run {
        std::size_t first = 0; // index among points()
        std::size_t count = 0;
        double distance = 0.0; // pixels along the line from its very start
    };

    // The margin is how far the pen reaches beside a line, in pixels.
    StaticMapClip(const StaticMapFrame &frame, double margin);

    // The parts of a line. Distances are only worked out where wanted: it takes time.
    void clipLine(const StaticMapShape::Level &level, bool withDistances);
    const std::vector<Run> &runs() const { return m_runs; }

    // The area within an edge.
    void clipArea(const StaticMapShape &shape, const StaticMapShape::Level &level);

    // Of the last clipping.
    const std::vector<QPointF> &points() const { return m_points; }

private:
    void addSegment(const QPointF &from, const QPointF &to);
    void addLongSegment(const QPointF &from, const QPointF &to, int steps);
    void endRun();
    void append(const QPointF &planePoint);
    int stepsOf(const QPointF &from, const QPointF &to) const;
    bool visiblePart(const QPointF &from, const QPointF &to, double &begin, double &end) const;

    template <typename Side>
    void cutOff(Side outside);

    const PlaneBox m_sight;
    const double m_metresPerPixel;
    const double m_longest; // segment that is not cut, metres
    const double m_m11, m_m12, m_m21, m_m22, m_dx, m_dy; // of the transform, at hand

    std::vector<QPointF> m_points;
    std::vector<QPointF> m_spare;
    std::vector<Run> m_runs;
    bool m_open = false; // the last run goes on
    double m_distance = 0.0; // metres, at the segment at hand
};
