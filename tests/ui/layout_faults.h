#pragma once

#include <QStringList>

class QWidget;

// What a person would see wrong in a window, by measuring, a line each.
class LayoutFaults {
public:
    // Texts wider or higher than where they stand, and things on top of each other or out of their place.
    static QStringList clipped(QWidget *window);
    // Where the Tab key goes against the order of reading, and what it does not reach or cannot leave. The window is
    // active.
    static QStringList tabOrder(QWidget *window);
    // What looks the same with the focus as without it. The window is active.
    static QStringList unseenFocus(QWidget *window);
};
