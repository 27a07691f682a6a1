#pragma once

#include "app/background_pass.h"
#include "engine/slot_reader.h"
#include "engine/source_statistics.h"
#include "engine/stream_tap.h"
#include "input_probe/probe_result.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <deque>
#include <memory>

class EngineHost;
class StreamAnalyser;

// Finds out what an input brings before anything is set to it. Listens with an engine of its own, so that an input is
// opened here exactly as it will be later and the octets are taken off the socket on another thread; while the
// program's input runs it is told by that one instead, since a second listener would take its datagrams. What was heard
// is analysed on a worker. Keeps no more of a stream than a few MiB, for as long as that takes. GUI thread.
class InputProbe final : public QObject {
    Q_OBJECT

public:
    explicit InputProbe(QObject *parent = nullptr);
    ~InputProbe() override;

    // Begins anew, on the input that is configured, if it is no recording. A unicast port that somebody else has is
    // refused.
    void listen(const Config &config);
    // Begins anew, on what the engine receives. The settings are those of its input.
    void watch(EngineHost *host, const Config &config);
    // Socket or line are closed when this returns; it waits for the probe's own engine to put down what it is at, some
    // milliseconds.
    void stop();

    const ProbeResult &result() const { return m_result; }
    // Of the input that it listens to.
    const Config &config() const { return m_config; }

Q_SIGNALS:
    // The result, twice a second while it listens and whenever something was found.
    void changed();

private:
    struct Sample {
        qint64 timeMs = 0;
        quint64 messages = 0;
        quint64 octets = 0;
    };

    void begin(const Config &config, EngineHost *host);
    void beginWindow();
    void openOwnEngine();
    static quint16 takenPort(const Config &config);
    void refuseTaken(quint16 port);
    void refuse(const QString &fault);
    void look();
    void takeStatistics(const InputStatistics &statistics);
    void takeStream();
    void analyse();
    void takeFindings(const StreamFindings &findings);

    Config m_config;
    ProbeResult m_result;
    std::unique_ptr<EngineHost> m_own; // null unless it listens by itself
    QPointer<EngineHost> m_host; // null while it does not listen
    quint64 m_requestId = 0; // of the own engine's opening
    std::shared_ptr<StreamTap> m_tap;
    SlotReader<InputStatistics> m_statistics;
    std::deque<Sample> m_samples; // the last ten seconds
    QElapsedTimer m_clock; // since the beginning
    qint64 m_heardMs = 0; // by that clock: when something arrived last

    // What is analysed together: long enough for an antenna to turn a few times, no longer than the truth lasts.
    std::shared_ptr<StreamAnalyser> m_analyser;
    std::vector<std::shared_ptr<const StreamBatch>> m_waiting;
    qint64 m_windowOctets = 0;
    QElapsedTimer m_windowClock;

    QTimer m_lookTimer;
    BackgroundPass m_analysis;
    BackgroundPass m_portSearch;
};
