#pragma once

#include <QCoreApplication>
#include <QString>

#include <span>

class QKeyEvent;

// What mouse and keys do on the plan view, for those who list it.
namespace Gestures {

enum class Mouse {
    SelectTrack,
    SelectNextTrack,
    TrackMenu,
    PlaceMenu,
    MoveView,
    MoveLabel,
    CentreView,
    Zoom,
    ZoomFinely,
    PlaceRings
};
struct MouseRow {
    Mouse gesture;
    const char *input; // English source texts, translated in the context "Gestures"
    const char *effect;
};
std::span<const MouseRow> mouse();

struct KeyRow {
    QKeyCombination key;
    double degrees; // the view is turned by, clockwise
    const char *effect;
};
std::span<const KeyRow> keys();
// Degrees, 0 for a key that does not turn the view.
double rotationOf(const QKeyEvent &event);

} // namespace Gestures
