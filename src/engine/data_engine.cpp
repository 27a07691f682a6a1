#include "engine/data_engine.h"

#include "engine/serial_input.h"
#include "engine/track_life_span.h"
#include "engine/udp_input.h"
#include "processors/alert_processor.h"
#include "sensors/sensor_type_text.h"
#include "tracking/adsb_tracker.h"
#include "tracking/alert_manager.h"
#include "tracking/radar_tracker.h"
#include "tracking/sdps_tracker.h"
#include "tracking/track_manager.h"
#include "tracking/tracker.h"

#include <utility>

namespace {

constexpr int PublishPeriodMs = 200;
constexpr int StatisticsPeriodMs = 1000;

} // namespace

DataEngine::DataEngine(Projector *projector, SnapshotSlot<DisplaySnapshot> *displaySlot,
    SnapshotSlot<VideoBatch> *videoSlot, SnapshotSlot<WeatherProcessor::Picture> *weatherSlot,
    SnapshotSlot<InputStatistics> *statisticsSlot, QObject *parent)
    : QObject(parent), m_projector(projector), m_publisher(displaySlot, videoSlot, weatherSlot, statisticsSlot)
{
}

// What is read and written by an input must not go before it.
DataEngine::~DataEngine()
{
    delete std::exchange(m_input, nullptr);
}

void DataEngine::setClock(const std::shared_ptr<Clock> &clock)
{
    m_clock = clock;
    m_sources.setClock(clock);
}

void DataEngine::init()
{
    m_trackManager = QSharedPointer<TrackManager>::create();
    m_alertManager = QSharedPointer<AlertManager>::create();
    m_trackManager->setClock(m_clock);
    m_alertManager->setClock(m_clock);
    m_archive.setTracks(m_trackManager, m_clock);
    makeProcessors();
    connectRecorder();
    startTimers();
    publishSnapshot();
    publishStatistics();
}

void DataEngine::makeProcessors()
{
    m_alertProcessor = QSharedPointer<AlertProcessor>::create(m_alertManager, m_trackManager);
    m_alertProcessor->setLedger(&m_ledger);
    connect(m_alertProcessor.data(), &AlertProcessor::message, this, &DataEngine::log);
    connect(m_alertProcessor.data(), &AlertProcessor::alertStatusChanged, this, &DataEngine::alertStatusChanged);
    m_weatherProcessor = QSharedPointer<WeatherProcessor>::create();
    m_weatherProcessor->setLedger(&m_ledger);
    connect(m_weatherProcessor.data(), &WeatherProcessor::message, this, &DataEngine::log);
    connect(m_weatherProcessor.data(), &WeatherProcessor::pictureReady, this, &DataEngine::publishWeatherPicture);
    m_videoProcessor = QSharedPointer<VideoProcessor>::create();
    m_videoProcessor->setLedger(&m_ledger);
    connect(m_videoProcessor.data(), &VideoProcessor::message, this, &DataEngine::log);
    connect(m_videoProcessor.data(), &VideoProcessor::radialReady, this, &DataEngine::accumulateVideoRadial);
}

void DataEngine::startTimers()
{
    connect(&m_videoTimer, &QTimer::timeout, this, &DataEngine::publishVideoBatch);
    connect(&m_snapshotTimer, &QTimer::timeout, this, &DataEngine::publishSnapshot);
    connect(&m_secondTimer, &QTimer::timeout, this, [this] { m_logGate.sumUp(); });
    connect(&m_secondTimer, &QTimer::timeout, this, &DataEngine::publishStatistics);
    connect(&m_secondTimer, &QTimer::timeout, this, [this] { m_archive.endSecond(); });
    for (QTimer *timer : {&m_videoTimer, &m_snapshotTimer}) {
        timer->setTimerType(Qt::PreciseTimer);
        timer->start(PublishPeriodMs);
    }
    m_secondTimer.start(StatisticsPeriodMs);
}

void DataEngine::procMessage(const QByteArray &data)
{
    if (m_input) {
        m_input->router().procMessage(data);
    }
}

void DataEngine::openInput(
    const Config &config, const QSharedPointer<SensorInfo> &sensor, const QDateTime &replayStart, quint64 requestId)
{
    if (m_input) {
        log(LogLevel::Warning, tr("Input is working now, stop first!"));
        return;
    }
    m_config = config;
    m_sensor = sensor;
    m_requestId = requestId;
    m_replay.autoRewind = config.inputFileAutoRewind;
    m_replay.start = replayStart;
    m_replay.index = m_nextIndex;
    m_clock->startLive();
    clearPicture();
    if (const auto lifeSpan = TrackLifeSpan::forSensor(sensor.data())) {
        m_trackManager->setTrackLifeSpan(lifeSpan->coastingMs, lifeSpan->terminationMs);
    }
    m_input = makeInput().release();
    publishSnapshot();
    if (!m_input) {
        Q_EMIT inputOpenFailed(requestId);
        return;
    }
    m_input->setParent(this);
    connectInput(m_input);
    const Input::Opening opening = m_input->open();
    m_sources.setEndpoints(m_input->endpoints()); // ports may be the system's choice
    reportOpening(opening);
    publishStatistics();
}

// A given up opening is answered by the closing that it was given up for.
void DataEngine::reportOpening(Input::Opening opening)
{
    if (opening == Input::Opening::Opened) {
        Q_EMIT inputOpened(m_requestId);
    } else if (opening == Input::Opening::Failed) {
        const std::unique_ptr<Input> failed(std::exchange(m_input, nullptr));
        m_clock->hold();
        Q_EMIT inputFault(m_requestId, failed->faultReason());
        Q_EMIT inputOpenFailed(m_requestId);
    }
}

void DataEngine::clearPicture()
{
    m_weatherProcessor->reset();
    m_publisher.reset();
    m_sources.restart(m_sensor ? m_sensor->reportPeriod() : 0.0);
    m_plots.restart();
    m_archive.clear();
    m_trackManager->reset();
    m_alertManager->reset();
    m_alertProcessor->resetAlertStatus();
}

void DataEngine::forgetPicture()
{
    if (!m_input) {
        clearPicture();
        publishSnapshot();
        publishStatistics();
    }
}

// Numbers and times of the run before mean nothing in the next one.
void DataEngine::restartPicture()
{
    m_weatherProcessor->reset();
    m_sources.restart(m_sensor ? m_sensor->reportPeriod() : 0.0);
    m_sources.setEndpoints(m_input->endpoints());
    m_plots.restart();
    m_archive.clear();
    m_trackManager->reset();
    m_alertManager->reset();
    m_input->setRouter(makeRouter());
}

// Null, with the reason logged, when there is none. An input whose messages nothing decodes would look alive and show
// nothing, so it is not opened.
std::unique_ptr<Input> DataEngine::makeInput()
{
    if (!processorAvailable()) {
        return nullptr;
    }
    switch (m_config.inputComm) {
    case Config::InputComm::Udp:
        return std::make_unique<UdpInput>(m_config, makeRouter(), &m_recorder);
    case Config::InputComm::Serial:
        return std::make_unique<SerialInput>(m_config, makeRouter(), &m_recorder);
    case Config::InputComm::File:
        return makeRecordingInput();
    }
    log(LogLevel::Warning, Config::inputMethodName(m_config.inputComm));
    Q_EMIT inputFault(m_requestId, Config::inputMethodName(m_config.inputComm));
    return nullptr;
}

bool DataEngine::processorAvailable()
{
    switch (m_config.processorType) {
    case Config::ProcessorType::Asterix:
    case Config::ProcessorType::ModeS:
    case Config::ProcessorType::AleniaSirM:
        return true;
    }
    const QString reason = tr("The input is not opened: this version has no decoder for \"%1\".")
                               .arg(Config::processorName(m_config.processorType));
    log(LogLevel::Warning, reason);
    Q_EMIT inputFault(m_requestId, reason);
    return false;
}

std::unique_ptr<Input> DataEngine::makeRecordingInput()
{
    auto input = std::make_unique<RecordingInput>(
        m_config.inputFileName.filePath(), &m_replay, ReplayClock(m_clock, [this] { agePicture(); }),
        [this] { return m_readingCancelled > 0; }, makeRouter());
    connect(input.get(), &RecordingInput::progressed, this, &DataEngine::replayProgress);
    connect(input.get(), &RecordingInput::restarted, this, &DataEngine::restartPicture);
    return input;
}

void DataEngine::agePicture()
{
    m_trackManager->checkLife();
    m_alertManager->checkLife();
}

void DataEngine::connectInput(Input *input)
{
    connect(input, &Input::message, this, &DataEngine::log);
    connect(input, &Input::ended, this, [this, input] {
        if (!input->faultReason().isEmpty()) {
            Q_EMIT inputFault(m_requestId, input->faultReason());
        }
        closeInput();
    });
}

std::unique_ptr<MessageRouter> DataEngine::makeRouter()
{
    const MessageRouter::Consumers consumers{makeTracker(), m_alertProcessor.data(), m_weatherProcessor.data(),
        m_videoProcessor.data(), &m_sources, &m_ledger, &m_taps};
    auto router = std::make_unique<MessageRouter>(m_config, m_sensor, consumers, m_clock, &m_publisher.meter());
    connect(router.get(), &MessageRouter::message, this, &DataEngine::log);
    return router;
}

// Null for sensors that none serves.
QSharedPointer<Tracker> DataEngine::makeTracker()
{
    const auto tracker = Tracker::create(m_sensor, m_trackManager, m_projector);
    if (!tracker) {
        log(LogLevel::Warning,
            tr("There is no tracker for sensors of the type %1, its reports are not shown.")
                .arg(sensorTypeText(m_sensor ? m_sensor->type() : SensorInfo::UnknownSensor)));
        return tracker;
    }
    connect(tracker.data(), &Tracker::message, this, &DataEngine::log);
    tracker->setPlotStore(&m_plots);
    tracker->setLedger(&m_ledger);
    configureTracker(tracker.data());
    return tracker;
}

void DataEngine::configureTracker(Tracker *tracker)
{
    auto *adsb = qobject_cast<AdsbTracker *>(tracker);
    auto *sdps = qobject_cast<SdpsTracker *>(tracker);
    // These see whole countries.
    m_trackManager->setTrackNumberCount(
        adsb || sdps ? TrackManager::MaximumTrackNumbers : TrackManager::DefaultTrackNumbers);
    if (const auto *radar = qobject_cast<RadarTracker *>(tracker)) {
        connect(radar, &RadarTracker::antennaRotated, this, &DataEngine::antennaRotated);
        connect(radar, &RadarTracker::antennaNorthCrossed, this, &DataEngine::antennaNorthCrossed);
    }
    if (auto *system = qobject_cast<SystemTracker *>(tracker)) {
        system->setIgnoreWgs84Coordinates(m_config.processorAsterixIgnoreWgs84Coordinates);
        system->setIgnoreCartesianCoordinates(m_config.processorAsterixIgnoreCartesianCoordinates);
    }
    if (sdps) {
        sdps->setCorrectLongitudeWrap(m_config.processorAsterixCorrectLongitudeWrap);
    }
    if (adsb) {
        adsb->setAltituteBaroChecking(m_config.processorModeSBaroAltituteChecking,
            m_config.processorModeSBaroAltituteCheckingTime, m_config.processorModeSBaroAltituteMaxChange);
        adsb->setNoUpdatedTargetDeletionTime(m_config.processorModeSNoUpdatedTargetDeletionTime);
    }
}

void DataEngine::closeInput()
{
    Input *input = std::exchange(m_input, nullptr);
    if (!input) {
        return;
    }
    input->updateClock();
    m_sources.setBacklog(input->backlog());
    input->close();
    input->deleteLater(); // the call may come from within it
    m_clock->hold();
    m_recorder.stop();
    m_alertProcessor->resetAlertStatus();
    m_logGate.sumUp();
    publishSnapshot(); // what came in since the last one; it stays
    publishStatistics();
    Q_EMIT inputClosed(m_requestId);
}

void DataEngine::pauseInput(bool paused)
{
    if (!m_input) {
        return;
    }
    m_input->setPaused(paused);
    if (paused) {
        m_clock->hold();
    } else {
        m_clock->release();
    }
}

void DataEngine::setReplaySpeed(ReplaySpeed::Speed speed)
{
    m_replay.speed = speed;
}

void DataEngine::startRecording(const QString &fileName)
{
    if (!m_input || !m_input->isLive()) {
        log(LogLevel::Warning, tr("There is no live input to record."));
        Q_EMIT recordingStopped();
        return;
    }
    m_recorder.start(fileName);
}

void DataEngine::stopRecording()
{
    m_recorder.stop();
}

void DataEngine::connectRecorder()
{
    connect(&m_recorder, &InputRecorder::started, this, [this](const QString &fileName) {
        log(LogLevel::Info, tr("Recording input to %1").arg(fileName));
        Q_EMIT recordingStarted(fileName);
    });
    connect(&m_recorder, &InputRecorder::stopped, this,
        [this](const QString &fileName, quint64 messages, const QString &reason) {
            if (reason.isEmpty()) {
                log(LogLevel::Info, tr("Recording %1 finished, %2 messages.").arg(fileName).arg(messages));
            } else {
                log(LogLevel::Warning,
                    tr("Recording %1 stopped after %2 messages: %3").arg(fileName).arg(messages).arg(reason));
            }
            Q_EMIT recordingStopped();
        });
}

void DataEngine::setSnapshotTrailDots(int count)
{
    m_trailDots = count;
}

void DataEngine::askForReports(const ReportQuestion &question)
{
    Q_EMIT reportsAnswered(m_archive.answer(question));
}

void DataEngine::lookUp(const QString &text, quint64 requestId)
{
    Q_EMIT sightings({requestId, text, m_archive.find(IdentityQuery::fromText(text))});
}

void DataEngine::openTap(const std::shared_ptr<StreamTap> &tap)
{
    tap->setClock(m_clock);
    m_taps.open(tap);
}

void DataEngine::closeTap(const std::shared_ptr<StreamTap> &tap)
{
    m_taps.close(tap);
}

void DataEngine::publishSnapshot()
{
    m_taps.flush();
    if (m_input) {
        m_input->updateClock();
    }
    m_sources.advance();
    const auto stats = m_publisher.publishSnapshot([this](DisplaySnapshot &snapshot) {
        snapshot.tracks = m_trackManager->snapshotTracks(m_trailDots);
        snapshot.alerts = m_alertManager->snapshotAlerts();
        snapshot.alertStatus = {m_alertProcessor->alertStatus(Alert::MSAW), m_alertProcessor->alertStatus(Alert::APW),
            m_alertProcessor->alertStatus(Alert::STCA)};
        snapshot.netsHeard = m_alertManager->lastHeard();
        snapshot.time = m_clock->now();
        snapshot.recordedTime = m_clock->isRecorded();
        snapshot.messages = messagesReceived();
        snapshot.plots = m_plots.publish();
    });
    if (stats) {
        Q_EMIT pipelineStats(*stats);
    }
}

void DataEngine::publishStatistics()
{
    m_sources.advance();
    if (m_input) {
        m_sources.setBacklog(m_input->backlog());
    }
    m_publisher.publishStatistics([this] { return statistics(); });
}

InputStatistics DataEngine::statistics() const
{
    InputStatistics statistics = m_sources.statistics();
    statistics.recordedTime = m_clock->isRecorded();
    statistics.open = m_input != nullptr;
    statistics.paused = m_input && m_input->isPaused();
    statistics.requestId = m_requestId;
    return statistics;
}

void DataEngine::publishVideoBatch()
{
    m_publisher.publishVideoBatch();
}

void DataEngine::accumulateVideoRadial(const VideoProcessor::Radial &radial)
{
    m_publisher.addVideoRadial(radial);
}

void DataEngine::publishWeatherPicture(const WeatherProcessor::Picture &picture)
{
    m_publisher.publishWeatherPicture(picture);
}
