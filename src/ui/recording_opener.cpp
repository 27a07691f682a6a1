#include "ui/recording_opener.h"

#include "app/run_config.h"
#include "recognition/input_proposal.h"
#include "recognition/stream_diagnosis.h"
#include "sensors/radar_sensor_info.h"
#include "settings/sensor_site_window.h"
#include "ui/input_session.h"

#include <QFileInfo>
#include <QProgressDialog>

#include <utility>

namespace {

constexpr int QuietWaitMs = 500;
constexpr SettingGroups ProposedGroups = SettingGroup::Processor | SettingGroup::Sensor;

bool isSameSource(const SensorInfo &a, const SensorInfo &b)
{
    return a.type() == b.type() && a.sac() == b.sac() && a.sic() == b.sic() && (a.sac() != 0 || a.sic() != 0);
}

double rotationPeriod(const SensorInfo &sensor)
{
    const auto *radar = qobject_cast<const RadarSensorInfo *>(&sensor);
    return radar ? radar->rotationPeriod() : 0.0;
}

void takeOver(const SensorInfo &known, InputProposal *proposal)
{
    proposal->setSite(known.location());
    proposal->sensor()->setName(known.name());
    if (proposal->rotationPeriodMissing()) {
        proposal->setRotationPeriod(rotationPeriod(known));
    }
}

} // namespace

RecordingOpener::RecordingOpener(
    QWidget *window, RunConfig *config, const SensorManager *sensors, InputSession *session, QObject *parent)
    : QObject(parent), m_window(window), m_config(config), m_sensors(sensors), m_session(session),
      m_siteQuestion([this](InputProposal *proposal) { return askSite(proposal); })
{
    connect(&m_analysis, &RecordingAnalysis::finished, this, &RecordingOpener::take);
}

RecordingOpener::~RecordingOpener()
{
    cancel();
}

void RecordingOpener::open(const QString &fileName)
{
    cancel();
    if (!QFileInfo(fileName).isReadable()) {
        Q_EMIT logMessage(LogLevel::Warning, tr("Failed to open recording file: %1").arg(fileName));
        Q_EMIT refused(tr("%1 cannot be read.").arg(QFileInfo(fileName).fileName()));
        return;
    }
    showWait(fileName);
    m_analysis.start(fileName);
}

void RecordingOpener::cancel()
{
    m_analysis.cancel();
    if (m_wait) {
        m_wait->disconnect(this); // closing it counts as a press on its button
        m_wait->reset(); // it would show itself later
        m_wait->hide();
        m_wait->deleteLater();
        m_wait.clear();
    }
}

void RecordingOpener::showWait(const QString &fileName)
{
    if (!m_window) {
        return;
    }
    m_wait = new QProgressDialog(
        tr("Looking at %1 ...").arg(QFileInfo(fileName).fileName()), tr("Cancel"), 0, 100, m_window);
    m_wait->setWindowTitle(tr("Open Recording"));
    m_wait->setAutoClose(false);
    m_wait->setAutoReset(false);
    m_wait->setMinimumDuration(QuietWaitMs);
    connect(m_wait, &QProgressDialog::canceled, this, &RecordingOpener::cancel);
    connect(&m_analysis, &RecordingAnalysis::progressed, m_wait, &QProgressDialog::setValue);
}

void RecordingOpener::take(const RecordingFindings &findings)
{
    cancel();
    const QString name = QFileInfo(findings.fileName).fileName();
    if (!findings.playable()) {
        if (findings.format == korvane::astfile::RecFile::Unknown) {
            Q_EMIT logMessage(LogLevel::Critical, tr("Recording file format is not supported."));
        }
        const QString reason = tr("%1 cannot be played. %2").arg(name, findings.fault);
        Q_EMIT logMessage(LogLevel::Warning, reason);
        Q_EMIT refused(reason);
        return;
    }
    Q_EMIT logMessage(LogLevel::Info, tr("%1 holds %2.").arg(name, describe(findings.stream)));
    logDiagnosis(findings);
    InputProposal proposal(findings.stream, *m_sensors);
    Config proposed = m_config->live();
    proposal.applyTo(&proposed);
    Config named = proposed;
    if (m_named) {
        m_named(named);
    }
    const bool sensorNamed = Config::changedGroups(proposed, named).testFlag(SettingGroup::Sensor);
    if (!sensorNamed) {
        if (!settleSite(&proposal)) {
            return;
        }
        Q_EMIT logMessage(LogLevel::Info, proposal.choiceText());
    }
    if (!proposal.shortfallText().isEmpty()) {
        Q_EMIT logMessage(LogLevel::Warning, proposal.shortfallText());
    }
    proposal.applyTo(&proposed);
    if (m_named) {
        m_named(proposed);
    }
    Q_EMIT settingsProposed(m_config->setAside(proposed, ProposedGroups));
    m_session->play(findings.fileName);
}

// What is as it should be needs no line.
void RecordingOpener::logDiagnosis(const RecordingFindings &findings)
{
    for (const DiagnosisRemark &remark : diagnose(findings)) {
        if (remark.level != DiagnosisRemark::Level::Fine) {
            const bool isWrong = remark.level == DiagnosisRemark::Level::Wrong;
            Q_EMIT logMessage(isWrong ? LogLevel::Warning : LogLevel::Info, remarkText(remark));
        }
    }
}

// False when the operator does not tell it.
bool RecordingOpener::settleSite(InputProposal *proposal)
{
    const auto configured = m_config->own().sensor(nullptr);
    for (const auto &known : QList{configured} + m_answered) {
        if (proposal->siteMissing() && known && isSameSource(*known, *proposal->sensor())
            && known->location().isValid()) {
            takeOver(*known, proposal);
        }
    }
    if (!proposal->siteMissing()) {
        return true;
    }
    if (!m_siteQuestion) {
        takeProvisionalSite(proposal);
        return true;
    }
    const QPointer<RecordingOpener> self(this);
    if (!m_siteQuestion(proposal) || !self) {
        return false;
    }
    m_answered.append(proposal->sensor());
    return true;
}

bool RecordingOpener::askSite(InputProposal *proposal)
{
    SensorSiteWindow window(proposal->sensor()->name(), proposal->rotationPeriodMissing(), m_window);
    const auto configured = m_config->own().sensor(nullptr);
    if (configured && configured->type() == proposal->sensor()->type()) {
        window.suggestSite(configured->location());
    }
    if (window.exec() != QDialog::Accepted) {
        return false;
    }
    proposal->setSite(window.site());
    if (!window.name().isEmpty()) {
        proposal->sensor()->setName(window.name());
    }
    if (proposal->rotationPeriodMissing()) {
        proposal->setRotationPeriod(window.rotationPeriod());
    }
    return true;
}

void RecordingOpener::takeProvisionalSite(InputProposal *proposal)
{
    const Config &own = m_config->own();
    const auto configured = own.sensor(nullptr);
    const bool usesSensor = configured && configured->location().isValid();
    const GeoCoordinate site = usesSensor ? configured->location() : own.displayCenterCoordinate;
    proposal->setSite(site);
    Q_EMIT logMessage(LogLevel::Warning,
        tr("The recording does not tell where %1 stands: it is shown around %2 for now; give its place with "
           "--sensor, or as Location in Settings, Sensor.")
            .arg(proposal->sensor()->name(), site.toATCString()));
}
