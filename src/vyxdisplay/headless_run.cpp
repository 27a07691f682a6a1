#include "vyxdisplay/headless_run.h"

#include "app/app_log.h"
#include "app/app_paths.h"
#include "asterix/asterix.h"
#include "demonstration/demo_traffic.h"
#include "engine/data_engine.h"
#include "engine/snapshot_json.h"
#include "sensors/sensor_info.h"
#include "ui/library_log.h"
#include "vyxdisplay/terminal_status.h"

#include <cstdio>
#include <utility>

namespace {

constexpr qint64 OctetsPerMebibyte = 1024 * 1024;
constexpr int LookIntervalMs = 1000;
constexpr int CloseWaitMs = 10000;
constexpr int ThreadWaitMs = 5000;

// The priorities of syslog(3), by which the journal sorts its lines.
int journalPriority(LogLevel level)
{
    switch (level) {
    case LogLevel::Panic:
        return 1;
    case LogLevel::Critical:
        return 3;
    case LogLevel::Warning:
        return 4;
    case LogLevel::Debug:
        return 7;
    default:
        return 6;
    }
}

// The journal has times of its own.
void printLine(LogLevel level, const QString &text)
{
    static const bool toJournal = !qEnvironmentVariableIsEmpty("JOURNAL_STREAM");
    const QString line = toJournal ? QStringLiteral("<%1>%2").arg(journalPriority(level)).arg(text)
                                   : formatLogLine(level, QDateTime::currentDateTime(), text);
    std::fprintf(stderr, "%s\n", qUtf8Printable(line));
}

} // namespace

HeadlessRun::HeadlessRun(const CommandLine &commandLine, DemoTraffic *demo)
    : m_commandLine(commandLine), m_demo(demo), m_config(AppPaths::configFile()), m_session(&m_config, &m_host),
      m_health(&m_lastPlaces), m_opener(nullptr, &m_config, &m_sensors, &m_session, nullptr), m_reopening(&m_session)
{
    m_uptime.start();
    LogGate::setShownLevel(minimumLogLevel(debugModeMarked()));
    connectSession();
    readSettings();
    const QString sensorFile = AppPaths::resolvePath(m_config.live().sensorDatabase);
    if (!sensorFile.isEmpty() && !m_sensors.loadFromJsonFile(QFileInfo(sensorFile))) {
        log(LogLevel::Warning, tr("Cannot read the sensor file %1").arg(sensorFile));
    }
    ast_library_init();
    LibraryLog::setSink(this, [this](LogLevel level, const QString &text) { log(level, text); });
    LibraryLog::install(debugModeMarked());
    connectEngine();
    connectTimers();
    m_host.setSnapshotTrailDots(0);
    for (const ReplaySpeed::Speed speed : ReplaySpeed::values()) {
        if (ReplaySpeed::name(speed) == commandLine.replaySpeed) {
            m_session.setReplaySpeed(speed);
        }
    }
}

HeadlessRun::~HeadlessRun()
{
    LibraryLog::setSink(nullptr, {});
    if (m_host.engine()) {
        disconnect(m_host.engine(), nullptr, this, nullptr);
    }
}

void HeadlessRun::connectEngine()
{
    const DataEngine *engine = m_host.engine();
    connect(engine, &DataEngine::logMessage, this, &HeadlessRun::log);
    connect(engine, &DataEngine::inputFault, &m_session, &InputSession::onFault);
    connect(engine, &DataEngine::inputOpened, &m_session, &InputSession::onOpened);
    connect(engine, &DataEngine::inputOpenFailed, &m_session, &InputSession::onOpenFailed);
    connect(engine, &DataEngine::inputClosed, &m_session, &InputSession::onClosed);
}

void HeadlessRun::connectSession()
{
    connect(&m_session, &InputSession::logMessage, this, &HeadlessRun::log);
    connect(&m_session, &InputSession::openingBegun, &m_health, &InputHealth::beginInput);
    connect(&m_session, &InputSession::changed, this, &HeadlessRun::showInput);
    connect(&m_session, &InputSession::shutDownDone, this, &HeadlessRun::finish);
    connect(&m_health, &InputHealth::logMessage, this, &HeadlessRun::log);
    connect(&m_sensors, &SensorManager::warning, this, [this](const QString &text) { log(LogLevel::Warning, text); });
    m_opener.setNamed([this](Config &config) { m_commandLine.applyTo(config); });
    m_opener.setSiteQuestion({});
    connect(&m_opener, &RecordingOpener::logMessage, this, &HeadlessRun::log);
    connect(&m_opener, &RecordingOpener::settingsProposed, this, &HeadlessRun::takeSettings);
    connect(&m_reopening, &Reopening::message, this, &HeadlessRun::log);
    connect(&m_reopening, &Reopening::due, this, &HeadlessRun::openInput);
    if (m_demo) {
        connect(m_demo, &DemoTraffic::message, this, &HeadlessRun::log);
        connect(&m_session, &InputSession::opened, m_demo, &DemoTraffic::start);
    }
    if (m_commandLine.exitAtEnd) {
        connect(&m_session, &InputSession::openFailed, this, &HeadlessRun::failInput, Qt::QueuedConnection);
        connect(&m_opener, &RecordingOpener::refused, this, &HeadlessRun::failInput, Qt::QueuedConnection);
        connect(&m_session, &InputSession::closed, this, &HeadlessRun::end, Qt::QueuedConnection);
    }
}

void HeadlessRun::connectTimers()
{
    connect(&m_lookTimer, &QTimer::timeout, this, &HeadlessRun::look);
    connect(&m_snapshotTimer, &QTimer::timeout, this, &HeadlessRun::writeSnapshot);
    // A hung engine is the service manager's to end.
    connect(&m_watchdogTimer, &QTimer::timeout, this, [this] {
        if (m_engineSign.elapsed() < 10 * LookIntervalMs) {
            m_service.notify("WATCHDOG=1");
        }
    });
}

void HeadlessRun::begin()
{
    m_host.start();
    m_engineSign.start();
    m_lookTimer.start(LookIntervalMs);
    if (m_commandLine.snapshotEvery) {
        m_snapshotTimer.start(*m_commandLine.snapshotEvery);
    }
    if (const auto interval = ServiceNotifier::watchdogInterval()) {
        m_watchdogTimer.start(*interval);
    }
    if (m_commandLine.exitAfter) {
        QTimer::singleShot(*m_commandLine.exitAfter, this, &HeadlessRun::end);
    }
    start();
    m_service.notify("READY=1");
}

// As they are in the file now: they may have been mended since.
void HeadlessRun::readSettings()
{
    Config config;
    config.load(AppPaths::configFile());
    if (m_demo) {
        m_demo->applyTo(config);
    }
    m_commandLine.applyTo(config);
    m_config.overrideWith([&config](Config &live) { live = config; });
    m_logFile.setLimits(config.logFileSize * OctetsPerMebibyte, config.logFileCount);
    takeSettings();
}

void HeadlessRun::takeSettings()
{
    m_session.setSensor(m_config.live().sensor(nullptr));
    m_sensors.addDetails(m_session.sensor().data());
    m_health.setSensor(m_session.sensor().data());
}

QString HeadlessRun::start()
{
    if (m_session.state() != InputSession::State::Closed) {
        return tr("The input is open already.");
    }
    openInput();
    return {};
}

void HeadlessRun::openInput()
{
    if (m_ending || m_session.state() != InputSession::State::Closed) {
        return;
    }
    readSettings();
    if (!m_commandLine.exitAtEnd && !m_session.replaying()) { // a recording ends as it should
        m_reopening.setWanted(true);
    }
    if (m_session.replaying() && (m_commandLine.sensorAuto || !m_session.sensor())) {
        m_opener.open(m_config.live().inputFileName.filePath());
    } else {
        m_session.open();
    }
}

QString HeadlessRun::stop()
{
    if (m_session.state() == InputSession::State::Closed && !m_session.waiting()) {
        return tr("No input is open.");
    }
    m_session.close();
    return {};
}

QString HeadlessRun::saveScreenshot(const QString &)
{
    return tr("There is no window.");
}

QString HeadlessRun::setView(const QJsonObject &)
{
    return tr("There is no window.");
}

void HeadlessRun::showInput()
{
    const bool open = m_session.state() == InputSession::State::Open;
    m_health.setInput(m_session.description(), open, m_session.unicastPorts());
    const QString notice = m_session.notice();
    m_service.notify("STATUS="
        + (notice.isEmpty() ? tr("Receiving on %1").arg(m_session.description()) : notice).simplified().toUtf8());
}

void HeadlessRun::look()
{
    if (const auto picture = m_pictures.take(m_host.shared().display)) {
        m_health.look(*picture);
    }
    if (const auto statistics = m_statistics.take(m_host.shared().statistics)) {
        m_engineSign.restart();
        m_health.take(*statistics);
    }
}

void HeadlessRun::log(LogLevel level, const QString &text)
{
    if (!LogGate::isShown(level)) {
        return;
    }
    printLine(level, text);
    const QString problem = m_logFile.append(level, QDateTime::currentDateTimeUtc(), text);
    if (!problem.isEmpty()) {
        printLine(LogLevel::Warning, problem);
    }
}

QJsonObject HeadlessRun::status() const
{
    TerminalStatus status;
    status.uptime = std::chrono::seconds(m_uptime.elapsed() / 1000);
    status.picture = m_host.shared().display.read().value;
    status.statistics = m_host.shared().statistics.read().value;
    describeInput(m_session, m_health, status);
    return statusJson(status);
}

QJsonObject HeadlessRun::snapshot() const
{
    const auto newest = m_host.shared().display.read().value;
    QJsonObject picture = SnapshotJson::toJson(newest ? *newest : DisplaySnapshot());
    if (const auto statistics = m_host.shared().statistics.read().value) {
        picture.insert("sources", SnapshotJson::sources(*statistics));
    }
    return picture;
}

// A failure is told when it begins and when it ends.
void HeadlessRun::writeSnapshot()
{
    QString reason;
    const bool written = SnapshotJson::save(snapshot(), m_commandLine.snapshot, &reason);
    if (std::exchange(m_snapshotFailed, !written) == !written) {
        return;
    }
    if (written) {
        log(LogLevel::Info, tr("%1 is written again.").arg(m_commandLine.snapshot));
    } else {
        log(LogLevel::Warning, tr("Cannot write %1: %2").arg(m_commandLine.snapshot, reason));
    }
}

void HeadlessRun::failInput()
{
    m_succeeded = false;
    end();
}

void HeadlessRun::end()
{
    if (std::exchange(m_ending, true)) {
        return;
    }
    m_service.notify("STOPPING=1");
    m_opener.cancel();
    m_snapshotTimer.stop();
    if (!m_commandLine.snapshot.isEmpty()) {
        writeSnapshot();
        m_succeeded = m_succeeded && !m_snapshotFailed;
    }
    if (!m_session.shutDown()) {
        finish();
        return;
    }
    QTimer::singleShot(CloseWaitMs, this, [this] {
        log(LogLevel::Warning, tr("Data engine did not confirm the input close within 10 s, forcing shutdown."));
        finish();
    });
}

void HeadlessRun::finish()
{
    if (std::exchange(m_finished, true)) {
        return;
    }
    if (!m_host.stop(ThreadWaitMs)) {
        log(LogLevel::Warning, tr("Data processing thread did not stop within 5 s, abandoning it."));
    }
    Q_EMIT finished();
}
