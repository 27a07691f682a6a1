#include "window_tour.h"

#include "health/source_window.h"
#include "lists/list_view.h"
#include "made_source.h"
#include "map_windows/map_import_window.h"
#include "played_scenario.h"
#include "sensors/sensor_manager.h"
#include "settings/config_window.h"
#include "settings/password_window.h"
#include "settings/sensor_edit_window.h"
#include "settings/sensor_site_window.h"
#include "settings/unlock_window.h"
#include "ui/actions.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <QUdpSocket>

#include <algorithm>

namespace {

constexpr char Traffic[] = R"({"name": "t", "startTime": "2025-06-01T06:00:00Z",
    "radars": [{"name": "S", "sac": 1, "sic": 2, "lat": 48, "lon": 16}], "flights": [
    {"callsign": "VYX1234", "address": "780A12", "squawk": "1234", "performance": {"speed": 450},
        "route": [{"lat": 48.5, "lon": 16.2, "altitude": 20000}, {"lat": 47.5, "lon": 17.5, "altitude": 30000}]},
    {"callsign": "VYX77", "address": "4406C1", "squawk": "7700", "performance": {"speed": 300},
        "route": [{"lat": 48.2, "lon": 15.5, "altitude": 9000}, {"lat": 48.4, "lon": 17.0, "altitude": 9000}]},
    {"squawk": "2000", "performance": {"speed": 120},
        "route": [{"lat": 47.9, "lon": 16.4, "altitude": 3000}, {"lat": 47.8, "lon": 15.0, "altitude": 3000}]}]})";

QWidgetList shownWindows()
{
    QWidgetList shown = QApplication::topLevelWidgets();
    shown.removeIf([](const QWidget *window) {
        return !window->isVisible() || window->windowType() == Qt::ToolTip || window->windowType() == Qt::Popup;
    });
    return shown;
}

QWidget *openedSince(const QWidgetList &before)
{
    for (QWidget *window : shownWindows()) {
        if (!before.contains(window)) {
            return window;
        }
    }
    return nullptr;
}

void settle()
{
    QTest::qWait(1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCoreApplication::processEvents();
}

// What shows other fields for each of its choices.
QList<QComboBox *> choosers(QWidget *window)
{
    QList<QComboBox *> found;
    for (const char *name : {"inputComm", "sensorType", "processorType"}) {
        auto *box = window->findChild<QComboBox *>(QLatin1String(name));
        if (box && box->isVisible() && box->isEnabled()) {
            found.append(box);
        }
    }
    return found;
}

} // namespace

bool WindowTour::fillScope()
{
    const Scenario scenario = PlayedScenario::read(Traffic);
    TrafficSource source(scenario, 1);
    QUdpSocket socket;
    while (source.nextTime() < 30) {
        for (const QByteArray &datagram : *source.next().datagrams) {
            socket.writeDatagram(datagram, QHostAddress::LocalHost, m_port);
        }
    }
    const auto lists = m_window.findChildren<ListView *>();
    const auto hasTracks = [](const ListView *list) { return list->model()->rowCount() >= 3; };
    return QTest::qWaitFor([&] { return std::any_of(lists.begin(), lists.end(), hasTracks); }, 5000);
}

void WindowTour::run(const Visit &visit)
{
    m_visit = visit;
    visitMainWindow();
    visitMenus();
    visitActions();
    visitDialogsOfDialogs();
}

void WindowTour::visitMainWindow()
{
    const auto docks = m_window.findChildren<QDockWidget *>();
    for (QDockWidget *dock : docks) {
        const bool shown = dock->isVisible();
        dock->show();
        dock->raise();
        settle();
        m_visit(QStringLiteral("main, ") + dock->objectName(), &m_window);
        dock->setVisible(shown);
    }
}

void WindowTour::visitMenus()
{
    const auto actions = m_window.menuBar()->actions();
    for (qsizetype i = 0; i < actions.size(); ++i) {
        QMenu *menu = actions[i]->menu();
        menu->popup(m_window.mapToGlobal(QPoint(10, 10)));
        settle();
        m_visit(QStringLiteral("menu %1").arg(i), menu);
        menu->close();
    }
}

void WindowTour::visitActions()
{
    const auto &actions = *m_window.findChild<Actions *>();
    for (const ActionId id : {ActionId::PlaybackWindow, ActionId::Settings, ActionId::NewWindow, ActionId::LockSettings,
             ActionId::Rotate, ActionId::GoTo, ActionId::SaveLayout, ActionId::NewPlanView, ActionId::Statistics,
             ActionId::RawView, ActionId::DiagnoseInput, ActionId::SensorManager, ActionId::SensorCheck,
             ActionId::GettingStarted, ActionId::CheatSheet, ActionId::Contents, ActionId::WhatsNew, ActionId::About,
             ActionId::TrackLabelFormat, ActionId::WhyNotShown, ActionId::StaticMaps, ActionId::StaticMapEditor,
             ActionId::TileDownloader, ActionId::WeatherIntensity, ActionId::RangeRings}) {
        const auto before = shownWindows();
        actions[id]->trigger();
        QWidget *opened = nullptr;
        if (!QTest::qWaitFor([&] { return (opened = openedSince(before)) != nullptr; }, 2000)) {
            m_problems += actions[id]->text() + QStringLiteral(" opens nothing");
            continue;
        }
        visitDialog(QString::fromLatin1(opened->metaObject()->className()), opened);
    }
}

// Those that come up where another one is at work.
void WindowTour::visitDialogsOfDialogs()
{
    const SensorManager sensors;
    SensorEditWindow edit(nullptr, &sensors, &m_window);
    visitDialog("SensorEditWindow", &edit);
    SensorSiteWindow site("TEST", true, &m_window);
    visitDialog("SensorSiteWindow", &site);
    PasswordWindow password(true, &m_window);
    visitDialog("PasswordWindow, changing", &password);
    SettingsLock lock(SettingsLock::stored("x"));
    UnlockWindow unlock(&lock, &m_window);
    visitDialog("UnlockWindow", &unlock);
    MapImportWindow import("/a/map.geojson", {"/a", {"coast"}}, &m_window);
    visitDialog("MapImportWindow", &import);
    SourceWindow source(&m_window);
    const MadeSource made = MadeSource().silentFor(20.0);
    source.setSource({made.source, made.judge()});
    visitDialog("SourceWindow", &source);
}

void WindowTour::visitDialog(const QString &name, QWidget *dialog)
{
    dialog->show();
    settle();
    visitPages(name, dialog);
    dialog->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WindowTour::visitPages(const QString &name, QWidget *window)
{
    if (auto *settings = qobject_cast<ConfigWindow *>(window)) {
        auto *list = settings->findChild<QListWidget *>();
        for (int row = 0; row < list->count(); ++row) {
            list->setCurrentRow(row);
            settle();
            visitStops(QStringLiteral("%1, page %2").arg(name).arg(row), window);
        }
        return;
    }
    const auto tabs = window->findChildren<QTabWidget *>();
    auto *steps = window->inherits("FirstStartGuide") ? window->findChild<QStackedWidget *>() : nullptr;
    if (tabs.isEmpty() && !steps) {
        visitStops(name, window);
    }
    for (QTabWidget *tab : tabs) {
        for (int i = 0; i < tab->count(); ++i) {
            tab->setCurrentIndex(i);
            settle();
            visitStops(QStringLiteral("%1, %2 %3").arg(name, tab->objectName()).arg(i), window);
        }
    }
    for (int i = 0; steps && i < steps->count(); ++i) {
        steps->setCurrentIndex(i);
        settle();
        visitStops(QStringLiteral("%1, step %2").arg(name).arg(i), window);
    }
}

void WindowTour::visitStops(const QString &name, QWidget *window)
{
    m_visit(name, window);
    const auto boxes = choosers(window);
    for (QComboBox *box : boxes) {
        const int first = box->currentIndex();
        for (int i = 0; i < box->count(); ++i) {
            if (i != first) {
                box->setCurrentIndex(i);
                settle();
                m_visit(QStringLiteral("%1, %2 %3").arg(name, box->objectName()).arg(i), window);
            }
        }
        box->setCurrentIndex(first);
    }
}
