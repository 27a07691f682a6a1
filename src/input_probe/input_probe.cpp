#include "input_probe/input_probe.h"

#include "engine/data_engine.h"
#include "engine/engine_host.h"
#include "input_probe/udp_port_users.h"
#include "recognition/stream_analyser.h"
#include "recognition/stream_diagnosis.h"

#include <QUdpSocket>

namespace {

constexpr int LookPeriodMs = 500;
constexpr qint64 RatePeriodMs = 10000;
constexpr qint64 WindowMs = 120000;
constexpr qint64 SettlingMs = 20000; // before a window is worth more than the one before it
constexpr qint64 MostWindowOctets = 8 * 1024 * 1024;

// Any source is let through, as anything that is decoded is thrown away.
Config asListener(Config config)
{
    config.processorType = Config::ProcessorType::Asterix;
    config.processorAsterixVerifySacSic = false;
    return config;
}

QString udpEndpoint(bool multicast, const QHostAddress &group, quint16 port)
{
    return multicast ? QStringLiteral("%1:%2").arg(group.toString()).arg(port)
                     : InputProbe::tr("UDP port %1").arg(port);
}

QString endpointOf(const Config &config)
{
    switch (config.inputComm) {
    case Config::InputComm::Serial:
        return config.inputSerialDevice;
    case Config::InputComm::File:
        return config.inputFileName.fileName();
    case Config::InputComm::Udp:
        break;
    }
    const QString first = udpEndpoint(config.inputUdpMulticast1, config.inputUdpMcastAddress1, config.inputUdpPort1);
    return config.inputEnable2
        ? InputProbe::tr("%1 and %2")
              .arg(first, udpEndpoint(config.inputUdpMulticast2, config.inputUdpMcastAddress2, config.inputUdpPort2))
        : first;
}

QList<quint16> unicastPorts(const Config &config)
{
    QList<quint16> ports;
    if (config.inputComm == Config::InputComm::Udp && !config.inputUdpMulticast1) {
        ports += config.inputUdpPort1;
    }
    if (config.inputComm == Config::InputComm::Udp && config.inputEnable2 && !config.inputUdpMulticast2) {
        ports += config.inputUdpPort2;
    }
    return ports;
}

QString takenText(quint16 port, const QString &user)
{
    return InputProbe::tr("UDP port %1 is taken by %2. Only one of two listeners gets what is sent to a port, so it is "
                          "left alone: end that program, or choose another port.")
        .arg(port)
        .arg(user);
}

} // namespace

InputProbe::InputProbe(QObject *parent) : QObject(parent)
{
    m_lookTimer.setInterval(LookPeriodMs);
    connect(&m_lookTimer, &QTimer::timeout, this, &InputProbe::look);
}

InputProbe::~InputProbe()
{
    stop();
}

void InputProbe::listen(const Config &config)
{
    stop();
    if (config.inputComm == Config::InputComm::File) {
        return;
    }
    if (const quint16 port = takenPort(config)) {
        begin(config, nullptr);
        refuseTaken(port);
        return;
    }
    m_own = std::make_unique<EngineHost>();
    begin(config, m_own.get());
    openOwnEngine();
    Q_EMIT changed();
}

void InputProbe::watch(EngineHost *host, const Config &config)
{
    stop();
    begin(config, host);
    m_result.ofRunningInput = true;
    m_result.state = ProbeResult::State::Listening;
    look();
}

void InputProbe::stop()
{
    m_lookTimer.stop();
    m_analysis.cancel();
    m_portSearch.cancel();
    if (m_host && !m_own) {
        m_host->closeTap(m_tap);
    }
    m_own.reset();
    m_host.clear();
    m_tap.reset();
    m_waiting.clear();
    m_analyser.reset();
    m_result = {};
}

void InputProbe::begin(const Config &config, EngineHost *host)
{
    m_config = config;
    m_host = host;
    m_result.comm = config.inputComm;
    m_result.endpoint = endpointOf(config);
    m_result.state = ProbeResult::State::Opening;
    m_statistics = {};
    m_samples.clear();
    m_clock.start();
    m_heardMs = 0;
    beginWindow();
    if (host) {
        m_tap = std::make_shared<StreamTap>(StreamTap::Content::Messages);
        host->openTap(m_tap);
        m_lookTimer.start();
    }
}

void InputProbe::beginWindow()
{
    m_analyser = std::make_shared<StreamAnalyser>();
    m_waiting.clear();
    m_windowOctets = 0;
    m_windowClock.start();
}

void InputProbe::openOwnEngine()
{
    const DataEngine *engine = m_own->engine();
    const quint64 request = ++m_requestId; // answers to older ones may still be on their way
    connect(engine, &DataEngine::inputOpened, this, [this](quint64 answered) {
        if (answered == m_requestId && m_own) {
            m_result.state = ProbeResult::State::Listening;
            m_clock.start();
            Q_EMIT changed();
        }
    });
    connect(engine, &DataEngine::inputFault, this, [this](quint64 answered, const QString &reason) {
        if (answered == m_requestId && m_own) {
            refuse(reason);
        }
    });
    m_own->start();
    m_own->openInput(asListener(m_config), nullptr, {}, request);
}

// Zero: none. Of sockets that share a port only one gets the datagrams, so it is asked for without sharing. It is
// closed before the engine opens it: whoever comes in between is shared with.
quint16 InputProbe::takenPort(const Config &config)
{
    for (const quint16 port : unicastPorts(config)) {
        QUdpSocket trial;
        if (!trial.bind(QHostAddress::AnyIPv4, port, QUdpSocket::DontShareAddress)
            && trial.error() == QAbstractSocket::AddressInUseError) {
            return port;
        }
    }
    return 0;
}

void InputProbe::refuseTaken(quint16 port)
{
    refuse(takenText(port, tr("another program")));
    const auto search = [port](const BackgroundPass::Token &) {
        return UdpPortUsers::find({port}, UdpPortUsers::ownSockets());
    };
    m_portSearch.start(search, [this, port](const QList<UdpPortUser> &users) {
        if (!users.isEmpty()) {
            refuse(takenText(port, UdpPortUsers::describe(users.first())));
        }
    });
}

void InputProbe::refuse(const QString &fault)
{
    m_result.state = ProbeResult::State::Refused;
    m_result.fault = fault;
    m_lookTimer.stop();
    Q_EMIT changed();
}

void InputProbe::look()
{
    if (!m_host) {
        return stop(); // the program ends
    }
    if (const auto statistics = m_statistics.take(m_host->shared().statistics); statistics && statistics->open) {
        takeStatistics(*statistics);
    }
    takeStream();
    m_result.listenedMs = m_clock.elapsed();
    m_result.silentMs = m_result.listenedMs - m_heardMs;
    Q_EMIT changed();
}

void InputProbe::takeStatistics(const InputStatistics &statistics)
{
    if (!m_samples.empty() && statistics.messages < m_samples.back().messages) {
        m_samples.clear(); // opened anew
    }
    if (statistics.messages != m_result.messages) {
        m_heardMs = m_clock.elapsed();
    }
    m_result.paused = statistics.paused;
    m_result.messages = statistics.messages;
    m_result.octets = statistics.octets;
    m_samples.push_back({statistics.timeMs, statistics.messages, statistics.octets});
    while (m_samples.back().timeMs - m_samples.front().timeMs > RatePeriodMs) {
        m_samples.pop_front();
    }
    const Sample &first = m_samples.front();
    const double seconds = static_cast<double>(statistics.timeMs - first.timeMs) / 1000.0;
    if (seconds > 0.0) {
        m_result.messageRate = static_cast<double>(statistics.messages - first.messages) / seconds;
        m_result.octetRate = static_cast<double>(statistics.octets - first.octets) / seconds;
    }
}

// What does not fit into the window is not analysed; it has been counted.
void InputProbe::takeStream()
{
    for (const auto &batch : m_tap->takeAll().batches) {
        if (m_windowOctets < MostWindowOctets) {
            m_windowOctets += static_cast<qint64>(batch->octets.size());
            m_waiting.push_back(batch);
        }
    }
    if (m_analysis.running()) {
        return;
    }
    if (m_windowClock.elapsed() >= WindowMs) {
        beginWindow();
    } else if (!m_waiting.empty()) {
        analyse();
    }
}

void InputProbe::analyse()
{
    const auto work = [analyser = m_analyser, batches = std::exchange(m_waiting, {})](
                          const BackgroundPass::Token &token) {
        for (const auto &batch : batches) {
            for (const StreamBatch::Message &message : batch->messages) {
                if (token.cancelled()) {
                    return StreamFindings();
                }
                const auto octets = batch->octetsOf(message);
                analyser->add(QByteArray::fromRawData(
                                  reinterpret_cast<const char *>(octets.data()), static_cast<qsizetype>(octets.size())),
                    QDateTime::fromMSecsSinceEpoch(message.timeMs, Qt::UTC));
            }
        }
        return analyser->findings();
    };
    m_analysis.start(work, [this](const StreamFindings &findings) { takeFindings(findings); });
}

// At the beginning of a window less is known than at the end of the one before.
void InputProbe::takeFindings(const StreamFindings &findings)
{
    if (m_result.isRecognised() && m_clock.elapsed() >= WindowMs && m_windowClock.elapsed() < SettlingMs) {
        return;
    }
    m_result.findings = findings;
    m_result.troubles.clear();
    for (const DiagnosisRemark &remark : diagnose(findings)) {
        if (remark.level == DiagnosisRemark::Level::Wrong) {
            m_result.troubles.append(remark);
        }
    }
    Q_EMIT changed();
}
