// The dialogs that the operator opens, and what they change.

#include "app/app_paths.h"
#include "assessment_windows/sensor_check.h"
#include "display/geo_map_display.h"
#include "first_start/first_start.h"
#include "health/health_dock.h"
#include "help/about_window.h"
#include "help/changelog_window.h"
#include "help/cheat_sheet_window.h"
#include "help/help.h"
#include "inspection/inspection.h"
#include "orientation/geo_range_ring_map.h"
#include "plan_view/geo_widget.h"
#include "profiles/profile_window.h"
#include "raw_view/stream_windows.h"
#include "sensors/sensor_info.h"
#include "sensors/sensor_manager.h"
#include "settings/config_window.h"
#include "settings/lock_commands.h"
#include "settings/sensor_manager_window.h"
#include "settings/settings_reference.h"
#include "settings/track_label_format_window.h"
#include "tile_windows/tile_maps.h"
#include "ui/actions.h"
#include "ui/home_view.h"
#include "ui/input_session.h"
#include "ui/layout_menu.h"
#include "ui/main_window.h"
#include "ui/map_windows.h"
#include "ui/range_ring_window.h"
#include "ui/rotation_window.h"
#include "ui/set_center_window.h"
#include "ui/snapshot_pump.h"
#include "ui/stats_window.h"
#include "ui/theme_menu.h"
#include "ui/track_commands.h"
#include "ui/weather_intensity_window.h"

#include <QAction>
#include <QDockWidget>
#include <QMenuBar>

namespace {

// Blocks the main window only, not the program: the picture goes on.
void openOver(QDialog *dialog)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void bringUp(QDialog *dialog)
{
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

} // namespace

void MainWindow::connectDialogActions()
{
    const auto on = [this](ActionId id, auto slot) { connect((*m_actions)[id], &QAction::triggered, this, slot); };
    const auto onUnlocked = [this](ActionId id, auto slot) {
        connect((*m_actions)[id], &QAction::triggered, this,
            [this, slot] { m_config.lock().whenUnlocked([this, slot] { (this->*slot)(); }); });
    };
    onUnlocked(ActionId::Settings, &MainWindow::showConfigWindow);
    onUnlocked(ActionId::TrackLabelFormat, &MainWindow::showTrackLabelFormatWindow);
    onUnlocked(ActionId::SensorManager, &MainWindow::launchSensorManager);
    onUnlocked(ActionId::TileDownloader, &MainWindow::showBingMapsDownloaderWindow);
    on(ActionId::NewWindow, &MainWindow::showProfileWindow);
    on(ActionId::Rotate, &MainWindow::showRotationWindow);
    on(ActionId::GoTo, &MainWindow::showSetCenterWindow);
    on(ActionId::RangeRings, &MainWindow::showRangeRingWindow);
    on(ActionId::WeatherIntensity, &MainWindow::showWeatherIntensityWindow);
    on(ActionId::CheatSheet, &MainWindow::showCheatSheet);
    m_help = new Help(this);
    m_help->setMadePage(QStringLiteral("settings-reference.md"), &SettingsReference::page);
    connect(this, &MainWindow::shutdownBegun, m_help, &Help::closeWindow);
    on(ActionId::Contents, &MainWindow::showHelp);
    on(ActionId::WhatsNew, &MainWindow::showChangelog);
    on(ActionId::About, &MainWindow::showAbout);
    on(ActionId::Statistics, &MainWindow::showStatsWindow);
    m_sensorCheck = std::make_unique<SensorCheck>(m_mapDisplay, &m_host.shared().projector, m_sensors.get(), this);
    m_sensorCheck->setSwitchTap([this](const std::shared_ptr<StreamTap> &tap, bool open) {
        open ? m_host.openTap(tap) : m_host.closeTap(tap);
    });
    connect((*m_actions)[ActionId::SensorCheck], &QAction::triggered, m_sensorCheck.get(), &SensorCheck::show);
    connectStreamWindows();
}

void MainWindow::connectStreamWindows()
{
    m_streamWindows = std::make_unique<StreamWindows>(
        this, &m_host, [this] { return m_session->state() == InputSession::State::Open ? &m_config.live() : nullptr; });
    StreamWindows *stream = m_streamWindows.get();
    connect(m_session.get(), &InputSession::openingBegun, stream, &StreamWindows::beginInput);
    auto *health = findChild<HealthDock *>();
    connect(health, &QDockWidget::visibilityChanged, stream, &StreamWindows::setWatched);
    connect(stream, &StreamWindows::diagnosed, health, &HealthDock::setDiagnosis);
    connect((*m_actions)[ActionId::RawView], &QAction::triggered, stream, &StreamWindows::showRawView);
    connect((*m_actions)[ActionId::DiagnoseInput], &QAction::triggered, stream, &StreamWindows::showDiagnosis);
}

void MainWindow::makeInspection()
{
    m_inspection = std::make_unique<Inspection>(this,
        Inspection::Sources{m_geoWidget, &m_host, &m_config.live(), [this] { return m_pump->newest(); },
            [this] { return m_session->sensor(); }, [this] { return inputFacts(); }});
    Inspection *inspection = m_inspection.get();
    QAction *explain = (*m_actions)[ActionId::ExplainTrack];
    connect(explain, &QAction::triggered, inspection, [inspection, explain](bool on) {
        inspection->toggle(on);
        explain->setChecked(inspection->dock()->isVisible());
    });
    connect(inspection->dock()->toggleViewAction(), &QAction::toggled, explain, &QAction::setChecked);
    connect((*m_actions)[ActionId::WhyNotShown], &QAction::triggered, inspection, &Inspection::showAbsenceWindow);
    connect(m_trackCommands.get(), &TrackCommands::trackToExplain, inspection, &Inspection::explainSelectedTrack);
    connect(m_trackCommands.get(), &TrackCommands::placeMenuMade, inspection, &Inspection::addPlaceActions);
    connect(m_trackCommands.get(), &TrackCommands::alertToExplain, inspection, &Inspection::explainAlertOf);
    connect(inspection, &Inspection::trackChosen, m_trackCommands.get(), &TrackCommands::select);
}

AbsenceFacts MainWindow::inputFacts() const
{
    AbsenceFacts facts;
    facts.inputOpen = inputOpen();
    facts.paused = m_session->paused();
    if (config().processorAsterixVerifySacSic && m_session->sensor()) {
        facts.sensorSac = m_session->sensor()->sac();
        facts.sensorSic = m_session->sensor()->sic();
    }
    return facts;
}

void MainWindow::showConfigWindow()
{
    auto *window = new ConfigWindow(m_config.live(), m_sensors.get(), this);
    window->setConsent([this](const Config &edited) { return m_mapWindows->settle(edited); });
    window->setEngine(&m_host);
    if (m_tileMaps->barred()) {
        window->barTileServices();
    }
    window->setInputRunning(m_session->state() != InputSession::State::Closed);
    connect(m_session.get(), &InputSession::changed, window,
        [this, window] { window->setInputRunning(m_session->state() != InputSession::State::Closed); });
    connect(window, &ConfigWindow::configApplied, this, &MainWindow::takeSettings);
    connect(window, &ConfigWindow::restartWanted, this, &MainWindow::restart);
    connect(window, &QDialog::finished, m_lock.get(),
        [this, before = m_config.live().settingsLock] { m_lock->lockIfNew(before); });
    connect(&m_config, &RunConfig::writeFailed, window, &ConfigWindow::showSaveProblem);
    openOver(window);
}

void MainWindow::takeSettings(const Config &edited)
{
    const SettingGroups changed = Config::changedGroups(m_config.live(), edited);
    const Config before = m_config.live();
    const GeoCoordinate place = m_home->place();
    if (!m_config.apply(edited)) {
        m_config.lock().whenUnlocked([this, edited] { takeSettings(edited); });
        return;
    }
    m_config.flush(); // the operator is told while his window is still open
    if (edited.displayTheme != before.displayTheme) {
        m_themes->noteChoice(before);
    }
    applyConfig(changed);
    if (changed & SettingGroup::Sensor) {
        applySensor();
    }
    if (m_config.live().sensorName != before.sensorName || m_home->place() != place) {
        showSensorPlace();
    }
    if (changed & SettingGroup::PlanView) {
        placeDefaultLayout();
    }
}

void MainWindow::showProfileWindow()
{
    auto *window = new ProfileWindow(this);
    connect(window, &ProfileWindow::profileChosen, this, [this](const QString &profile) {
        if (!ProfileWindow::startProgram(profile)) {
            showLog(LogLevel::Warning, tr("No window can be opened with the profile %1.").arg(profile));
        }
    });
    openOver(window);
}

void MainWindow::startWith(const Config &edited)
{
    m_config.lock().whenUnlocked([this, edited] {
        if (m_mapWindows->settle(edited)) {
            takeSettings(edited);
            m_session->restart({});
        }
    });
}

void MainWindow::showRotationWindow()
{
    auto *window = new RotationWindow(this);
    window->setRotation(m_geoWidget->currentRotation());
    connect(window, &RotationWindow::rotationEntered, m_geoWidget,
        [this](double degrees) { m_geoWidget->rotate(degrees - m_geoWidget->currentRotation()); });
    openOver(window);
}

void MainWindow::showSetCenterWindow()
{
    auto *window = new SetCenterWindow(this);
    window->setCenter(m_home->viewCenter());
    connect(
        window, &SetCenterWindow::centerEntered, this, [this](const GeoCoordinate &center) { m_home->jumpTo(center); });
    openOver(window);
}

void MainWindow::showRangeRingWindow()
{
    if (!m_windows.rangeRing) {
        m_windows.rangeRing = new RangeRingWindow(this);
        m_windows.rangeRing->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_windows.rangeRing, &RangeRingWindow::ringsEntered, this, &MainWindow::setRangeRings);
    }
    const GeoRangeRingMap *rings = m_mapDisplay->rangeRingMap();
    m_windows.rangeRing->setRings(m_home->ringCenter(), rings->number(), rings->distance());
    bringUp(m_windows.rangeRing);
}

void MainWindow::setRangeRings(const GeoCoordinate &center, int number, double distanceNauticalMiles)
{
    editConfig([number, distanceNauticalMiles](Config &config) {
        config.mapRangeRingNumber = number;
        config.mapRangeRingDistance = distanceNauticalMiles;
        config.mapRangeRingVisible = true;
    });
    m_home->placeRings(center, number, distanceNauticalMiles);
}

void MainWindow::showRangeRings()
{
    if (!config().mapRangeRingVisible) {
        editConfig([](Config &config) { config.mapRangeRingVisible = true; });
    }
}

void MainWindow::showWeatherIntensityWindow()
{
    if (!m_windows.weatherIntensity) {
        m_windows.weatherIntensity = new WeatherIntensityWindow(m_mapDisplay->weatherMap(), this);
        m_windows.weatherIntensity->setAttribute(Qt::WA_DeleteOnClose);
    }
    bringUp(m_windows.weatherIntensity);
}

void MainWindow::showTrackLabelFormatWindow()
{
    if (!m_windows.trackLabelFormat) {
        m_windows.trackLabelFormat = new TrackLabelFormatWindow(m_trackDisplay, this);
        m_windows.trackLabelFormat->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_windows.trackLabelFormat->setGround(m_config.live().mapBackgroundColor);
    bringUp(m_windows.trackLabelFormat);
}

void MainWindow::showStatsWindow()
{
    m_pump->publishDropStats(); // otherwise only once a minute
    bringUp(m_windows.stats);
}

void MainWindow::showGettingStarted()
{
    m_config.lock().whenUnlocked([this] { m_firstStart->show(); });
}

void MainWindow::showCheatSheet()
{
    openOver(new CheatSheetWindow(*menuBar(), this));
}

void MainWindow::showHelp()
{
    m_help->showContents();
}

void MainWindow::showAbout()
{
    openOver(new AboutWindow(this));
}

void MainWindow::showChangelog()
{
    openOver(new ChangelogWindow(this));
}

void MainWindow::showChangesAfterUpdate()
{
    if (ChangelogWindow::noteVersion()) {
        // In nobody's way: it may be some time until somebody comes who reads it.
        auto *window = new ChangelogWindow(this);
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->show();
    }
}

void MainWindow::launchSensorManager()
{
    auto *window =
        new SensorManagerWindow(m_sensors.get(), AppPaths::resolvePath(m_config.live().sensorDatabase), this);
    window->setInputRunning(m_session->state() != InputSession::State::Closed);
    connect(m_session.get(), &InputSession::changed, window,
        [this, window] { window->setInputRunning(m_session->state() != InputSession::State::Closed); });
    connect(window, &SensorManagerWindow::sensorChosen, this, &MainWindow::chooseSensor);
    connect(window, &SensorManagerWindow::databaseFileChanged, this, [this](const QString &file) {
        editConfig([&file](Config &config) { config.sensorDatabase = AppPaths::storePath(file); });
    });
    openOver(window);
}

void MainWindow::chooseSensor(const QSharedPointer<SensorInfo> &sensor)
{
    editConfig([&sensor](Config &config) { config.setSensor(sensor); });
    applySensor();
    showSensorPlace();
}

void MainWindow::showSensorPlace()
{
    m_layoutMenu->leave();
    m_home->showSensor();
}
