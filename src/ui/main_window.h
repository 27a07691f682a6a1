#pragma once

#include "app/log_level.h"
#include "app/run_config.h"
#include "engine/display_snapshot.h"
#include "engine/engine_host.h"
#include "engine/largest_delay.h"
#include "engine/replay_speed.h"
#include "engine/slot_reader.h"
#include "maps/map_file.h"
#include "processors/video_processor.h"
#include "processors/weather_processor.h"
#include "tracking/alert.h"
#include "ui/drop_stats.h"

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

class Actions;
class AlertListModel;
class GeoMapDisplay;
class GeoTrackDisplay;
class GeoWidget;
class ListView;
class LogPane;
class MapLayout;
class MapEditorWindow;
class MapLibrary;
class RangeRingWindow;
class RecordingScan;
class ReplayWindow;
class ScopeNotice;
class SensorManager;
class StaticMapsWindow;
class StatsWindow;
class StatusReadOuts;
class TrackLabelFormatWindow;
class TrackListModel;
class WeatherIntensityWindow;
namespace korvane::astfile {
class RecordingIndex;
}

#include <array>
#include <functional>
#include <memory>
#include <optional>

// The one top-level window. Owns all that lives on the GUI thread, carries the operator's commands to the engine and
// shows what comes back. Loads its own settings; its window state is restored by loadUi().
class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    // The overrides change settings for this run only; they are never saved.
    explicit MainWindow(const std::function<void(Config &)> &overrides = {}, QWidget *parent = nullptr);
    ~MainWindow() override;

    // Restores layout and window state. To be called once, after show().
    void loadUi();

    // Decided at the first call and kept.
    static bool isDebugMode();
    void setLogLevel(LogLevel minimum) { m_minimumLevel = minimum; }

    const Config &config() const { return m_config.live(); }
    bool inputOpen() const { return m_inputState == InputState::Open; }
    // Null before the first.
    QSharedPointer<const DisplaySnapshot> newestSnapshot() const { return m_snapshot; }
    GeoWidget *geoWidget() const { return m_geoWidget; }
    const EngineHost &engineHost() const { return m_host; }

    // Replaces the question whether to exit while an input is open; true exits.
    void setExitQuestion(std::function<bool()> question) { m_exitQuestion = std::move(question); }
    // How long shutdown waits for the engine's answer and for its thread.
    void setShutdownWaits(int confirmMs, int threadMs);

public Q_SLOTS:
    // The log: each line goes to the log pane, and to the status bar while the pane is out of sight.
    void showLog(LogLevel level, const QString &text);
    void showLogInfo(const QString &text) { showLog(LogLevel::Info, text); }

    void openInput();
    void pauseInput(bool paused);
    void closeInput();
    void onEngineInputOpened(unsigned long long requestId);
    void onEngineInputOpenFailed(unsigned long long requestId);
    void onEngineInputClosed(unsigned long long requestId);
    void onEngineReplayProgress(const QDateTime &time);

    // Asks for a recording and plays it.
    void openRecordingFile();
    // Plays a recording from its beginning, in place of the input that is open. A file of no known format is refused.
    void playRecording(const QString &fileName);
    // For this and all later recordings.
    void setReplaySpeed(ReplaySpeed::Speed speed);
    void changeReplaySpeed(QAction *action);
    void updateReplaySpeedMenu();
    // Makes the recording the input of this run.
    void applyReplayConfig(const QFileInfo &file);
    // Shows the file in the playback window and reads it to find its times.
    void updateInputFileMeta(const QFileInfo &file);
    // Back to the input that was there before the first recording.
    void returnToLiveInput();
    // Asks for a file and records the live input to it, or ends the recording.
    void recordInput(bool on);

    void pullSlots();
    void procWeatherPicture(const WeatherProcessor::Picture &picture);
    void procVideoRadial(const VideoProcessor::Radial &radial);
    void updateTrackList();
    void updateAlertList();
    void clearTrackList();
    void clearAlertList();
    void trackListSelectionChanged();
    void alertListSelectionChanged();
    // By incarnation id; 0 clears the selection.
    void selectTrackInList(unsigned long long id);
    // Any other type than the three is ignored.
    void updateAlertStatus(Alert::Type type, bool on);
    void updateClock();

    void toggleFullScreen();
    void setFullScreen(bool on);
    void resizeMainWindow(const QSize &size);
    void showCursorPosition(const QPointF &planePoint, const QPoint &screenPoint);
    void showCurrentZoom(double metresPerPixel);
    void showCurrentRotation(double degrees);
    // Of a map that is being loaded.
    void showMapLoadInfo(const QFileInfo &file, const QString &progress);
    // Shows the layout that the action of the layout menu is for, now and at the next start.
    void loadLayout(QAction *action);
    void updateMapLayoutMenu();

    void showConfigWindow();
    void showReplayWindow();
    void showStatsWindow();
    void showRotationWindow();
    void showSetCenterWindow();
    void showRangeRingWindow();
    void showWeatherIntensityWindow();
    void showTrackLabelFormatWindow();
    void showCheatSheet();
    void showAbout();
    void showChangelog();
    void launchSensorManager();
    void showMapWindow();
    // Empty: no map yet.
    void launchStaticMapEditor(const QString &path, MapFile::Format format);
    void showLayoutSaveWindow();

    // The operator's Exit: refused while an input is open.
    void exitApplication();
    // Closes without a question, whatever is open.
    void requestExit();
    void continueShutdown();

Q_SIGNALS:
    void inputOpened();
    // The input has ended, and no other one takes its place at once.
    void inputClosed();
    // Once a minute.
    void dropStats(const DropStats &stats);
    // The picture is still as it was; nothing has been stopped yet.
    void shutdownBegun();
    // The engine has stopped and this window is closed; dialogs and windows beside it may still be open.
    void shutdownComplete();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    enum class InputState { Closed, Opening, Open };
    enum class Shutdown { NotBegun, Begun, Complete };

    // Construction.
    void makeDisplay();
    void makeFurniture();
    void makeDocks();
    void makeResizeMenu();
    void connectEngine();
    void connectDisplay();
    void connectInputActions();
    void connectReplay();
    void initReplaySpeedMenu();
    void connectViewActions();
    void connectTrackActions();
    void connectMapActions();
    void connectRadarPicture();
    void connectStaticMaps();
    void connectLayouts();
    void connectDialogActions();
    void setRangeRings(const GeoCoordinate &center, int number, double distanceNauticalMiles);
    void chooseSensor(const QSharedPointer<SensorInfo> &sensor);
    void startTimers();

    // Settings.
    void applyConfig();
    // Starts the sensor's picture anew; not while an input is open.
    void applySensor();
    // Forgets weather and video, and learns anew where radars stand.
    void beginRadarPicture();
    void editConfig(const std::function<void(Config &)> &change);
    void loadSensorDatabase();
    void loadAircraftDatabase();

    // Input.
    bool isCurrentAnswer(unsigned long long requestId) const { return requestId == m_requestId; }
    void inputEnded(unsigned long long requestId);
    void setInputState(InputState state);
    void updateInputActions();
    void updateNotices();
    QString scopeNotice() const;
    QString inputDescription() const;
    void publishDropStats();

    // Replay.
    bool replaying() const { return m_config.live().inputComm == Config::InputComm::File; }
    void startReplay(const QDateTime &start);
    void showIndex(const korvane::astfile::RecordingIndex &index, const QString &error);
    void updateReplayWindow();

    // Maps and layouts.
    void loadMaps();
    void showEditedMap(const QString &path);
    void showEditedStyleSheet(const QString &path);
    // False when another index is to be shown and the operator keeps his unsaved changes of this one.
    bool settleMaps(const Config &edited);
    // False when one stays open.
    bool closeMapWindows();
    void deleteMapWindows();
    void loadLayouts();
    void saveLayouts();
    void placeDefaultLayout();
    // The built-in one is current from now on.
    void leaveLayout();
    // A layout other than the built-in one.
    bool layoutChosen() const;

    // View.
    // Where the built-in views are centred; invalid: nowhere.
    GeoCoordinate homeCoordinate() const;
    void showInitialView();
    bool restoreView();
    void saveView() const;
    void placeRangeRings(const QPointF &planePoint);
    void showRangeRings();
    QPointF planePoint(const GeoCoordinate &coordinate) const;
    GeoCoordinate coordinate(const QPointF &planePoint) const;
    GeoCoordinate viewCenter() const;

    // Life cycle.
    void loadUiState();
    void saveUiState() const;
    void arrangeDocks();
    bool confirmExit();
    void beginShutdown();
    void forceShutdown();

    RunConfig m_config;
    EngineHost m_host;
    std::unique_ptr<SensorManager> m_sensors;
    QSharedPointer<SensorInfo> m_sensor; // of the input; null when none is configured

    std::unique_ptr<GeoMapDisplay> m_mapDisplay;
    std::unique_ptr<GeoTrackDisplay> m_trackDisplay;
    GeoWidget *m_geoWidget = nullptr;
    MapLibrary *m_mapLibrary = nullptr;
    MapLayout *m_layouts = nullptr;
    ScopeNotice *m_scopeNotice = nullptr;

    Actions *m_actions = nullptr;
    StatusReadOuts *m_readOuts = nullptr;
    LogPane *m_logPane = nullptr;
    TrackListModel *m_trackModel = nullptr;
    AlertListModel *m_alertModel = nullptr;
    ListView *m_trackView = nullptr;
    ListView *m_alertView = nullptr;
    QDockWidget *m_messagesDock = nullptr;
    QDockWidget *m_trackDock = nullptr;
    QDockWidget *m_alertDock = nullptr;
    QPointer<RangeRingWindow> m_rangeRingWindow;
    QPointer<WeatherIntensityWindow> m_weatherIntensityWindow;
    QPointer<TrackLabelFormatWindow> m_trackLabelFormatWindow;
    QPointer<StaticMapsWindow> m_staticMapsWindow;
    QPointer<MapEditorWindow> m_mapEditorWindow;
    ReplayWindow *m_replayWindow = nullptr;
    StatsWindow *m_statsWindow = nullptr;

    QTimer m_pullTimer;
    QTimer m_trackListTimer;
    QTimer m_alertListTimer;
    QTimer m_clockTimer;
    QTimer m_dropStatsTimer;

    SlotReader<DisplaySnapshot> m_displayReader;
    SlotReader<VideoBatch> m_videoReader;
    SlotReader<WeatherProcessor::Picture> m_weatherReader;
    LargestDelay m_videoDelay;
    LargestDelay m_weatherDelay;
    QSharedPointer<const DisplaySnapshot> m_snapshot;
    std::array<bool, 3> m_alertStatus = {}; // as in the newest snapshot
    bool m_updatingList = false; // the program moves the selection, not the operator

    InputState m_inputState = InputState::Closed;
    quint64 m_requestId = 0; // of the newest request
    bool m_inputWasOpen = false; // there is a last picture to look at
    bool m_paused = false;
    bool m_ringCenterPlaced = false;

    ReplaySpeed::Speed m_replaySpeed = ReplaySpeed::Normal;
    QDateTime m_replayStart; // of the next opening; invalid: the beginning
    bool m_reopenInput = false; // as soon as the one that is being closed has closed
    RecordingScan *m_recordingScan = nullptr;
    QFileInfo m_scannedFile;
    std::optional<Config::InputComm> m_liveInput; // the kind of input before the first recording

    LogLevel m_minimumLevel = LogLevel::Info;
    Shutdown m_shutdown = Shutdown::NotBegun;
    std::function<bool()> m_exitQuestion;
    int m_confirmWaitMs = 10000;
    int m_threadWaitMs = 5000;
};
