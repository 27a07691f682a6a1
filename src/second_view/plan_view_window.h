#pragma once

#include "app/config.h"
#include "app/log_level.h"
#include "plan_view/plan_display.h"
#include "second_view/plan_layers.h"

#include <QJsonObject>
#include <QMainWindow>

class MapLibrary;
class QAction;
class QLabel;
class QToolBar;
class ScopeNotice;
class TileMaps;
class TileStocks;

#include <memory>
#include <utility>

// A further plan view of the same picture, in a window of its own: it has its own centre, scale, rotation and layers,
// and shares pictures, maps, colours and the selection with the main one. GUI thread.
class PlanViewWindow final : public QMainWindow {
    Q_OBJECT

public:
    // What the views share; must outlive the window.
    struct Shared {
        Projector *projector;
        MapLibrary *maps;
        const PlanDisplay *main; // whose look and range rings the window follows
        std::shared_ptr<TileStocks> tiles;
    };

    // The number is that which the title has.
    PlanViewWindow(const Shared &shared, int number, const Config &config);
    ~PlanViewWindow() override;

    int number() const { return m_number; }
    PlanDisplay *plan() { return &m_plan; }
    const PlanLayers &layers() const { return m_layers; }

    // What of the settings is a matter of layers stays the window's own.
    void applyConfig(const Config &config, SettingGroups changed);
    // Settings change under the operator's eyes in the main view: how tracks look, where its range rings stand.
    void followLook();
    void followRings();
    // Of which the main view knows: what has been acknowledged, the weather that it shows.
    void takeStateOfMain();
    void setTilesBarred();

    ScopeNotice *notice() const { return m_notice; }

    // Where the window stands, what it looks at and its layers.
    QJsonObject state() const;
    // What is not there, or no view, leaves that as it is.
    void restore(const QJsonObject &state);

Q_SIGNALS:
    void closed();
    // The operator has chosen this one here; 0: it has gone.
    void trackSelected(unsigned long long id);
    void explainRequested();
    void acknowledgeRequested(unsigned long long id);
    // He lets services of tiles be asked.
    void tileConsentGiven();
    void logMessage(LogLevel level, const QString &text);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void makeToolBar();
    void makeViewActions(QToolBar *bar);
    void makeLayerActions(QToolBar *bar);
    void makeReadOuts();
    void makeTiles();
    void connectPlan();
    QAction *addAction(QToolBar *bar, const QString &text, const char *icon, const char *shortcut = "");
    QAction *actionOf(const PlanLayer &layer) const;
    void showLayer(const PlanLayer &layer, bool on);
    void showLabels(bool on);
    void showMenu(unsigned long long track, const QPoint &globalPosition);
    void lookWhereMainLooks();
    void drawIcons();
    Config ownConfig() const;

    const Shared m_shared;
    const int m_number;
    Config m_config; // the settings as they are
    PlanLayers m_layers;
    PlanDisplay m_plan;
    std::unique_ptr<TileMaps> m_tiles;
    ScopeNotice *m_notice; // these are the window's
    QLabel *m_position = nullptr;
    QLabel *m_scale = nullptr;
    QAction *m_labels = nullptr;
    QAction *m_follow = nullptr;
    QList<std::pair<QAction *, const char *>> m_icons; // their names
    QList<QAction *> m_layerActions; // in the order of PlanLayers::all()
};
