// Which part of the window hears which.

#include "ui/main_window.h"

#include "app/app_paths.h"
#include "app/map_places.h"
#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "engine/data_engine.h"
#include "first_start/first_start.h"
#include "lists/list_panes.h"
#include "orientation/geo_sensor_map.h"
#include "plan_view/geo_widget.h"
#include "radar_painting/geo_video_map.h"
#include "second_view/second_views.h"
#include "settings/lock_commands.h"
#include "settings/track_label_format_window.h"
#include "ui/actions.h"
#include "ui/empty_scope.h"
#include "ui/home_view.h"
#include "ui/input_session.h"
#include "ui/layout_menu.h"
#include "ui/map_windows.h"
#include "ui/plot_switch.h"
#include "ui/reopening.h"
#include "ui/replay_controls.h"
#include "ui/snapshot_pump.h"
#include "ui/stats_window.h"
#include "ui/status_line.h"
#include "ui/theme_menu.h"
#include "ui/track_commands.h"
#include "widgets/scope_chip.h"

#include <QAction>
#include <QDockWidget>
#include <QMenu>
#include <QStatusBar>

void MainWindow::connectThemes()
{
    connect(m_lock.get(), &LockCommands::logMessage, this, &MainWindow::showLog);
    connect(m_lock.get(), &LockCommands::locked, this, [this] {
        if (m_windows.trackLabelFormat) {
            m_windows.trackLabelFormat->close();
        }
        m_mapWindows->close([] {});
    });
    connect(m_themes, &ThemeMenu::logMessage, this, &MainWindow::showLog);
    connect(m_themes, &ThemeMenu::changed, this, &MainWindow::applyConfig);
    m_themes->reportProblems();
}

void MainWindow::connectEngine()
{
    const DataEngine *engine = m_host.engine();
    connect(engine, &DataEngine::logMessage, this, &MainWindow::showLog);
    connect(engine, &DataEngine::inputFault, m_session.get(), &InputSession::onFault);
    connect(engine, &DataEngine::inputOpened, this, &MainWindow::onEngineInputOpened);
    connect(engine, &DataEngine::inputOpenFailed, this, &MainWindow::onEngineInputOpenFailed);
    connect(engine, &DataEngine::inputClosed, this, &MainWindow::onEngineInputClosed);
    connect(engine, &DataEngine::replayProgress, this, &MainWindow::onEngineReplayProgress);
    connect(engine, &DataEngine::alertStatusChanged, this, &MainWindow::updateAlertStatus);
    connect(engine, &DataEngine::antennaRotated, m_mapDisplay->sensorMap(), &GeoSensorMap::antennaRotated);
    connect(engine, &DataEngine::antennaNorthCrossed, m_mapDisplay->sensorMap(), &GeoSensorMap::antennaNorthCrossed);
    connect(engine, &DataEngine::pipelineStats, m_windows.stats, &StatsWindow::setPipelineStats);
    connect(m_trackDisplay, &GeoTrackDisplay::shownTrailDotsChanged, &m_host, &EngineHost::setSnapshotTrailDots);
    m_host.setSnapshotTrailDots(m_trackDisplay->trailVisible() ? m_trackDisplay->trailDots() : 0);
}

void MainWindow::connectSession()
{
    InputSession *session = m_session.get();
    connect(session, &InputSession::logMessage, this, &MainWindow::showLog);
    connect(session, &InputSession::changed, this, &MainWindow::showSession);
    connect(session, &InputSession::openingBegun, this, &MainWindow::beginRadarPicture);
    connect(session, &InputSession::opened, m_lists.get(), &ListPanes::start);
    connect(session, &InputSession::opened, this, &MainWindow::inputOpened);
    connect(session, &InputSession::openFailed, this, &MainWindow::inputFailed);
    connect(session, &InputSession::closed, this, &MainWindow::pullSlots); // the input's last picture
    connect(session, &InputSession::closed, m_lists.get(), &ListPanes::refresh);
    connect(session, &InputSession::closed, this, &MainWindow::inputClosed);
    connect(session, &InputSession::shutDownDone, this, &MainWindow::continueShutdown);
}

void MainWindow::connectRecordings()
{
    const RecordingOpener *opener = m_replay->opener();
    connect(opener, &RecordingOpener::logMessage, this, &MainWindow::showLog);
    connect(opener, &RecordingOpener::settingsProposed, this, &MainWindow::takeRunSettings);
    connect(opener, &RecordingOpener::refused, this, &MainWindow::refuseRecording);
    connect(m_session.get(), &InputSession::settingsBroughtBack, this, &MainWindow::takeRunSettings);
}

void MainWindow::connectDisplay()
{
    connect(m_geoWidget, &GeoWidget::cursorMoved, this, &MainWindow::showCursorPosition);
    connect(m_geoWidget, &GeoWidget::zoomChanged, this, &MainWindow::showCurrentZoom);
    connect(m_geoWidget, &GeoWidget::rotationChanged, this, &MainWindow::showCurrentRotation);
    connect(m_geoWidget, &GeoWidget::paintStats, this, [this](const PaintStats &stats) {
        m_windows.stats->setPaintStats(stats);
        m_windows.stats->setLayerTimes(m_mapDisplay->layerTimes());
    });
    connect(m_geoWidget, &GeoWidget::rangeRingsCenterSet, this, [this] {
        m_home->noteRingsPlaced();
        showRangeRings();
    });
    connect(m_mapDisplay->videoMap(), &GeoVideoMap::siteUnknown, this, [this](unsigned char sac, unsigned char sic) {
        showLog(LogLevel::Warning,
            tr("Radar video of SAC %1, SIC %2 is not shown: no sensor has this identification.").arg(sac).arg(sic));
    });
    connect(m_pump.get(), &SnapshotPump::alertStatusChanged, this, &MainWindow::updateAlertStatus);
    connect(m_pump.get(), &SnapshotPump::dropStats, m_windows.stats, &StatsWindow::setDropStats);
    connect(m_pump.get(), &SnapshotPump::dropStats, this, &MainWindow::dropStats);
}

void MainWindow::connectScopeNotices()
{
    PlotSwitch *plots = m_plotSwitch.get();
    // Before the setting follows, which need not change by it.
    connect((*m_actions)[ActionId::TogglePlots], &QAction::triggered, plots, &PlotSwitch::switchTo);
    connect(m_session.get(), &InputSession::openingBegun, plots,
        [this, plots] { plots->beginInput(m_session->replaying() ? config().inputFileName.filePath() : QString()); });
    connect(m_pump.get(), &SnapshotPump::snapshotTaken, plots, &PlotSwitch::look);
    connect(plots, &PlotSwitch::changed, this, &MainWindow::updateNotices);
    EmptyScope *scope = m_emptyScope.get();
    connect(m_session.get(), &InputSession::openingBegun, scope, &EmptyScope::beginInput);
    connect(m_pump.get(), &SnapshotPump::snapshotTaken, scope, &EmptyScope::look);
    connect(m_pump.get(), &SnapshotPump::radarPictureTaken, scope, &EmptyScope::noteRadarPicture);
    connect(scope, &EmptyScope::changed, this, &MainWindow::updateNotices);
}

void MainWindow::connectFirstStart()
{
    m_firstStart = std::make_unique<FirstStart>(
        FirstStart::Window{this, &m_config, m_sensors.get(), &m_host, [this] { return m_questions.stop(); }});
    FirstStart *start = m_firstStart.get();
    connect((*m_actions)[ActionId::GettingStarted], &QAction::triggered, this, &MainWindow::showGettingStarted);
    connect(start, &FirstStart::logMessage, this, &MainWindow::showLog);
    connect(start, &FirstStart::themeChosen, m_themes, &ThemeMenu::beginOrChoose);
    connect(start, &FirstStart::recordingWanted, this, &MainWindow::openRecordingFile);
    connect(start, &FirstStart::inputUnwanted, this, &MainWindow::closeInput);
    connect(start, &FirstStart::settingsEntered, this, &MainWindow::startWith);
    connect(start, &FirstStart::demoBegun, this, [this](SettingGroups changed) {
        takeRunSettings(changed);
        m_session->restart({});
    });
    connect(start, &FirstStart::demoEnded, this, [this](SettingGroups changed) {
        takeRunSettings(changed);
        m_session->forgetPicture(); // made-up traffic over the operator's own maps could be taken for his
    });
    connect(this, &MainWindow::inputOpened, start, &FirstStart::onInputOpened);
    connect(this, &MainWindow::inputClosed, start, &FirstStart::onInputClosed);
    connect(this, &MainWindow::inputFailed, start, &FirstStart::onInputClosed);
}

void MainWindow::keepInput()
{
    auto *reopening = new Reopening(m_session.get(), this);
    connect(reopening, &Reopening::message, this, &MainWindow::showLog);
    connect(reopening, &Reopening::due, this, [this] {
        if (m_session->state() == InputSession::State::Closed) {
            openInput();
        }
    });
    // A recording ends as it should.
    connect(m_session.get(), &InputSession::openingBegun, reopening,
        [this, reopening] { reopening->setWanted(config().inputAutoStart && !m_session->replaying()); });
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
    const auto on = [this](
                        ActionId id, auto slot) { connect((*m_actions)[id], &QAction::triggered, m_geoWidget, slot); };
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
}

void MainWindow::connectTrackActions()
{
    QAction *label = (*m_actions)[ActionId::ToggleTrackLabel];
    connect(label, &QAction::toggled, m_trackDisplay, &GeoTrackDisplay::showLabel);
    // The format window switches labels too.
    connect(m_trackDisplay, &GeoTrackDisplay::polluted, label,
        [this, label] { label->setChecked(m_trackDisplay->labelVisible()); });
    label->setChecked(m_trackDisplay->labelVisible());
    connectLabelActions();

    const auto toggleDock = [this](ActionId id, QDockWidget *dock) {
        QAction *action = (*m_actions)[id];
        connect(action, &QAction::triggered, dock, &QWidget::setVisible);
        // A dock behind another's tab is there all the same.
        connect(dock->toggleViewAction(), &QAction::toggled, action, &QAction::setChecked);
        action->setChecked(dock->toggleViewAction()->isChecked());
    };
    connect(m_lists.get(), &ListPanes::failed, this, [this](const QString &text) { showLog(LogLevel::Warning, text); });
    toggleDock(ActionId::ToggleTrackList, m_lists->trackDock());
    toggleDock(ActionId::ToggleAlertList, m_lists->alertDock());
}

void MainWindow::connectLabelActions()
{
    GeoTrackDisplay *tracks = m_trackDisplay;
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
    auto *chip = new ScopeChip(m_geoWidget, 1);
    // Later: it comes in the midst of painting.
    const auto note = [chip](int count) {
        const QString text = count == 1 ? tr("1 label shortened") : tr("%1 labels shortened").arg(count);
        chip->showText(count > 0 ? text : QString());
    };
    // Later: it comes in the midst of painting.
    connect(tracks, &GeoTrackDisplay::shortenedLabelsChanged, chip, note, Qt::QueuedConnection);
}

void MainWindow::connectMapWindows()
{
    MapWindows *maps = m_mapWindows.get();
    connect(m_layoutMenu.get(), &LayoutMenu::logMessage, this, &MainWindow::showLog);
    connect(maps, &MapWindows::logMessage, this, &MainWindow::showLog);
    connect(maps, &MapWindows::loading, this, &MainWindow::showMapLoadInfo);
    connect(maps, &MapWindows::loaded, this, [this] { m_statusLine->clearProgress(); });
    connect(maps, &MapWindows::centerRequested, this, [this](const GeoCoordinate &center) { m_home->jumpTo(center); });
    const auto store = [this](QString Config::*member, const QString &file) {
        editConfig([member, &file](Config &config) {
            if (MapPlaces::resolve(config.*member) != file) {
                config.*member = AppPaths::storePath(file);
            }
        });
        m_mapWindows->reload(m_config.live()); // the place of the setting may have got its file just now
    };
    connect(maps, &MapWindows::indexChosen, this, [store](const QString &file) { store(&Config::mapIndex, file); });
    connect(maps, &MapWindows::styleSheetChosen, this,
        [store](const QString &file) { store(&Config::mapStyleSheet, file); });
}

void MainWindow::connectSecondViews()
{
    SecondViews *views = m_views.get();
    connect((*m_actions)[ActionId::NewPlanView], &QAction::triggered, views, &SecondViews::open);
    connect(m_pump.get(), &SnapshotPump::snapshotTaken, views, [this] { m_views->setSnapshot(m_pump->newest()); });
    connect(m_pump.get(), &SnapshotPump::weatherTaken, views, &SecondViews::showWeather);
    connect(m_pump.get(), &SnapshotPump::radialTaken, views, &SecondViews::showRadial);
    connect(m_host.engine(), &DataEngine::antennaRotated, views, &SecondViews::antennaRotated);
    connect(m_host.engine(), &DataEngine::antennaNorthCrossed, views, &SecondViews::antennaNorthCrossed);
    connect(views, &SecondViews::trackSelected, m_trackCommands.get(), &TrackCommands::select);
    connect(views, &SecondViews::explainRequested, m_trackCommands.get(), &TrackCommands::trackToExplain);
    connect(views, &SecondViews::acknowledgeRequested, m_trackDisplay, &GeoTrackDisplay::acknowledgeTrack);
    connect(views, &SecondViews::logMessage, this, &MainWindow::showLog);
    connect(views, &SecondViews::tileConsentGiven, this,
        [this] { editConfig([](Config &config) { config.mapTileConsent = true; }); });
}
