#pragma once

#include "widgets/geometry_dialog.h"

#include <QList>

class QAction;

// Keys and mouse gestures at a glance: the shortcuts of the actions handed in, as they are registered, and the gestures
// of the plan view.
class CheatSheetWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // Actions without a shortcut are left out; the order is kept. The actions are read, not kept.
    explicit CheatSheetWindow(const QList<QAction *> &actions, QWidget *parent = nullptr);
};
