#pragma once

class QPainter;
struct MapStyleClass;
struct StaticMapFrame;
struct StaticMapGroup;

// Paints one kind of element.
class StaticMapPainter {
public:
    virtual ~StaticMapPainter() = default;

    // The painter comes with logical pixels as its coordinates and keeps no state for the next call.
    virtual void paint(
        QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group, const MapStyleClass &style) = 0;

    // Paints, to lie below the elements, a rim that sets them off against any ground. For those that need one.
    virtual void paintCasing(QPainter &, const StaticMapFrame &, const StaticMapGroup &, const MapStyleClass &) { }

    // Groups and styles given before are no longer valid: nothing kept of them may be used.
    virtual void forget() { }
};
