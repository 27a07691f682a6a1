#include "demonstration/demo_traffic.h"

#include "app/app_paths.h"
#include "app/config.h"
#include "sensors/sensor_info.h"

#include <QJsonDocument>
#include <QStandardPaths>
#include <QUdpSocket>

#include <algorithm>
#include <cmath>

namespace {

constexpr auto ProgramName = "vyx-traffic";
constexpr auto DefaultScenario = "demo";
constexpr auto MapIndex = "demo.idx"; // among the maps that are installed
constexpr double AerodromeReach = 10.0; // nautical miles
constexpr int MostRings = 20;
constexpr int AnswerWaitMs = 10000;
constexpr int EndWaitMs = 1000;

using Encapsulation = korvane::modes::ModeSEncapsulation;

Config::ProcessorType processorOf(const QJsonObject &source)
{
    const QString processor = source["processor"].toString();
    if (processor == "modes") {
        return Config::ProcessorType::ModeS;
    }
    return processor == "sirm" ? Config::ProcessorType::AleniaSirM : Config::ProcessorType::Asterix;
}

} // namespace

DemoTraffic::DemoTraffic(const QString &scenario, const QString &program, QObject *parent)
    : QObject(parent), m_scenario(scenario.isEmpty() ? DefaultScenario : scenario), m_program(program)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    connect(&m_process, &QProcess::finished, this, &DemoTraffic::reportEnd);
}

QString DemoTraffic::findProgram()
{
    const QString beside = QStandardPaths::findExecutable(ProgramName, {AppPaths::exeDir()});
    return beside.isEmpty() ? QStandardPaths::findExecutable(ProgramName) : beside;
}

DemoTraffic::~DemoTraffic()
{
    m_process.disconnect(this);
    if (m_process.state() == QProcess::NotRunning) {
        return;
    }
    m_process.terminate();
    if (!m_process.waitForFinished(EndWaitMs)) {
        m_process.kill();
        m_process.waitForFinished(EndWaitMs);
    }
}

// What the generator prints when run with the arguments; null, with one line in error, when that fails.
QByteArray DemoTraffic::answer(const QString &program, const QStringList &arguments, QString *error)
{
    if (program.isEmpty()) {
        *error = tr("%1 was found neither beside the executable nor in the path").arg(ProgramName);
        return {};
    }
    QProcess query;
    query.start(program, arguments);
    if (!query.waitForFinished(AnswerWaitMs) || query.exitStatus() != QProcess::NormalExit || query.exitCode() != 0) {
        const QString reason = QString::fromUtf8(query.readAllStandardError()).trimmed().section('\n', 0, 0);
        *error = reason.isEmpty() ? tr("%1 does not answer").arg(program) : reason;
        return {};
    }
    return query.readAllStandardOutput();
}

QString DemoTraffic::list(QString *error, const QString &program)
{
    return QString::fromUtf8(answer(program, {"--list"}, error));
}

QByteArray DemoTraffic::askForSensor(const QString &scenario, const QString &program, QString *error)
{
    return answer(program, {scenario.isEmpty() ? DefaultScenario : scenario, "--sensor-json"}, error);
}

bool DemoTraffic::takeSensor(const QByteArray &json, QString *error)
{
    return readSensor(json, error) && findPort(error);
}

bool DemoTraffic::prepare(QString *error)
{
    const QByteArray json = askForSensor(m_scenario, m_program, error);
    return !json.isNull() && takeSensor(json, error);
}

bool DemoTraffic::readSensor(const QByteArray &json, QString *error)
{
    m_source = QJsonDocument::fromJson(json).object();
    m_sensor = SensorInfo::create(m_source);
    if (!m_sensor) {
        *error = tr("%1 names no sensor for the scenario").arg(m_program);
    }
    return !m_sensor.isNull();
}

bool DemoTraffic::findPort(QString *error)
{
    QUdpSocket socket;
    if (!socket.bind(QHostAddress::AnyIPv4, 0)) {
        *error = tr("No free UDP port: %1").arg(socket.errorString());
        return false;
    }
    m_port = socket.localPort();
    return true;
}

void DemoTraffic::applyTo(Config &config) const
{
    config.inputComm = Config::InputComm::Udp;
    config.inputUdpMulticast1 = false;
    config.inputUdpPort1 = m_port;
    config.inputEnable2 = false;
    config.processorType = processorOf(m_source);
    config.processorModeSEncapsulation =
        Encapsulation::fromIdentifier(m_source["encapsulation"].toString().toStdString());
    config.processorAleniaSirMFormat = Config::AleniaSirMFormat::Raw;
    config.processorAsterixFormat = Config::AsterixFormat::Raw;
    config.processorAsterixUap = 0;
    config.processorAsterixVerifySacSic = false; // weather and alerts may come from elsewhere
    config.mapWeatherVisible = m_source["weather"].toBool();
    config.mapVideoVisible = m_source["video"].toBool();
    config.setSensor(m_sensor);
    if (config.mapIndex == Config().mapIndex) {
        config.mapIndex = MapIndex; // who has chosen one keeps it
    }
    fitRings(config);
}

// Some in the first view, unless others have been chosen before.
void DemoTraffic::fitRings(Config &config) const
{
    const Config defaults;
    double reach = 0.0;
    for (const double coverage : m_sensor->coverages()) {
        reach = std::max(reach, coverage);
    }
    if (reach == 0.0 || config.mapRangeRingDistance != defaults.mapRangeRingDistance
        || config.mapRangeRingNumber != defaults.mapRangeRingNumber) {
        return;
    }
    config.mapRangeRingVisible = true;
    config.mapRangeRingDistance = reach > AerodromeReach ? 10.0 : 0.5;
    config.mapRangeRingNumber = std::clamp(qRound(std::ceil(reach / config.mapRangeRingDistance)), 1, MostRings);
}

void DemoTraffic::start()
{
    if (m_process.state() == QProcess::NotRunning) {
        m_process.start(
            m_program, {m_scenario, "--with-parent", "--wall-clock", "--to", QString("udp:127.0.0.1:%1").arg(m_port)});
    }
}

void DemoTraffic::endSoon()
{
    m_process.disconnect(this);
    if (m_process.state() == QProcess::NotRunning) {
        deleteLater();
        return;
    }
    connect(&m_process, &QProcess::finished, this, &QObject::deleteLater);
    m_process.terminate();
}

void DemoTraffic::reportEnd(int exitCode, QProcess::ExitStatus status)
{
    if (status == QProcess::NormalExit && exitCode == 0) {
        Q_EMIT message(LogLevel::Info, tr("The demonstration traffic has ended."));
    } else if (status == QProcess::NormalExit) {
        Q_EMIT message(LogLevel::Warning, tr("The demonstration traffic ended with status %1.").arg(exitCode));
    } else {
        Q_EMIT message(LogLevel::Warning, tr("The demonstration traffic crashed or was killed."));
    }
}
