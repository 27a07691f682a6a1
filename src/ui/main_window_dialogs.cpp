// The dialogs that the operator opens.

#include "app/app_paths.h"
#include "first_start/first_start.h"
#include "help/about_window.h"
#include "help/changelog_window.h"
#include "help/cheat_sheet_window.h"
#include "help/help.h"
#include "profiles/profile_window.h"
#include "sensors/sensor_info.h"
#include "sensors/sensor_manager.h"
#include "settings/config_window.h"
#include "settings/lock_commands.h"
#include "settings/sensor_manager_window.h"
#include "tile_windows/tile_maps.h"
#include "ui/input_session.h"
#include "ui/main_window.h"
#include "ui/map_windows.h"
#include "ui/snapshot_pump.h"
#include "ui/stats_window.h"
#include "widgets/window_opening.h"

#include <QMenuBar>

void MainWindow::showConfigWindow()
{
    auto *window = new ConfigWindow(m_config.live(), m_sensors.get(), this);
    window->setConsent([this](const Config &edited) { return m_mapWindows->settle(edited); });
    window->setEngine(&m_host);
    if (m_tileMaps->barred()) {
        window->barTileServices();
    }
    window->setInputRunning(!m_session->isClosed());
    connect(m_session.get(), &InputSession::changed, window,
        [this, window] { window->setInputRunning(!m_session->isClosed()); });
    connect(window, &ConfigWindow::configApplied, this, &MainWindow::takeSettings);
    connect(window, &ConfigWindow::restartWanted, this, &MainWindow::restart);
    connect(window, &QDialog::finished, m_lock.get(),
        [this, before = m_config.live().settingsLock] { m_lock->lockIfNew(before); });
    connect(&m_config, &RunConfig::writeFailed, window, &ConfigWindow::showSaveProblem);
    openOver(window);
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

void MainWindow::showStatsWindow()
{
    m_pump->publishDropStats(); // otherwise only once a minute
    bringUp(m_stats);
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
    const auto tell = [this, window] {
        window->setInputRunning(!m_session->isClosed());
        window->setInputSensor(m_session->sensor());
    };
    tell();
    connect(m_session.get(), &InputSession::changed, window, tell);
    connect(window, &SensorManagerWindow::sensorChosen, this, &MainWindow::chooseSensor);
    connect(window, &SensorManagerWindow::sensorChosen, window, tell); // after it has been taken over
    connect(window, &SensorManagerWindow::databaseFileChanged, this, [this](const QString &file) {
        editConfig([&file](Config &config) { config.sensorDatabase = AppPaths::storePath(file); });
    });
    openOver(window);
}
