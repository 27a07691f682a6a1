#pragma once

#include <QKeyEvent>
#include <QPointF>
#include <QTransform>

// What the left button and the keys do on the plan view while the tool is set there. Each handler says whether it took
// the event; what it leaves goes the ordinary way. Positions are widget pixels; the transform goes from plane to
// pixels. GUI thread.
class GeoPointerTool {
public:
    virtual ~GeoPointerTool() = default;

    virtual bool pressed(const QPointF &pixel, const QTransform &screenTransform) = 0;
    // With or without the button held. The cursor read-out follows the pointer in any case.
    virtual bool moved(const QPointF &pixel, const QTransform &screenTransform) = 0;
    virtual bool released(const QPointF &pixel, const QTransform &screenTransform) = 0;
    // In place of the second press of the pair.
    virtual bool doubleClicked(const QPointF &pixel, const QTransform &screenTransform) = 0;
    virtual bool keyPressed(const QKeyEvent &event) = 0;
    // While nothing is dragged.
    virtual Qt::CursorShape cursorShape() const = 0;
};
