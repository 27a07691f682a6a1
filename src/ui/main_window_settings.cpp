// Settings and databases, and who is told of them.

#include "airdb/lib_air_db.h"
#include "app/app_paths.h"
#include "app/map_places.h"
#include "lists/list_panes.h"
#include "plan_view/plan_display.h"
#include "second_view/second_views.h"
#include "sensors/sensor_info.h"
#include "sensors/sensor_manager.h"
#include "tile_windows/tile_maps.h"
#include "ui/actions.h"
#include "ui/home_view.h"
#include "ui/input_notices.h"
#include "ui/input_session.h"
#include "ui/layout_menu.h"
#include "ui/main_window.h"
#include "ui/map_windows.h"
#include "ui/messages.h"
#include "ui/snapshot_pump.h"
#include "ui/status_read_outs.h"
#include "ui/theme_menu.h"
#include "ui/view_windows.h"
#include "widgets/widget_style.h"

#include <QDateTime>
#include <QFileInfo>

void MainWindow::applyConfig(SettingGroups changed)
{
    const Config &config = m_config.live();
    m_plan->applyConfig(config, changed);
    m_views->applyConfig(config, changed);
    if (changed & SettingGroup::General) {
        applyLook();
        m_messages->applyConfig(config);
    }
    if (changed & SettingGroup::Tiles) {
        m_tileMaps->applyConfig(config);
    }
    if (changed & SettingGroup::StaticMaps) {
        m_mapWindows->reload(config);
    }
    checkSettingToggles();
    m_viewWindows->applyConfig(config, changed);
    m_notices->applyConfig(config, changed);
    showTitle();
}

void MainWindow::applyLook()
{
    applyWidgetStyle(config().displayStyle);
    applyFontScale(config().displayFontScale);
    m_readOuts->setTimeZone(config().displayLocalTimeZoneName);
    m_actions->showValue(ActionId::Theme, Theme::shownName(config().displayTheme));
    m_actions->setToolBarText(config().displayToolbarText);
    updateClock();
}

void MainWindow::applySensor()
{
    m_session->setSensor(m_config.live().sensor(nullptr));
    m_sensors->addDetails(m_session->sensor().data());
    placeDefaultLayout();
    m_plan->setSensor(m_session->sensor());
    m_views->setSensor(m_session->sensor());
    const GeoCoordinate place = m_session->sensor() ? m_session->sensor()->location() : GeoCoordinate();
    m_readOuts->setSensorPlace(place);
    m_lists->setSensorPlace(place);
    beginRadarPicture();
    m_notices->setSensor(m_session->sensor().data());
}

void MainWindow::placeDefaultLayout()
{
    if (m_home->place().isValid()) {
        m_layoutMenu->placeDefault(m_home->planePoint(m_home->place()));
    }
}

void MainWindow::beginRadarPicture()
{
    QList<QSharedPointer<SensorInfo>> sensors;
    for (const QString &name : m_sensors->sensorNames()) {
        sensors.append(m_sensors->findSensor(name));
    }
    m_plan->beginRadarPicture(sensors);
    m_views->beginRadarPicture(sensors);
}

void MainWindow::showSensorPlace()
{
    m_layoutMenu->leave();
    m_home->showSensor();
}

void MainWindow::takeRunSettings(SettingGroups changed)
{
    applyConfig(changed);
    if (changed & SettingGroup::Sensor) {
        applySensor();
        showSensorPlace();
    }
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
    if (changed & SettingGroup::Replay) {
        m_session->setAutoRewind(m_config.live().inputFileAutoRewind);
    }
    if (m_config.live().sensorName != before.sensorName || m_home->place() != place) {
        showSensorPlace();
    }
    if (changed & SettingGroup::PlanView) {
        placeDefaultLayout();
    }
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

void MainWindow::editConfig(const std::function<void(Config &)> &change)
{
    const Config before = m_config.live();
    if (!m_config.edit(change)) {
        Config edited = before; // the change may refer to what is gone when it comes
        change(edited);
        m_config.lock().whenUnlocked([this, before, edited] {
            editConfig([&before, &edited](Config &config) { copyChanges(before, edited, config); });
        });
        return;
    }
    applyConfig(Config::changedGroups(before, m_config.live()));
}

void MainWindow::changeSensor(const std::function<void(Config &)> &change)
{
    m_config.lock().whenUnlocked([this, change] {
        editConfig(change);
        applySensor();
        if (inputOpen()) {
            const auto snapshot = m_pump->newest();
            m_session->restart(m_session->replaying() && snapshot ? snapshot->time : QDateTime());
        }
    });
}

void MainWindow::chooseSensor(const QSharedPointer<SensorInfo> &sensor)
{
    editConfig([&sensor](Config &config) { config.setSensor(sensor); });
    applySensor();
    showSensorPlace();
}

void MainWindow::storeMapFile(QString Config::*member, const QString &file)
{
    editConfig([member, &file](Config &config) {
        if (MapPlaces::resolve(config.*member) != file) {
            config.*member = AppPaths::storePath(file);
        }
    });
    m_mapWindows->reload(m_config.live()); // the place of the setting may have got its file just now
}

void MainWindow::loadSensorDatabase()
{
    const QString file = AppPaths::resolvePath(m_config.live().sensorDatabase);
    if (!file.isEmpty() && !m_sensors->loadFromJsonFile(QFileInfo(file))) {
        showLog(LogLevel::Warning, tr("Cannot read the sensor file %1").arg(file));
    }
}

void MainWindow::loadAircraftDatabase()
{
    const QFileInfo file(AppPaths::exeDir() + "/../share/vyxdisplay/airdb.dat");
    korvane::airdb::LibAirDB database;
    if (!database.loadFromDataFile(file)) {
        showLog(LogLevel::Warning, tr("Cannot load the aircraft database: %1").arg(database.lastError()));
    }
    m_lists->setAddresses(database.getICAOAddrDict());
}
