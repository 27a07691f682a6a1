#include "plan_view/gestures.h"

#include <QKeyEvent>

namespace {

// clang-format off
constexpr Gestures::MouseRow MouseRows[] = {
    {Gestures::Mouse::SelectTrack, QT_TRANSLATE_NOOP("Gestures", "Left click on a symbol or label"),
        QT_TRANSLATE_NOOP("Gestures", "Select the track")},
    {Gestures::Mouse::SelectNextTrack, QT_TRANSLATE_NOOP("Gestures", "Left click once more"),
        QT_TRANSLATE_NOOP("Gestures", "Select the next track at this place")},
    {Gestures::Mouse::TrackMenu, QT_TRANSLATE_NOOP("Gestures", "Right click on a symbol or label"),
        QT_TRANSLATE_NOOP("Gestures", "What can be done with the track")},
    {Gestures::Mouse::PlaceMenu, QT_TRANSLATE_NOOP("Gestures", "Right click elsewhere"),
        QT_TRANSLATE_NOOP("Gestures", "What can be done at this place")},
    {Gestures::Mouse::MoveView, QT_TRANSLATE_NOOP("Gestures", "Right drag on the map"),
        QT_TRANSLATE_NOOP("Gestures", "Move the view")},
    {Gestures::Mouse::MoveLabel, QT_TRANSLATE_NOOP("Gestures", "Right drag on a label"),
        QT_TRANSLATE_NOOP("Gestures", "Move the label")},
    {Gestures::Mouse::CentreView, QT_TRANSLATE_NOOP("Gestures", "Right double-click"),
        QT_TRANSLATE_NOOP("Gestures", "Bring this point to the centre")},
    {Gestures::Mouse::Zoom, QT_TRANSLATE_NOOP("Gestures", "Wheel"),
        QT_TRANSLATE_NOOP("Gestures", "Zoom around the pointer")},
    {Gestures::Mouse::ZoomFinely, QT_TRANSLATE_NOOP("Gestures", "Alt + wheel"),
        QT_TRANSLATE_NOOP("Gestures", "Zoom in small steps")},
    {Gestures::Mouse::PlaceRings, QT_TRANSLATE_NOOP("Gestures", "Left click with the cross"),
        QT_TRANSLATE_NOOP("Gestures", "Place the centre of the range rings")},
};

// The main window has Alt+F11 for itself, so the fine steps have a second pair of keys.
constexpr Gestures::KeyRow KeyRows[] = {
    {Qt::Key_F12, 1.0, QT_TRANSLATE_NOOP("Gestures", "Rotate clockwise by 1°")},
    {Qt::Key_F11, -1.0, QT_TRANSLATE_NOOP("Gestures", "Rotate counter-clockwise by 1°")},
    {Qt::SHIFT | Qt::Key_F12, 0.1, QT_TRANSLATE_NOOP("Gestures", "Rotate clockwise by 0.1°")},
    {Qt::SHIFT | Qt::Key_F11, -0.1, QT_TRANSLATE_NOOP("Gestures", "Rotate counter-clockwise by 0.1°")},
};
// clang-format on

constexpr auto Fine = Qt::AltModifier | Qt::ShiftModifier;

} // namespace

std::span<const Gestures::MouseRow> Gestures::mouse()
{
    return MouseRows;
}

std::span<const Gestures::KeyRow> Gestures::keys()
{
    return KeyRows;
}

double Gestures::rotationOf(const QKeyEvent &event)
{
    const bool fine = event.modifiers().testAnyFlags(Fine);
    for (const KeyRow &row : KeyRows) {
        if (row.key.key() == event.key() && fine == (row.key.keyboardModifiers() != Qt::NoModifier)) {
            return row.degrees;
        }
    }
    return 0.0;
}
