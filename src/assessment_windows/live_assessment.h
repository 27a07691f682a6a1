#pragma once

#include "app/background_pass.h"
#include "assessment/sensor_assessor.h"
#include "engine/stream_tap.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

// Checks what the input receives, for as long as it is asked to. The octets are looked at on a worker; nobody waits for
// it. GUI thread.
class LiveAssessment final : public QObject {
    Q_OBJECT

public:
    using SwitchTap = std::function<void(const std::shared_ptr<StreamTap> &tap, bool open)>;

    // switchTap opens and closes taps on the engine; it must work for as long as this object lives.
    explicit LiveAssessment(SwitchTap switchTap, QObject *parent = nullptr);
    ~LiveAssessment() override;

    // Begins anew.
    void start(const SensorAssessor::Options &options);
    void stop();
    bool isRunning() const { return m_tap != nullptr; }
    // Messages that came too fast to be looked at since the start.
    quint64 missed() const { return m_missed; }

Q_SIGNALS:
    // Every few seconds.
    void reported(const AssessmentReport &report);

private:
    void takeMore();

    SwitchTap m_switchTap;
    std::shared_ptr<StreamTap> m_tap; // null while stopped
    std::shared_ptr<SensorAssessor> m_assessor; // the worker's while a pass is running
    std::vector<std::shared_ptr<const StreamBatch>> m_waiting;
    quint64 m_missed = 0;
    int m_passes = 0; // since the last report
    QTimer m_timer;
    BackgroundPass m_pass;
};
