#pragma once

#include "app/setting_group.h"
#include "health/input_health.h"
#include "ui/empty_scope.h"
#include "ui/plot_switch.h"

#include <QObject>

class Config;
class InputSession;
class ListPanes;
class PlanDisplay;
class QAction;
class ScopeNotice;
class SecondViews;
class SensorInfo;
class SnapshotPump;
class StatusReadOuts;
class TileMaps;

// Watches what the input brings, and says in words why the picture is empty, old or other than expected: over every
// scope, over the lists and in the place of their rows, and beside the indicators. GUI thread.
class InputNotices final : public QObject {
    Q_OBJECT

public:
    // What is watched, and where it is said; all of it must outlive this object.
    struct Window {
        const InputSession *session = nullptr;
        const SnapshotPump *pump = nullptr;
        const TileMaps *tiles = nullptr;
        QAction *togglePlots = nullptr;
        PlanDisplay *plan = nullptr;
        SecondViews *views = nullptr;
        ListPanes *lists = nullptr;
        StatusReadOuts *readOuts = nullptr;
    };
    explicit InputNotices(const Window &window);

    InputHealth &health() { return m_health; }
    const InputHealth &health() const { return m_health; }

    void applyConfig(const Config &config, SettingGroups changed);
    // Of the input; null: none.
    void setSensor(const SensorInfo *sensor);

public Q_SLOTS:
    void update();
    // Why a recording is not played; only for a while over a picture that goes on.
    void showRefusal(const QString &reason);

private:
    void watchHealth();
    void watchScope();
    void watchPlots();
    void noteSession();
    QString scopeText() const;
    QString emptyText() const;
    QString emptyListText() const;

    const Window m_window;
    ScopeNotice *m_scope; // the plan view's
    PlotSwitch m_plots;
    EmptyScope m_empty;
    InputHealth m_health;
};
