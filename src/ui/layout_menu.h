#pragma once

#include "app/log_level.h"
#include "maps/map_layout.h"

#include <QObject>

class Actions;
class GeoWidget;
class QAction;
class QWidget;
class SettingsLock;

// Named views of the plan view: the menu that chooses and removes them, the window that saves one, and their file.
class LayoutMenu final : public QObject {
    Q_OBJECT

public:
    // All must outlive this object; the window is the parent of dialogs and menus.
    // While settings are locked, layouts are chosen for this run only.
    LayoutMenu(QWidget *window, Actions *actions, GeoWidget *plan, const SettingsLock *lock);

    // The layout that was current when layouts were last changed or chosen comes back, even if the view was moved after
    // that: the operator chose where to begin. With the built-in one the view stays as it is.
    void load();
    // Where the built-in layout is centred, in the plane.
    void placeDefault(const QPointF &center);
    // The built-in one is current from now on.
    void leave();

public Q_SLOTS:
    // Shows the layout that the action of the menu is for, now and at the next start.
    void loadLayout(QAction *action);
    void updateMenu();
    void showSaveWindow();

Q_SIGNALS:
    void logMessage(LogLevel level, const QString &text);

private:
    // A layout other than the built-in one.
    bool chosen() const;
    void save();
    void askForName();

    QWidget *m_window;
    Actions *m_actions;
    GeoWidget *m_plan;
    const SettingsLock *m_lock;
    MapLayout m_layouts;
};
