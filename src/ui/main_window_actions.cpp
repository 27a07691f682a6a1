// Which command does what.

#include "display/geo_track_display.h"
#include "lists/list_panes.h"
#include "plan_view/geo_widget.h"
#include "plan_view/plan_display.h"
#include "second_view/second_views.h"
#include "tile_windows/tile_maps.h"
#include "ui/actions.h"
#include "ui/main_window.h"
#include "widgets/scope_chip.h"
#include "workplace/workplace.h"

#include <QAction>
#include <QDockWidget>
#include <QMenu>

namespace {

// The settings that an action switches.
constexpr std::pair<ActionId, bool Config::*> SettingToggles[] = {
    {ActionId::ArrangeLabels, &Config::trackLabelAutoPlace},
    {ActionId::ToggleStaticMaps, &Config::mapStaticVisible},
    {ActionId::ToggleSensorMap, &Config::mapSensorVisible},
    {ActionId::ToggleWeatherMap, &Config::mapWeatherVisible},
    {ActionId::ToggleVideoMap, &Config::mapVideoVisible},
    {ActionId::TogglePlots, &Config::mapPlotVisible},
    {ActionId::ToggleRangeRings, &Config::mapRangeRingVisible},
    {ActionId::ToggleRangeRingLabels, &Config::mapRangeRingLabelVisible},
    {ActionId::ToggleCompassRose, &Config::mapCompassRoseVisible},
    {ActionId::ToggleScaleBar, &Config::mapScaleBarVisible},
    {ActionId::ToggleKey, &Config::mapKeyVisible},
};

} // namespace

void MainWindow::makeResizeMenu()
{
    auto *sizes = new QMenu(this);
    for (const QSize size : {QSize(1024, 768), QSize(1280, 720), QSize(1280, 1024), QSize(1600, 900), QSize(1920, 1080),
             QSize(2560, 1440), QSize(3840, 2160)}) {
        sizes->addAction(
            tr("%1 x %2").arg(size.width()).arg(size.height()), this, [this, size] { resizeMainWindow(size); });
    }
    (*m_actions)[ActionId::ResizeMainWindow]->setMenu(sizes);
}

void MainWindow::connectInputActions()
{
    connect((*m_actions)[ActionId::Start], &QAction::triggered, this, &MainWindow::openInput);
    connect((*m_actions)[ActionId::Stop], &QAction::triggered, this, &MainWindow::stopInput);
    connect((*m_actions)[ActionId::Pause], &QAction::triggered, this, &MainWindow::pauseInput);
    connect((*m_actions)[ActionId::Exit], &QAction::triggered, this, &MainWindow::exitApplication);
}

void MainWindow::connectViewActions()
{
    const auto on = [this](ActionId id, auto slot) {
        connect((*m_actions)[id], &QAction::triggered, m_plan->widget(), slot);
    };
    on(ActionId::ZoomIn, &GeoWidget::zoomIn);
    on(ActionId::ZoomOut, &GeoWidget::zoomOut);
    on(ActionId::RotateRight, &GeoWidget::rotateClockWise);
    on(ActionId::RotateLeft, &GeoWidget::rotateCounterClockWise);
    on(ActionId::RotateNorthUp, &GeoWidget::rotateNorthUp);
    on(ActionId::MoveLeft, &GeoWidget::moveLeft);
    on(ActionId::MoveUp, &GeoWidget::moveUp);
    on(ActionId::MoveDown, &GeoWidget::moveDown);
    on(ActionId::MoveRight, &GeoWidget::moveRight);
    on(ActionId::SetRangeRingsCenter, &GeoWidget::startSettingRangeRingsCenter);
    connect((*m_actions)[ActionId::FullScreen], &QAction::triggered, this, &MainWindow::setFullScreen);
    connect((*m_actions)[ActionId::NewPlanView], &QAction::triggered, m_views.get(), &SecondViews::open);
    QAction *edges = (*m_actions)[ActionId::ShowEdges];
    connect(edges, &QAction::triggered, m_workplace, &Workplace::toggleEdges);
    connect(m_workplace, &Workplace::changed, edges, &QAction::setEnabled);
    edges->setEnabled(false);
}

void MainWindow::connectTrackActions()
{
    QAction *label = (*m_actions)[ActionId::ToggleTrackLabel];
    GeoTrackDisplay *tracks = m_plan->tracks();
    connect(label, &QAction::toggled, tracks, &GeoTrackDisplay::showLabel);
    // The format window switches labels too.
    connect(tracks, &GeoTrackDisplay::polluted, label, [tracks, label] { label->setChecked(tracks->labelVisible()); });
    label->setChecked(tracks->labelVisible());

    const auto toggleDock = [this](ActionId id, QDockWidget *dock) {
        QAction *action = (*m_actions)[id];
        connect(action, &QAction::triggered, dock, &QWidget::setVisible);
        // A dock behind another's tab is there all the same.
        connect(dock->toggleViewAction(), &QAction::toggled, action, &QAction::setChecked);
        action->setChecked(dock->toggleViewAction()->isChecked());
    };
    toggleDock(ActionId::ToggleTrackList, m_lists->trackDock());
    toggleDock(ActionId::ToggleAlertList, m_lists->alertDock());
}

void MainWindow::connectLabelActions()
{
    GeoTrackDisplay *tracks = m_plan->tracks();
    QAction *reset = (*m_actions)[ActionId::ResetLabel];
    QAction *resetAll = (*m_actions)[ActionId::ResetAllLabels];
    connect(reset, &QAction::triggered, tracks, [tracks] { tracks->resetTrackLabelOffset(tracks->selectedTrackId()); });
    connect(resetAll, &QAction::triggered, tracks, &GeoTrackDisplay::resetTrackLabelOffsets);
    const auto update = [tracks, reset, resetAll] {
        reset->setEnabled(!tracks->trackLabelOffsetDefault(tracks->selectedTrackId()));
        resetAll->setEnabled(tracks->anyTrackLabelOffset());
    };
    connect(tracks, &GeoTrackDisplay::polluted, reset, update);
    update();
    auto *chip = new ScopeChip(m_plan->widget(), 1);
    const auto note = [chip](int count) {
        const QString text = count == 1 ? tr("1 label shortened") : tr("%1 labels shortened").arg(count);
        chip->showText(count > 0 ? text : QString());
    };
    // Later: it comes in the midst of painting.
    connect(tracks, &GeoTrackDisplay::shortenedLabelsChanged, chip, note, Qt::QueuedConnection);
}

void MainWindow::connectMapActions()
{
    for (const auto &[id, visible] : SettingToggles) {
        connect((*m_actions)[id], &QAction::triggered, this,
            [this, member = visible](bool on) { editConfig([member, on](Config &config) { config.*member = on; }); });
    }
    QAction *tiles = (*m_actions)[ActionId::ToggleTileMap];
    connect(tiles, &QAction::triggered, m_tileMaps.get(), &TileMaps::show);
    connect(m_tileMaps.get(), &TileMaps::changed, tiles, [this, tiles] { tiles->setChecked(m_tileMaps->shown()); });
}

void MainWindow::checkSettingToggles()
{
    for (const auto &[id, visible] : SettingToggles) {
        (*m_actions)[id]->setChecked(config().*visible);
    }
}

void MainWindow::connectDialogActions()
{
    const auto on = [this](ActionId id, auto slot) { connect((*m_actions)[id], &QAction::triggered, this, slot); };
    on(ActionId::NewWindow, &MainWindow::showProfileWindow);
    on(ActionId::Rotate, &MainWindow::showRotationWindow);
    on(ActionId::GoTo, &MainWindow::showSetCenterWindow);
    on(ActionId::RangeRings, &MainWindow::showRangeRingWindow);
    on(ActionId::WeatherIntensity, &MainWindow::showWeatherIntensityWindow);
    on(ActionId::Statistics, &MainWindow::showStatsWindow);
    on(ActionId::GettingStarted, &MainWindow::showGettingStarted);
    on(ActionId::CheatSheet, &MainWindow::showCheatSheet);
    on(ActionId::Contents, &MainWindow::showHelp);
    on(ActionId::WhatsNew, &MainWindow::showChangelog);
    on(ActionId::About, &MainWindow::showAbout);
    const auto onUnlocked = [this](ActionId id, auto slot) {
        connect((*m_actions)[id], &QAction::triggered, this,
            [this, slot] { m_config.lock().whenUnlocked([this, slot] { (this->*slot)(); }); });
    };
    onUnlocked(ActionId::Settings, &MainWindow::showConfigWindow);
    onUnlocked(ActionId::TrackLabelFormat, &MainWindow::showTrackLabelFormatWindow);
    onUnlocked(ActionId::SensorManager, &MainWindow::launchSensorManager);
    onUnlocked(ActionId::TileDownloader, &MainWindow::showBingMapsDownloaderWindow);
}
