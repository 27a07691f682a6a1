#pragma once

#include <QList>
#include <QObject>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

#include <array>
#include <cstddef>
#include <span>

// Every command that the main window offers.
enum class ActionId : std::size_t {
    Start,
    Stop,
    Pause,
    Replay,
    PlaybackWindow,
    ReplaySpeed,
    Record,
    Settings,
    NewWindow,
    LockSettings,
    Exit,
    ZoomIn,
    ZoomOut,
    RotateRight,
    RotateLeft,
    RotateNorthUp,
    Rotate,
    MoveLeft,
    MoveUp,
    MoveDown,
    MoveRight,
    GoTo,
    SaveLayout,
    LoadLayout,
    Theme,
    FullScreen,
    ShowEdges,
    ResizeMainWindow,
    NewPlanView,
    Statistics,
    RawView,
    DiagnoseInput,
    SensorManager,
    SensorCheck,
    GettingStarted,
    CheatSheet,
    Contents,
    WhatsNew,
    About,
    ToggleTrackLabel,
    TrackLabelFormat,
    ArrangeLabels,
    ResetLabel,
    ResetAllLabels,
    FollowSelectedTrack,
    AcknowledgeAlert,
    AcknowledgeAllAlerts,
    ToggleTrackList,
    ToggleAlertList,
    ExplainTrack,
    WhyNotShown,
    StaticMaps,
    ToggleStaticMaps,
    StaticMapEditor,
    ToggleTileMap,
    TileDownloader,
    ToggleSensorMap,
    ToggleWeatherMap,
    ToggleVideoMap,
    TogglePlots,
    WeatherIntensity,
    ToggleRangeRings,
    RangeRings,
    SetRangeRingsCenter,
    ToggleRangeRingLabels,
    ToggleCompassRose,
    ToggleScaleBar,
    ToggleKey,
    Count
};

// In menu bar order.
enum class MenuId : std::size_t { File, View, Tools, Track, Map, Help, Count };
enum class ToolBarId : std::size_t { General, View, Track, About, Count, None = Count };

// One row of the table of actions. Texts are English source texts, translated when the actions are made; an empty text
// is one that the action does not have.
struct ActionSpec {
    ActionId id;
    const char *text;
    const char *iconText;
    const char *toolTip;
    const char *shortcut; // portable text of the key sequence
    const char *icon; // file of :/icons without its suffix
    bool checkable;
    MenuId menu;
    ToolBarId toolBar;
    bool startsGroup; // a separator stands before it, in the menu and in the tool bar
};

// The actions, and with them the menus and tool bars, in the order of the table.
std::span<const ActionSpec> actionTable();

// The actions of a main window, made from the table together with the menus and tool bars that hold them. Everything
// made belongs to the window.
class Actions final : public QObject {
    Q_OBJECT

public:
    explicit Actions(QMainWindow *window);

    QAction *operator[](ActionId id) const { return m_actions[static_cast<std::size_t>(id)]; }
    QMenu *menu(MenuId id) const { return m_menus[static_cast<std::size_t>(id)]; }
    QToolBar *toolBar(ToolBarId id) const { return m_toolBars[static_cast<std::size_t>(id)]; }

    // Puts the menu behind an action, in the menu bar and under its tool button. The menu that was there before, or
    // null, is left to the caller.
    QMenu *setMenu(ActionId id, QMenu *menu);

    // What the action's menu has chosen now: stands on its tool button and in its tool tip. Empty: nothing in
    // particular.
    void showValue(ActionId id, const QString &value);

    // Shows the icon texts beside the icons of the tool bars, as long as the window is wide enough for all of them, or
    // the icons alone.
    void setToolBarText(bool wanted);
    // Draws the icons anew in the colours of the window's palette.
    void updateIcons();

private:
    void measureToolBars();
    void fitToolBars();
    void makeMenus(QMainWindow *window);
    void makeToolBars(QMainWindow *window);
    void makeAction(const ActionSpec &spec, QMainWindow *window);

    QMainWindow *m_window; // the parent
    bool m_textWanted = false;
    int m_textWidth = 0; // of all tool bars with their texts, pixels
    std::array<QAction *, static_cast<std::size_t>(ActionId::Count)> m_actions = {};
    std::array<QMenu *, static_cast<std::size_t>(MenuId::Count)> m_menus = {};
    std::array<QToolBar *, static_cast<std::size_t>(ToolBarId::Count)> m_toolBars = {};
};
