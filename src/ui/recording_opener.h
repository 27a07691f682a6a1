#pragma once

#include "app/log_level.h"
#include "app/setting_group.h"
#include "recognition/recording_analysis.h"

#include <QObject>
#include <QPointer>
#include <QSharedPointer>

class InputProposal;
class InputSession;
class QProgressDialog;
class QWidget;
class RunConfig;
class SensorInfo;
class SensorManager;

#include <functional>

// Opens a recording as what it holds: looks at its beginning, sets processor and sensor for as long as it is played,
// asks for what it does not tell, and plays it. Until then the input stays as it is. GUI thread.
class RecordingOpener final : public QObject {
    Q_OBJECT

public:
    // All must outlive this object. The window is the parent of dialogs; without one (null) there are none, and a
    // question has to be set or taken away.
    RecordingOpener(
        QWidget *window, RunConfig *config, const SensorManager *sensors, InputSession *session, QObject *parent);
    ~RecordingOpener() override;

    // Gives up the one that is being opened.
    void open(const QString &fileName);
    void cancel();

    // What is named for this run holds, whatever a recording proposes: changes settings of processor and sensor.
    void setNamed(std::function<void(Config &)> named) { m_named = std::move(named); }
    // Replaces the question where the sensor stands: it gives the proposal a site, or returns false, and nothing is
    // opened. None: nobody is there to be asked, a provisional place is taken.
    void setSiteQuestion(std::function<bool(InputProposal *)> question) { m_siteQuestion = std::move(question); }

Q_SIGNALS:
    void logMessage(LogLevel level, const QString &text);
    // It cannot be played, for that reason; everything is as it was.
    void refused(const QString &reason);
    // Settings of these groups changed; the recording is played next.
    void settingsProposed(SettingGroups changed);

private:
    void showWait(const QString &fileName);
    void take(const RecordingFindings &findings);
    void logDiagnosis(const RecordingFindings &findings);
    bool settleSite(InputProposal *proposal);
    bool askSite(InputProposal *proposal);
    void takeProvisionalSite(InputProposal *proposal);

    QWidget *m_window;
    RunConfig *m_config;
    const SensorManager *m_sensors;
    InputSession *m_session;
    RecordingAnalysis m_analysis;
    QPointer<QProgressDialog> m_wait; // the window's
    std::function<void(Config &)> m_named;
    std::function<bool(InputProposal *)> m_siteQuestion;
    QList<QSharedPointer<SensorInfo>> m_answered; // sensors that were asked for in this run
};
