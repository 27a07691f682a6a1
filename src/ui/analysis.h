#pragma once

#include "assessment_windows/sensor_check.h"
#include "explanation/absence.h"
#include "inspection/inspection.h"
#include "raw_view/stream_windows.h"

#include <QObject>

class Actions;
class Config;
class EngineHost;
class HealthDock;
class InputSession;
class PlanDisplay;
class QMainWindow;
class SensorManager;
class SnapshotPump;
class TrackCommands;

// What takes picture and stream apart for who wants to know more: the pane that says where a value comes from, why a
// target is not shown, the stream octet by octet, its diagnosis, and the sensor check. GUI thread.
class Analysis final : public QObject {
    Q_OBJECT

public:
    // What it needs of the window that it works for; all of it must outlive this object.
    struct Window {
        QMainWindow *widget = nullptr;
        const Actions *actions = nullptr;
        const Config *config = nullptr;
        const SensorManager *sensors = nullptr;
        EngineHost *host = nullptr;
        const InputSession *session = nullptr;
        const SnapshotPump *pump = nullptr;
        PlanDisplay *plan = nullptr;
        TrackCommands *tracks = nullptr;
    };
    explicit Analysis(const Window &window);

    // The stream is diagnosed while that pane is in sight, and the pane says what was found.
    void diagnoseFor(HealthDock *health);

Q_SIGNALS:
    void cureChosen(Cure cure);

private:
    void connectInspection();
    void connectStreamWindows();
    void noteSession();
    AbsenceFacts inputFacts() const;

    const Window m_window;
    Inspection m_inspection;
    StreamWindows m_stream;
    SensorCheck m_sensorCheck;
};
