#include "engine/data_engine.h"

#include "astfile/file_reader.h"
#include "engine/track_life_span.h"
#include "processors/alert_processor.h"
#include "tracking/adsb_tracker.h"
#include "tracking/alert_manager.h"
#include "tracking/radar_tracker.h"
#include "tracking/sdps_tracker.h"
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
    makeProcessors();
    connectRecorder();
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

void DataEngine::makeProcessors()
{
    m_alertProcessor = QSharedPointer<AlertProcessor>::create(m_alertManager, m_trackManager);
    connect(m_alertProcessor.data(), &AlertProcessor::message, this, &DataEngine::logMessage);
    connect(m_alertProcessor.data(), &AlertProcessor::alertStatusChanged, this, &DataEngine::alertStatusChanged);
    m_weatherProcessor = QSharedPointer<WeatherProcessor>::create();
    connect(m_weatherProcessor.data(), &WeatherProcessor::message, this, &DataEngine::logMessage);
    connect(m_weatherProcessor.data(), &WeatherProcessor::pictureReady, this, &DataEngine::publishWeatherPicture);
    m_videoProcessor = QSharedPointer<VideoProcessor>::create();
    connect(m_videoProcessor.data(), &VideoProcessor::message, this, &DataEngine::logMessage);
    connect(m_videoProcessor.data(), &VideoProcessor::radialReady, this, &DataEngine::accumulateVideoRadial);
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
    m_alertProcessor->resetAlertStatus();
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
    m_modesDecoder = std::make_unique<korvane::modes::ModeSDecoder>();
    m_modesMessage = std::make_shared<korvane::modes::ModeSMessage>();
    m_receiverClock = {};
    m_modesBuffer.clear();
    m_aleniaSirMFailureReported = false;
    m_backlogTimer.invalidate();
    m_udpDrops = {};
    m_progressTimer.invalidate();
    m_weatherProcessor->reset();
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
    configureTracker();
}

void DataEngine::configureTracker()
{
    if (const auto *radar = qobject_cast<RadarTracker *>(m_tracker.data())) {
        connect(radar, &RadarTracker::antennaRotated, this, &DataEngine::antennaRotated);
        connect(radar, &RadarTracker::antennaNorthCrossed, this, &DataEngine::antennaNorthCrossed);
    }
    if (auto *system = qobject_cast<SystemTracker *>(m_tracker.data())) {
        system->setIgnoreWgs84Coordinates(m_config.processorAsterixIgnoreWgs84Coordinates);
        system->setIgnoreCartesianCoordinates(m_config.processorAsterixIgnoreCartesianCoordinates);
    }
    if (auto *sdps = qobject_cast<SdpsTracker *>(m_tracker.data())) {
        sdps->setCorrectLongitudeWrap(m_config.processorAsterixCorrectLongitudeWrap);
    }
    if (auto *adsb = qobject_cast<AdsbTracker *>(m_tracker.data())) {
        adsb->setAltituteBaroChecking(m_config.processorModeSBaroAltituteChecking,
            m_config.processorModeSBaroAltituteCheckingTime, m_config.processorModeSBaroAltituteMaxChange);
        adsb->setNoUpdatedTargetDeletionTime(m_config.processorModeSNoUpdatedTargetDeletionTime);
    }
}

// An input whose messages nothing decodes would look alive and show nothing, so it is not opened.
bool DataEngine::processorAvailable()
{
    switch (m_config.processorType) {
    case Config::ProcessorType::Asterix:
    case Config::ProcessorType::ModeS:
    case Config::ProcessorType::AleniaSirM:
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
    m_recorder.stop();
    m_alertProcessor->resetAlertStatus();
    publishSnapshot(); // what came in since the last one; it stays
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
