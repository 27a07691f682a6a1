#pragma once

#include "app/log_level.h"
#include "app/run_config.h"
#include "engine/display_snapshot.h"
#include "engine/engine_host.h"
#include "engine/replay_speed.h"
#include "maps/map_file.h"
#include "processors/video_processor.h"
#include "processors/weather_processor.h"
#include "tracking/alert.h"
#include "ui/drop_stats.h"
#include "ui/shutdown.h"

#include <QMainWindow>

class Actions;
class Analysis;
class FirstStart;
class GeoWidget;
class Help;
class HomeView;
class InputHealth;
class InputNotices;
class InputSession;
class LayoutMenu;
class LockCommands;
class ListPanes;
class MapWindows;
class Messages;
class PlanDisplay;
class RecordingOpener;
class ReplayControls;
class SecondViews;
class SensorManager;
class SnapshotPump;
class StatsWindow;
class StatusReadOuts;
class ThemeMenu;
class TileMaps;
class TrackCommands;
class ViewWindows;
class Workplace;

#include <functional>
#include <memory>

// The one top-level window. Owns all that lives on the GUI thread and connects it: commands to the session and the
// engine, pictures to the display, settings to all of them. What is done stands in the classes that it owns. Loads its
// own settings; its window state is restored by loadUi().
class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    // The overrides change settings for this run only; they are never saved.
    explicit MainWindow(const std::function<void(Config &)> &overrides = {}, QWidget *parent = nullptr);
    ~MainWindow() override;

    // What is to follow when this program has ended.
    Shutdown::Afterwards afterwards() const { return m_shutdown->afterwards(); }

    // Restores layout and window state. To be called once, after show(). A size is for this run only.
    void loadUi(const QSize &size = {});

    // Decided at the first call and kept.
    static bool isDebugMode();
    void setLogLevel(LogLevel minimum);

    const Config &config() const { return m_config.live(); }
    bool inputOpen() const;
    const InputSession &session() const { return *m_session; }
    const InputHealth &health() const;
    // Null before the first.
    QSharedPointer<const DisplaySnapshot> newestSnapshot() const;
    GeoWidget *geoWidget() const;
    const EngineHost &engineHost() const { return m_host; }
    RecordingOpener *recordingOpener() const;
    ThemeMenu *themes() const { return m_themes; }
    TileMaps *tileMaps() const { return m_tileMaps.get(); }
    // From now on an input that the settings start with the program is opened again when it fails or ends by itself.
    void keepInput();
    // No tile service is asked from now on, whatever the settings say.
    void barTileServices();

    // Replaces the question whether to exit while an input is open; true exits.
    void setExitQuestion(std::function<bool()> question) { m_questions.exit = std::move(question); }
    // Replaces the question whether to stop the live input; true stops.
    void setStopQuestion(std::function<bool()> question) { m_questions.stop = std::move(question); }
    // How long shutdown waits for the engine's answer and for its thread.
    void setShutdownWaits(int confirmMs, int threadMs);

public Q_SLOTS:
    // The log: see Messages.
    void showLog(LogLevel level, const QString &text);
    void showLogInfo(const QString &text) { showLog(LogLevel::Info, text); }

    // The input: see InputSession.
    void openInput();
    void pauseInput(bool paused);
    void closeInput();
    // The operator's Stop: asks before it ends a live input.
    void stopInput();
    void onEngineInputOpened(unsigned long long requestId);
    void onEngineInputOpenFailed(unsigned long long requestId);
    void onEngineInputClosed(unsigned long long requestId);

    // Recordings: see RecordingOpener, InputSession and ReplayControls.
    void openRecordingFile();
    void playRecording(const QString &fileName);
    void setReplaySpeed(ReplaySpeed::Speed speed);
    void changeReplaySpeed(QAction *action);
    void initReplaySpeedMenu();
    void updateReplaySpeedMenu();
    void applyReplayConfig(const QFileInfo &file);
    void updateInputFileMeta(const QFileInfo &file);
    void onEngineReplayProgress(const QDateTime &time);

    // Pictures and lists: see SnapshotPump and ListPanes.
    void pullSlots();
    void procWeatherPicture(const WeatherProcessor::Picture &picture);
    void procVideoRadial(const VideoProcessor::Radial &radial);
    void updateTrackList();
    void updateAlertList();
    void clearTrackList();
    void clearAlertList();
    void trackListSelectionChanged();
    void selectTrackInList(unsigned long long id);
    // Any other type than the three is ignored.
    void updateAlertStatus(Alert::Type type, bool on);
    void updateClock();

    // The view: see GeoWidget, StatusReadOuts and LayoutMenu.
    void toggleFullScreen();
    void setFullScreen(bool on);
    void resizeMainWindow(const QSize &size);
    void showCursorPosition(const QPointF &planePoint, const QPoint &screenPoint);
    void showCurrentZoom(double metresPerPixel);
    void showCurrentRotation(double degrees);
    // Of a map that is being loaded.
    void showMapLoadInfo(const QFileInfo &file, const QString &progress);
    void loadLayout(QAction *action);
    void updateMapLayoutMenu();

    void showConfigWindow();
    void showReplayWindow();
    // Asks for a profile and starts the program with it.
    void showProfileWindow();
    void showStatsWindow();
    void showRotationWindow();
    void showSetCenterWindow();
    void showRangeRingWindow();
    void showWeatherIntensityWindow();
    void showTrackLabelFormatWindow();
    void showGettingStarted();
    void showCheatSheet();
    void showHelp();
    void showAbout();
    void showChangelog();
    // Once after an update; to be called when somebody may be sitting there.
    void showChangesAfterUpdate();
    void launchSensorManager();
    void showMapWindow();
    void showBingMapsDownloaderWindow();
    // Empty: no map yet.
    void launchStaticMapEditor(const QString &path, MapFile::Format format);
    void showLayoutSaveWindow();

    // The operator's Exit: refused while an input is open.
    void exitApplication();
    // Closes without a question, whatever is open.
    void requestExit();
    // Closes as the operator's Exit does, but for the question about the input, which is to go on afterwards.
    void restart();
    // See Shutdown.
    void continueShutdown();

Q_SIGNALS:
    void inputOpened();
    // None has been opened, for that reason.
    void inputFailed(const QString &reason);
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
    // Raised when docks or tool bars change so that an older arrangement no longer fits.
    static constexpr int ArrangementVersion = 2;

    // Construction.
    void setQuestions();
    void makeDisplay();
    void makeFurniture();
    void makeResizeMenu();
    void makeParts();
    void makeExplainers();
    void routeLibraryLogs();
    void startClock();

    // Parts to each other.
    void connectLog();
    void connectSettings();
    void connectEngine();
    void connectSession();
    void connectRecordings();
    void connectDisplay();
    void connectMapWindows();
    void connectSecondViews();
    void connectHealth();
    void connectFirstStart();
    void connectWorkplace();
    void connectShutdown();

    // Commands to parts.
    void connectInputActions();
    void connectViewActions();
    void connectTrackActions();
    void connectLabelActions();
    void connectMapActions();
    void connectDialogActions();
    void checkSettingToggles();

    // Settings.
    // What concerns settings of these groups.
    void applyConfig(SettingGroups changed);
    void applyLook();
    // Starts the sensor's picture anew; not while an input is open.
    void applySensor();
    void placeDefaultLayout();
    // Forgets weather and video, and learns anew where radars stand.
    void beginRadarPicture();
    // Where a sensor stands that has been chosen: layouts were made for another place.
    void showSensorPlace();
    // After a recording has set some, or given them back.
    void takeRunSettings(SettingGroups changed);
    // From the settings window.
    void takeSettings(const Config &edited);
    // The same, and opens the input with them.
    void startWith(const Config &edited);
    // Asks for the password first where settings are locked; then the change comes later or never.
    void editConfig(const std::function<void(Config &)> &change);
    // Takes effect at once: an open input is opened anew.
    void changeSensor(const std::function<void(Config &)> &change);
    void chooseSensor(const QSharedPointer<SensorInfo> &sensor);
    void loadSensorDatabase();
    void loadAircraftDatabase();
    // Absolute; nothing changes where the setting leads to it already.
    void storeMapFile(QString Config::*member, const QString &file);

    // What the window shows of the session.
    void showSession();
    void showTitle();

    // Life cycle.
    void loadUiState(const QSize &size);
    void saveUiState() const;
    void storeArrangement();
    void arrangeDocks();
    void bringInFront();
    bool confirm(const QString &title, const QString &text);
    void closeMapsAndShutDown(Shutdown::Afterwards afterwards);

    RunConfig m_config;
    EngineHost m_host;
    std::unique_ptr<SensorManager> m_sensors;
    std::unique_ptr<PlanDisplay> m_plan;

    // Widgets, and what hangs on them, are the window's children.
    Workplace *m_workplace = nullptr;
    Actions *m_actions = nullptr;
    std::unique_ptr<LockCommands> m_lock;
    ThemeMenu *m_themes = nullptr;
    StatusReadOuts *m_readOuts = nullptr;
    Messages *m_messages = nullptr;
    StatsWindow *m_stats = nullptr;
    Help *m_help = nullptr;

    // These work on all of the above, so they go before it.
    std::unique_ptr<InputSession> m_session;
    std::unique_ptr<SnapshotPump> m_pump;
    std::unique_ptr<ListPanes> m_lists;
    std::unique_ptr<TrackCommands> m_trackCommands;
    std::unique_ptr<HomeView> m_home;
    std::unique_ptr<LayoutMenu> m_layoutMenu;
    std::unique_ptr<MapWindows> m_mapWindows;
    std::unique_ptr<TileMaps> m_tileMaps;
    std::unique_ptr<ViewWindows> m_viewWindows;
    std::unique_ptr<ReplayControls> m_replay;
    std::unique_ptr<SecondViews> m_views;
    std::unique_ptr<Analysis> m_analysis;
    std::unique_ptr<InputNotices> m_notices;
    std::unique_ptr<FirstStart> m_firstStart;
    std::unique_ptr<Shutdown> m_shutdown;

    QSize m_sizeOfRun; // empty: as stored
    struct {
        std::function<bool()> exit;
        std::function<bool()> stop;
    } m_questions;
};
