#pragma once

#include "engine/recording_scan.h"
#include "ui/recording_opener.h"

#include <QDateTime>
#include <QFileInfo>
#include <QObject>

class Actions;
class EngineHost;
class InputSession;
class QAction;
class QWidget;
class ReplayWindow;
class RunConfig;
class SensorManager;

// What the operator handles recordings with: the playback window, the speed menu, the choice of a file, and the action
// that records the live input. GUI thread.
class ReplayControls final : public QObject {
    Q_OBJECT

public:
    // All must outlive this object. The window is the parent of the playback window and of dialogs.
    ReplayControls(QWidget *window, Actions *actions, RunConfig *config, const SensorManager *sensors, EngineHost *host,
        InputSession *session);

    RecordingOpener *opener() { return &m_opener; }

public Q_SLOTS:
    // Asks for a recording and plays it.
    void openRecordingFile();
    void showWindow();
    // Shows the file in the playback window and reads it to find its times.
    void updateFileMeta(const QFileInfo &file);
    void showPosition(const QDateTime &time);
    void initSpeedMenu();
    void updateSpeedMenu();
    void changeSpeed(QAction *action);
    // Asks for a file and records the live input to it, or ends the recording.
    void recordInput(bool on);

private:
    void connectActions();
    void connectWindow();
    void connectEngine();
    void showIndex(const korvane::astfile::RecordingIndex &index, const QString &error);
    void cancelScan();
    void showSession();

    QWidget *m_window;
    Actions *m_actions;
    const RunConfig *m_config;
    EngineHost *m_host;
    InputSession *m_session;
    ReplayWindow *m_replayWindow; // the window's
    RecordingOpener m_opener;
    RecordingScan m_scan;
    QFileInfo m_scannedFile;
};
