#pragma once

#include "app/config.h"
#include "app/log_level.h"
#include "app/setting_group.h"
#include "demonstration/demo_run.h"

#include <QObject>
#include <QPointer>

class EngineHost;
class FirstStartGuide;
class QWidget;
class RunConfig;
class SensorManager;

#include <functional>

// Brings up the guide, hands on what was chosen in it, and runs the demonstration. GUI thread.
class FirstStart final : public QObject {
    Q_OBJECT

public:
    // What it needs of the window that it works for; all of it must outlive this object.
    struct Window {
        QWidget *widget = nullptr; // the parent of dialogs
        RunConfig *config = nullptr;
        SensorManager *sensors = nullptr;
        EngineHost *engine = nullptr;
        std::function<bool()> mayStop; // asks the operator before a live input is stopped
    };

    explicit FirstStart(const Window &window, const QString &demoProgram = DemoTraffic::findProgram());

    // The guide, without blocking anything.
    void show();
    // Of the input as it is now.
    void setInput(bool isClosed, bool isRecording);

public Q_SLOTS:
    void onInputOpened() { m_demo.send(); }
    // It has ended, and no other one takes its place at once.
    void onInputClosed();

Q_SIGNALS:
    void logMessage(LogLevel level, const QString &text);
    void themeChosen(const QString &name);
    void recordingWanted();
    // The input is in the way of another one.
    void inputUnwanted();
    // To be applied, and the input to be opened with them.
    void settingsEntered(const Config &settings);
    // Settings of these groups are the demonstration's; the input is to be opened.
    void demoBegun(SettingGroups changed);
    // Settings of these groups are the user's again.
    void demoEnded(SettingGroups changed);

private:
    void startDemo();
    void makeWayForLive();

    Window m_window;
    DemoRun m_demo;
    QPointer<FirstStartGuide> m_guide;
    bool m_isClosed = true;
    bool m_isRecording = false;
};
