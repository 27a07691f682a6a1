#pragma once

#include "app/background_pass.h"
#include "app/config.h"
#include "engine/stream_tap.h"
#include "recognition/diagnosis_remark.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class EngineHost;

// Listens to what arrives for some seconds and finds out what it is, on a worker. GUI thread.
class LiveDiagnosis final : public QObject {
    Q_OBJECT

public:
    static constexpr int ListeningMs = 8000;
    static constexpr std::size_t MostOctets = 8 * 1024 * 1024; // then that is enough

    struct Result {
        Diagnosis remarks;
        qint64 messages = 0;
        bool isFinal = false; // it listens no more
    };

    // The host must outlive this object.
    explicit LiveDiagnosis(EngineHost *host, QObject *parent = nullptr);
    ~LiveDiagnosis() override;

    // Begins anew. The settings are those that the input is read with.
    void start(const Config &config);
    void stop();
    bool running() const { return m_tap != nullptr || m_analysis.running(); }

Q_SIGNALS:
    // A few times while it listens, and once more at the end.
    void found(const LiveDiagnosis::Result &result);

private:
    void pull();
    void analyse(bool isFinal);
    void endListening();

    EngineHost *m_host;
    Config m_config;
    std::shared_ptr<StreamTap> m_tap; // null while it does not listen
    std::vector<std::shared_ptr<const StreamBatch>> m_heard;
    std::size_t m_octets = 0;
    QElapsedTimer m_clock;
    QTimer m_pullTimer;
    BackgroundPass m_analysis;
};
