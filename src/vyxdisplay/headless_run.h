#pragma once

#include "app/log_file.h"
#include "app/log_level.h"
#include "app/run_config.h"
#include "control/control_target.h"
#include "engine/engine_host.h"
#include "engine/slot_reader.h"
#include "health/input_health.h"
#include "sensors/sensor_manager.h"
#include "silence/geo_last_place_map.h"
#include "ui/input_session.h"
#include "ui/recording_opener.h"
#include "ui/reopening.h"
#include "vyxdisplay/command_line.h"
#include "vyxdisplay/service_notifier.h"

#include <QElapsedTimer>
#include <QTimer>

class DemoTraffic;

// A terminal without a window: the engine with its input, the log on standard error and in the log file, snapshots in a
// file, and the service manager kept informed. It opens the input at once, and again when it fails, with the settings
// as they are in their file by then; it writes no settings.
class HeadlessRun final : public QObject, public ControlTarget {
    Q_OBJECT

public:
    // Null: no demonstration. Both must outlive this object.
    HeadlessRun(const CommandLine &commandLine, DemoTraffic *demo);
    ~HeadlessRun() override;

    // To be called once, with the event loop about to run.
    void begin();
    // finished() follows, after some seconds at most.
    void end();
    // False: the input of a run that ends with it could not be opened, or a snapshot could not be written.
    bool succeeded() const { return m_succeeded; }

    void log(LogLevel level, const QString &text);

    QJsonObject status() const override;
    QJsonObject snapshot() const override;
    QString start() override;
    QString stop() override;
    QString saveScreenshot(const QString &path) override;
    QJsonObject view() const override { return {}; }
    QString setView(const QJsonObject &view) override;

Q_SIGNALS:
    void finished();

private:
    void connectEngine();
    void connectSession();
    void connectTimers();
    void readSettings();
    void openInput();
    void takeSettings();
    void showInput();
    void look();
    void writeSnapshot();
    void failInput();
    void finish();

    const CommandLine m_commandLine;
    DemoTraffic *m_demo;
    RunConfig m_config;
    LogFile m_logFile;
    SensorManager m_sensors;
    EngineHost m_host;
    InputSession m_session;
    GeoLastPlaceMap m_lastPlaces; // which nobody sees
    InputHealth m_health;
    RecordingOpener m_opener;
    Reopening m_reopening;
    ServiceNotifier m_service;
    SlotReader<DisplaySnapshot> m_pictures;
    SlotReader<InputStatistics> m_statistics;
    QElapsedTimer m_uptime;
    QElapsedTimer m_engineSign; // since the engine last published statistics
    QTimer m_lookTimer;
    QTimer m_snapshotTimer;
    QTimer m_watchdogTimer;
    bool m_snapshotFailed = false;
    bool m_succeeded = true;
    bool m_ending = false;
    bool m_finished = false;
};
