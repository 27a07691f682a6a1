#include "engine/data_engine.h"

#include "astfile/file_reader.h"
#include "engine/track_life_span.h"
#include "processors/alert_manager.h"
#include "tracking/radar_tracker.h"
#include "tracking/track_manager.h"
#include "tracking/tracker.h"

#include <QSerialPort>
#include <QUdpSocket>

namespace {

constexpr int PublishPeriodMs = 200;
constexpr qsizetype ReceiveBufferSize = 65536; // no datagram is larger; serial chunks may be

} // namespace

DataEngine::DataEngine(Projector *projector, SnapshotSlot<DisplaySnapshot> *displaySlot,
    SnapshotSlot<VideoBatch> *videoSlot, SnapshotSlot<WeatherProcessor::Picture> *weatherSlot, QObject *parent)
    : QObject(parent), m_projector(projector), m_displaySlot(displaySlot), m_videoSlot(videoSlot),
      m_weatherSlot(weatherSlot)
{
}

DataEngine::~DataEngine() = default;

void DataEngine::init()
{
    m_trackManager = QSharedPointer<TrackManager>::create();
    m_alertManager = QSharedPointer<AlertManager>::create();
    m_receiveBuffer.resize(ReceiveBufferSize);
    m_clock.start();

    m_replayTimer.setSingleShot(true);
    connect(&m_replayTimer, &QTimer::timeout, this, &DataEngine::procInputFile);
    connect(&m_videoTimer, &QTimer::timeout, this, &DataEngine::publishVideoBatch);
    connect(&m_snapshotTimer, &QTimer::timeout, this, &DataEngine::publishSnapshot);
    for (QTimer *timer : {&m_videoTimer, &m_snapshotTimer}) {
        timer->setTimerType(Qt::PreciseTimer);
        timer->start(PublishPeriodMs);
    }
    publishSnapshot();
}

void DataEngine::openInput(
    const Config &config, const QSharedPointer<SensorInfo> &sensor, const QDateTime &replayStart, quint64 requestId)
{
    if (m_inputOpen) {
        Q_EMIT logMessage(LogLevel::Warning, tr("Input is working now, stop first!"));
        return;
    }
    m_config = config;
    m_sensor = sensor;
    m_replayStart = replayStart;
    m_requestId = requestId;
    discardInputState();
    if (const auto lifeSpan = TrackLifeSpan::forSensor(sensor.data())) {
        m_trackManager->setTrackLifeSpan(lifeSpan->coastingMs, lifeSpan->terminationMs);
    }
    createTracker();
    m_alertManager->reset();
    publishSnapshot();

    if (!processorAvailable() || !openInputByKind()) {
        Q_EMIT inputOpenFailed(requestId);
        return;
    }
    m_inputOpen = true;
    m_inputPaused = false;
    Q_EMIT inputOpened(requestId);
}

void DataEngine::discardInputState()
{
    m_mismatchingSources.clear();
    m_backlogTimer.invalidate();
    m_udpDrops = {};
    m_progressTimer.invalidate();
    m_videoBatch.reset();
    m_meter.reset();
    m_trackManager->reset();
}

void DataEngine::createTracker()
{
    m_tracker = Tracker::create(m_sensor, m_trackManager, m_projector);
    if (!m_tracker) {
        Q_EMIT logMessage(LogLevel::Warning,
            tr("There is no tracker for sensors of the type %1, its reports are not shown.")
                .arg(SensorInfo::typeFullName(m_sensor ? m_sensor->type() : SensorInfo::UnknownSensor)));
        return;
    }
    connect(m_tracker.data(), &Tracker::message, this, &DataEngine::logMessage);
    if (const auto *radar = qobject_cast<RadarTracker *>(m_tracker.data())) {
        connect(radar, &RadarTracker::antennaRotated, this, &DataEngine::antennaRotated);
        connect(radar, &RadarTracker::antennaNorthCrossed, this, &DataEngine::antennaNorthCrossed);
    }
}

// An input whose messages nothing decodes would look alive and show nothing, so it is not opened.
bool DataEngine::processorAvailable()
{
    if (m_config.processorType == Config::ProcessorType::Asterix) {
        return true;
    }
    Q_EMIT logMessage(LogLevel::Warning,
        tr("The input is not opened: this version has no decoder for \"%1\".")
            .arg(Config::processorName(m_config.processorType)));
    return false;
}

bool DataEngine::openInputByKind()
{
    switch (m_config.inputComm) {
    case Config::InputComm::Udp:
        return openInputUdp();
    case Config::InputComm::Serial:
        return openInputSerial();
    case Config::InputComm::File:
        return openInputFile();
    }
    Q_EMIT logMessage(LogLevel::Warning, Config::inputMethodName(m_config.inputComm));
    return false;
}

void DataEngine::closeInput()
{
    if (!m_inputOpen && !m_udpSocket1 && !m_udpSocket2 && !m_serialPort && !m_fileReader) {
        return;
    }
    switch (m_config.inputComm) {
    case Config::InputComm::Udp:
        closeInputUdp();
        break;
    case Config::InputComm::Serial:
        closeInputSerial();
        break;
    case Config::InputComm::File:
        closeInputFile();
        break;
    }
    m_inputOpen = false;
    Q_EMIT inputClosed(m_requestId);
}

void DataEngine::pauseInput(bool paused)
{
    m_inputPaused = paused;
}

void DataEngine::setReplaySpeed(ReplaySpeed::Speed speed)
{
    m_replaySpeed = speed;
}
