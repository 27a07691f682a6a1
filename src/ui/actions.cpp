#include "ui/actions.h"

#include "widgets/action_icon.h"
#include "widgets/resize_watch.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <iterator>

namespace {

// clang-format off
// The translation context is "Actions".
constexpr ActionSpec Specs[] = {
    {ActionId::Start, QT_TRANSLATE_NOOP("Actions", "Start"), QT_TRANSLATE_NOOP("Actions", "Start"),
        QT_TRANSLATE_NOOP("Actions", "Start Input"), "", "start", false, MenuId::File, ToolBarId::General, false},
    {ActionId::Stop, QT_TRANSLATE_NOOP("Actions", "Stop"), QT_TRANSLATE_NOOP("Actions", "Stop"),
        QT_TRANSLATE_NOOP("Actions", "Stop Input"), "", "stop", false, MenuId::File, ToolBarId::General, false},
    {ActionId::Pause, QT_TRANSLATE_NOOP("Actions", "Pause"), QT_TRANSLATE_NOOP("Actions", "Pause"),
        QT_TRANSLATE_NOOP("Actions", "Pause"), "", "pause", true, MenuId::File, ToolBarId::General, false},
    {ActionId::Replay, QT_TRANSLATE_NOOP("Actions", "Replay Recording File  ..."),
        QT_TRANSLATE_NOOP("Actions", "Replay"), QT_TRANSLATE_NOOP("Actions", "Replay from recording file."), "Ctrl+O",
        "replay", false, MenuId::File, ToolBarId::General, true},
    {ActionId::PlaybackWindow, QT_TRANSLATE_NOOP("Actions", "Playback Window"), "",
        QT_TRANSLATE_NOOP("Actions", "Show the playback control window"), "Ctrl+P", "playback-window", false,
        MenuId::File, ToolBarId::None, false},
    {ActionId::ReplaySpeed, QT_TRANSLATE_NOOP("Actions", "Replay Speed"), QT_TRANSLATE_NOOP("Actions", "Speed"),
        QT_TRANSLATE_NOOP("Actions", "Replay Speed"), "", "replay-speed", false, MenuId::File, ToolBarId::General,
        false},
    {ActionId::Record, QT_TRANSLATE_NOOP("Actions", "Record..."), QT_TRANSLATE_NOOP("Actions", "Record"),
        QT_TRANSLATE_NOOP("Actions", "Record what the input receives to a file"), "Ctrl+R", "record", true,
        MenuId::File, ToolBarId::General, false},
    {ActionId::Settings, QT_TRANSLATE_NOOP("Actions", "Settings..."), QT_TRANSLATE_NOOP("Actions", "Settings"),
        "", "F10", "settings", false, MenuId::File, ToolBarId::General, true},
    {ActionId::NewWindow, QT_TRANSLATE_NOOP("Actions", "New Window With Profile..."), "",
        QT_TRANSLATE_NOOP("Actions", "Start the program once more, with settings of its own"), "Ctrl+Shift+N",
        "new-window", false, MenuId::File, ToolBarId::None, false},
    {ActionId::LockSettings, QT_TRANSLATE_NOOP("Actions", "Lock Settings..."), "",
        QT_TRANSLATE_NOOP("Actions", "Who does not have the password changes no settings"), "", "lock-settings", false,
        MenuId::File, ToolBarId::None, false},
    {ActionId::Exit, QT_TRANSLATE_NOOP("Actions", "Exit"), "", "", "", "exit", false,
        MenuId::File, ToolBarId::None, true},

    {ActionId::ZoomIn, QT_TRANSLATE_NOOP("Actions", "Zoom In"), QT_TRANSLATE_NOOP("Actions", "In"),
        "", "=", "zoom-in", false, MenuId::View, ToolBarId::View, false},
    {ActionId::ZoomOut, QT_TRANSLATE_NOOP("Actions", "ZoomOut"), QT_TRANSLATE_NOOP("Actions", "Out"),
        "", "-", "zoom-out", false, MenuId::View, ToolBarId::View, false},
    {ActionId::RotateRight, QT_TRANSLATE_NOOP("Actions", "Rotate Right"), QT_TRANSLATE_NOOP("Actions", "CW"),
        QT_TRANSLATE_NOOP("Actions", "Rotate Right"), "]", "rotate-right", false, MenuId::View, ToolBarId::View, true},
    {ActionId::RotateLeft, QT_TRANSLATE_NOOP("Actions", "Rotate Left"), QT_TRANSLATE_NOOP("Actions", "CCW"),
        QT_TRANSLATE_NOOP("Actions", "Rotate Left"), "[", "rotate-left", false, MenuId::View, ToolBarId::View, false},
    {ActionId::RotateNorthUp, QT_TRANSLATE_NOOP("Actions", "Rotate North Up"),
        QT_TRANSLATE_NOOP("Actions", "North Up"), QT_TRANSLATE_NOOP("Actions", "Rotate North Up"), "", "north-up",
        false, MenuId::View, ToolBarId::View, false},
    {ActionId::Rotate, QT_TRANSLATE_NOOP("Actions", "Rotate..."), "", QT_TRANSLATE_NOOP("Actions", "Rotate view"),
        "", "rotate-view", false, MenuId::View, ToolBarId::None, false},
    {ActionId::MoveLeft, QT_TRANSLATE_NOOP("Actions", "Move Left"), QT_TRANSLATE_NOOP("Actions", "Left"),
        "", "Left", "move-left", false, MenuId::View, ToolBarId::None, true},
    {ActionId::MoveUp, QT_TRANSLATE_NOOP("Actions", "Move Up"), QT_TRANSLATE_NOOP("Actions", "Up"),
        "", "Up", "move-up", false, MenuId::View, ToolBarId::None, false},
    {ActionId::MoveDown, QT_TRANSLATE_NOOP("Actions", "Move Down"), QT_TRANSLATE_NOOP("Actions", "Down"),
        "", "Down", "move-down", false, MenuId::View, ToolBarId::None, false},
    {ActionId::MoveRight, QT_TRANSLATE_NOOP("Actions", "Move Right"), QT_TRANSLATE_NOOP("Actions", "Right"),
        "", "Right", "move-right", false, MenuId::View, ToolBarId::None, false},
    {ActionId::GoTo, QT_TRANSLATE_NOOP("Actions", "Go To..."), QT_TRANSLATE_NOOP("Actions", "Go To"),
        QT_TRANSLATE_NOOP("Actions", "Go to specified location..."), "Ctrl+G", "go-to", false,
        MenuId::View, ToolBarId::View, true},
    {ActionId::SaveLayout, QT_TRANSLATE_NOOP("Actions", "Save Layout..."), QT_TRANSLATE_NOOP("Actions", "Save"),
        QT_TRANSLATE_NOOP("Actions", "Save current map layout."), "", "save-layout", false,
        MenuId::View, ToolBarId::None, true},
    {ActionId::LoadLayout, QT_TRANSLATE_NOOP("Actions", "Load Layout"), QT_TRANSLATE_NOOP("Actions", "Load"),
        "", "", "load-layout", false, MenuId::View, ToolBarId::View, false},
    {ActionId::Theme, QT_TRANSLATE_NOOP("Actions", "Theme"), "",
        QT_TRANSLATE_NOOP("Actions", "Colours, fonts and map style of scope and windows"), "", "theme", false,
        MenuId::View, ToolBarId::View, true},
    {ActionId::FullScreen, QT_TRANSLATE_NOOP("Actions", "Full Screen"), "", "", "Alt+F11", "full-screen", true,
        MenuId::View, ToolBarId::None, true},
    {ActionId::ShowEdges, QT_TRANSLATE_NOOP("Actions", "Show Bars and Panes"), "",
        QT_TRANSLATE_NOOP("Actions", "In full screen: all bars and panes over the scope, and away again"), "Ctrl+F11",
        "show-edges", false, MenuId::View, ToolBarId::None, false},
    {ActionId::ResizeMainWindow, QT_TRANSLATE_NOOP("Actions", "Resize Main Window"), "", "", "", "resize-window",
        false, MenuId::View, ToolBarId::None, false},
    {ActionId::NewPlanView, QT_TRANSLATE_NOOP("Actions", "New Plan View"), "",
        QT_TRANSLATE_NOOP("Actions", "The same picture in a window of its own, with its own centre, scale and layers"),
        "Ctrl+N", "plan-view", false, MenuId::View, ToolBarId::None, true},

    {ActionId::Statistics, QT_TRANSLATE_NOOP("Actions", "Statistics..."), "",
        QT_TRANSLATE_NOOP("Actions", "Show Statistics"), "F8", "statistics", false, MenuId::Tools, ToolBarId::None,
        false},
    {ActionId::RawView, QT_TRANSLATE_NOOP("Actions", "Raw View..."), "",
        QT_TRANSLATE_NOOP("Actions", "Show the records as they come, with their octets"), "F9", "raw-view", false,
        MenuId::Tools, ToolBarId::None, false},
    {ActionId::DiagnoseInput, QT_TRANSLATE_NOOP("Actions", "Diagnose Input..."), "",
        QT_TRANSLATE_NOOP("Actions", "Say in words what arrives and what is wrong with it"), "Shift+F9",
        "diagnose-input", false, MenuId::Tools, ToolBarId::None, false},
    {ActionId::SensorManager, QT_TRANSLATE_NOOP("Actions", "Sensor Manager..."), "", "", "", "sensor-manager", false,
        MenuId::Tools, ToolBarId::None, false},
    {ActionId::SensorCheck, QT_TRANSLATE_NOOP("Actions", "Sensor Check..."), "",
        QT_TRANSLATE_NOOP("Actions", "Detection, rotation and errors of radars, measured"), "Ctrl+F8", "sensor-check",
        false, MenuId::Tools, ToolBarId::None, false},

    {ActionId::ToggleTrackLabel, QT_TRANSLATE_NOOP("Actions", "Toggle Track Label"),
        QT_TRANSLATE_NOOP("Actions", "Label"), "", "", "track-label", true, MenuId::Track, ToolBarId::Track, false},
    {ActionId::TrackLabelFormat, QT_TRANSLATE_NOOP("Actions", "Track Label Format..."),
        QT_TRANSLATE_NOOP("Actions", "Format"), "", "", "track-label-format", false,
        MenuId::Track, ToolBarId::Track, false},
    {ActionId::ArrangeLabels, QT_TRANSLATE_NOOP("Actions", "Arrange Labels Automatically"), "",
        QT_TRANSLATE_NOOP("Actions", "Labels keep out of each other's way"), "Ctrl+L", "arrange-labels", true,
        MenuId::Track, ToolBarId::None, false},
    {ActionId::ResetLabel, QT_TRANSLATE_NOOP("Actions", "Reset Label"), "",
        QT_TRANSLATE_NOOP("Actions", "Give up the place to which the selected track's label was dragged"), "",
        "reset-label", false, MenuId::Track, ToolBarId::None, false},
    {ActionId::ResetAllLabels, QT_TRANSLATE_NOOP("Actions", "Reset All Labels"), "",
        QT_TRANSLATE_NOOP("Actions", "Give up the places to which labels were dragged"), "", "reset-all-labels",
        false, MenuId::Track, ToolBarId::None, false},
    {ActionId::FollowSelectedTrack, QT_TRANSLATE_NOOP("Actions", "Follow Selected Track"), "",
        QT_TRANSLATE_NOOP("Actions", "Selected track will always be put at the center of map"), "", "follow-track",
        true, MenuId::Track, ToolBarId::None, true},
    {ActionId::AcknowledgeAlert, QT_TRANSLATE_NOOP("Actions", "Acknowledge Alert"), "",
        QT_TRANSLATE_NOOP("Actions", "Alerts and emergencies of the selected track blink no longer"), "Ctrl+K",
        "acknowledge-alert", false, MenuId::Track, ToolBarId::None, true},
    {ActionId::AcknowledgeAllAlerts, QT_TRANSLATE_NOOP("Actions", "Acknowledge All Alerts"), "",
        QT_TRANSLATE_NOOP("Actions", "No alert and no emergency blinks any longer"), "Ctrl+Shift+K",
        "acknowledge-all-alerts", false, MenuId::Track, ToolBarId::None, false},
    {ActionId::ToggleTrackList, QT_TRANSLATE_NOOP("Actions", "Toggle Track List"), "", "", "", "track-list", true,
        MenuId::Track, ToolBarId::None, true},
    {ActionId::ToggleAlertList, QT_TRANSLATE_NOOP("Actions", "Toggle Alert List"), "", "", "", "alert-list", true,
        MenuId::Track, ToolBarId::None, false},
    {ActionId::ExplainTrack, QT_TRANSLATE_NOOP("Actions", "Explain Track"), "",
        QT_TRANSLATE_NOOP("Actions", "Where the values of the selected track, or what the pointer is on, come from"),
        "Ctrl+E", "explain-track", true, MenuId::Track, ToolBarId::None, true},
    {ActionId::WhyNotShown, QT_TRANSLATE_NOOP("Actions", "Why Is It Not Shown?..."), "",
        QT_TRANSLATE_NOOP("Actions", "Where a target is that cannot be seen"), "Ctrl+F", "why-not-shown", false,
        MenuId::Track, ToolBarId::None, false},

    {ActionId::StaticMaps, QT_TRANSLATE_NOOP("Actions", "Static Maps..."), QT_TRANSLATE_NOOP("Actions", "Maps"),
        QT_TRANSLATE_NOOP("Actions", "Manage static maps"), "", "static-maps", false,
        MenuId::Map, ToolBarId::None, false},
    {ActionId::ToggleStaticMaps, QT_TRANSLATE_NOOP("Actions", "Toggle Static Maps"),
        QT_TRANSLATE_NOOP("Actions", "Maps"), QT_TRANSLATE_NOOP("Actions", "Toggle all static map layers"), "",
        "static-maps-toggle", true, MenuId::Map, ToolBarId::View, true},
    {ActionId::StaticMapEditor, QT_TRANSLATE_NOOP("Actions", "Static Map Editor..."), "",
        QT_TRANSLATE_NOOP("Actions", "Open Static Map Editor"), "", "static-map-editor", false,
        MenuId::Map, ToolBarId::None, false},
    {ActionId::ToggleTileMap, QT_TRANSLATE_NOOP("Actions", "Toggle Tile Map"), QT_TRANSLATE_NOOP("Actions", "Tiles"),
        QT_TRANSLATE_NOOP("Actions", "Map tiles of an online service or a file, see Settings"), "", "tile-map", true,
        MenuId::Map, ToolBarId::View, false},
    {ActionId::TileDownloader, QT_TRANSLATE_NOOP("Actions", "Bing Maps Downloader..."), "",
        QT_TRANSLATE_NOOP("Actions", "Download map tiles of any service ahead of need"), "", "tile-download", false,
        MenuId::Map, ToolBarId::None, false},
    {ActionId::ToggleSensorMap, QT_TRANSLATE_NOOP("Actions", "Toggle Sensor Map"),
        QT_TRANSLATE_NOOP("Actions", "Sensor"), QT_TRANSLATE_NOOP("Actions", "Toggle Sensor Map"), "", "sensor-map",
        true, MenuId::Map, ToolBarId::View, true},
    {ActionId::ToggleWeatherMap, QT_TRANSLATE_NOOP("Actions", "Toggle Weather Map"),
        QT_TRANSLATE_NOOP("Actions", "Weather"), QT_TRANSLATE_NOOP("Actions", "Toggle Weather Map"), "", "weather-map",
        true, MenuId::Map, ToolBarId::View, false},
    {ActionId::ToggleVideoMap, QT_TRANSLATE_NOOP("Actions", "Toggle Video Map"),
        QT_TRANSLATE_NOOP("Actions", "Video"), QT_TRANSLATE_NOOP("Actions", "Toggle Video Map"), "", "video-map",
        true, MenuId::Map, ToolBarId::View, false},
    {ActionId::TogglePlots, QT_TRANSLATE_NOOP("Actions", "Toggle Plots"), QT_TRANSLATE_NOOP("Actions", "Plots"),
        QT_TRANSLATE_NOOP("Actions", "Toggle plots: every target report, also those without a track"), "", "plots",
        true, MenuId::Map, ToolBarId::View, false},
    {ActionId::WeatherIntensity, QT_TRANSLATE_NOOP("Actions", "Weather Intensity"), "",
        QT_TRANSLATE_NOOP("Actions", "Weather Intensity"), "", "weather-intensity", false, MenuId::Map,
        ToolBarId::None, false},
    {ActionId::ToggleRangeRings, QT_TRANSLATE_NOOP("Actions", "Toggle Range Rings"),
        QT_TRANSLATE_NOOP("Actions", "Rings"), "", "", "range-rings", true, MenuId::Map, ToolBarId::View, false},
    {ActionId::RangeRings, QT_TRANSLATE_NOOP("Actions", "Rang Rings ..."), "", "", "", "range-rings-settings", false,
        MenuId::Map, ToolBarId::None, true},
    {ActionId::SetRangeRingsCenter, QT_TRANSLATE_NOOP("Actions", "Set Range Rings Center"), "", "", "F4",
        "range-rings-center", false, MenuId::Map, ToolBarId::None, false},
    {ActionId::ToggleRangeRingLabels, QT_TRANSLATE_NOOP("Actions", "Toggle Ring Distances"), "",
        QT_TRANSLATE_NOOP("Actions", "Show the distance of each range ring"), "", "range-rings-distances", true,
        MenuId::Map, ToolBarId::None, false},
    {ActionId::ToggleCompassRose, QT_TRANSLATE_NOOP("Actions", "Toggle Compass Rose"), "",
        QT_TRANSLATE_NOOP("Actions", "Show true bearings from the centre of the range rings"), "", "compass-rose", true,
        MenuId::Map, ToolBarId::None, true},
    {ActionId::ToggleScaleBar, QT_TRANSLATE_NOOP("Actions", "Toggle Scale Bar"), "", "", "", "scale-bar", true,
        MenuId::Map, ToolBarId::None, false},
    {ActionId::ToggleKey, QT_TRANSLATE_NOOP("Actions", "Toggle Key"), "",
        QT_TRANSLATE_NOOP("Actions", "Show what symbols and weather colours mean"), "", "map-key", true, MenuId::Map,
        ToolBarId::None, false},

    {ActionId::GettingStarted, QT_TRANSLATE_NOOP("Actions", "Getting Started..."), "",
        QT_TRANSLATE_NOOP("Actions", "To a picture step by step: demonstration, recording or live input"), "",
        "getting-started", false, MenuId::Help, ToolBarId::None, false},
    {ActionId::CheatSheet, QT_TRANSLATE_NOOP("Actions", "Cheat Sheet..."), "",
        QT_TRANSLATE_NOOP("Actions", "Show Cheat Sheet"), "F1", "cheat-sheet", false, MenuId::Help, ToolBarId::None,
        false},
    {ActionId::Contents, QT_TRANSLATE_NOOP("Actions", "Contents..."), "", "", "Shift+F1", "contents", false,
        MenuId::Help, ToolBarId::None, false},
    {ActionId::WhatsNew, QT_TRANSLATE_NOOP("Actions", "What's New?..."), "", "", "", "whats-new", false,
        MenuId::Help, ToolBarId::None, false},
    {ActionId::About, QT_TRANSLATE_NOOP("Actions", "About..."), QT_TRANSLATE_NOOP("Actions", "About"),
        "", "", "about", false, MenuId::Help, ToolBarId::About, true},
};
// clang-format on

static_assert(std::size(Specs) == static_cast<std::size_t>(ActionId::Count), "each action stands in the table once");

bool given(const char *text)
{
    return *text != '\0';
}

} // namespace

std::span<const ActionSpec> actionTable()
{
    return Specs;
}

Actions::Actions(QMainWindow *window) : QObject(window), m_window(window)
{
    setObjectName("actions");
    makeMenus(window);
    makeToolBars(window);
    for (const ActionSpec &spec : Specs) {
        makeAction(spec, window);
    }
    updateIcons();
    new ResizeWatch(window, this, [this] { fitToolBars(); });
}

void Actions::makeMenus(QMainWindow *window)
{
    const auto add = [this, window](MenuId id, const QString &title) {
        m_menus[static_cast<std::size_t>(id)] = window->menuBar()->addMenu(title);
    };
    add(MenuId::File, tr("&File"));
    add(MenuId::View, tr("&View"));
    add(MenuId::Tools, tr("&Tools"));
    add(MenuId::Track, tr("&Track"));
    add(MenuId::Map, tr("&Map"));
    add(MenuId::Help, tr("&Help"));
}

void Actions::makeToolBars(QMainWindow *window)
{
    const auto add = [this, window](ToolBarId id, const QString &title, const QString &name) {
        QToolBar *bar = window->addToolBar(title);
        bar->setObjectName(name); // under which the window's state remembers it
        bar->setIconSize({20, 20});
        m_toolBars[static_cast<std::size_t>(id)] = bar;
    };
    add(ToolBarId::General, tr("General"), "generalToolBar");
    add(ToolBarId::View, tr("View"), "viewToolBar");
    add(ToolBarId::Track, tr("Track"), "trackToolBar");
    add(ToolBarId::About, tr("About"), "aboutToolBar");
}

void Actions::makeAction(const ActionSpec &spec, QMainWindow *window)
{
    auto *action = new QAction(tr(spec.text), window);
    if (given(spec.iconText)) {
        action->setIconText(tr(spec.iconText));
    }
    if (given(spec.toolTip)) {
        action->setToolTip(tr(spec.toolTip));
    }
    if (given(spec.shortcut)) {
        action->setShortcut(QKeySequence::fromString(spec.shortcut, QKeySequence::PortableText));
    }
    action->setCheckable(spec.checkable);
    // The window holds the action itself too, so that its shortcut works while menu bar and tool bars are hidden.
    window->addAction(action);
    m_actions[static_cast<std::size_t>(spec.id)] = action;

    QMenu *holder = menu(spec.menu);
    if (spec.startsGroup && !holder->isEmpty()) {
        holder->addSeparator();
    }
    holder->addAction(action);
    if (spec.toolBar == ToolBarId::None) {
        return;
    }
    QToolBar *bar = toolBar(spec.toolBar);
    if (spec.startsGroup && !bar->actions().isEmpty()) {
        bar->addSeparator();
    }
    bar->addAction(action);
}

QMenu *Actions::setMenu(ActionId id, QMenu *menu)
{
    QAction *action = (*this)[id];
    QMenu *before = action->menu();
    action->setMenu(menu);
    for (const QToolBar *bar : m_toolBars) {
        if (auto *button = qobject_cast<QToolButton *>(bar->widgetForAction(action))) {
            button->setPopupMode(QToolButton::InstantPopup);
        }
    }
    return before;
}

void Actions::showValue(ActionId id, const QString &value)
{
    const ActionSpec &spec =
        *std::find_if(std::begin(Specs), std::end(Specs), [id](const ActionSpec &one) { return one.id == id; });
    const QString name = tr(given(spec.iconText) ? spec.iconText : spec.text);
    QAction *action = (*this)[id];
    const QString shown = value.isEmpty() ? name : tr("%1: %2").arg(name, value);
    if (action->iconText() == shown) {
        return;
    }
    action->setIconText(shown);
    action->setToolTip(value.isEmpty() ? tr(spec.toolTip) : tr("%1: %2").arg(tr(spec.text), value));
    measureToolBars();
}

void Actions::setToolBarText(bool wanted)
{
    m_textWanted = wanted;
    measureToolBars();
}

void Actions::measureToolBars()
{
    m_textWidth = 0;
    for (QToolBar *bar : m_toolBars) {
        bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        m_textWidth += bar->sizeHint().width();
    }
    fitToolBars();
}

void Actions::fitToolBars()
{
    const bool shown = m_textWanted && m_textWidth <= m_window->width();
    for (QToolBar *bar : m_toolBars) {
        bar->setToolButtonStyle(shown ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    }
}

void Actions::updateIcons()
{
    for (const ActionSpec &spec : Specs) {
        (*this)[spec.id]->setIcon(actionIcon(spec.icon, m_window->palette()));
    }
}
