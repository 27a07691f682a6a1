#pragma once

#include <memory>

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

    // Groups and styles given before are no longer valid: nothing kept of them may be used.
    virtual void forget() { }
};
