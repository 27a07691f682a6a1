#include "health/input_health.h"

#include "engine/display_snapshot.h"
#include "sensors/sensor_info.h"
#include "silence/geo_last_place_map.h"

#include <QStringList>

#include <algorithm>
#include <utility>

using Level = SilenceWatch::Level;

InputHealth::InputHealth(GeoLastPlaceMap *lastPlaces) : m_lastPlaceMap(lastPlaces)
{
    connect(&m_ports, &PortWatch::changed, this, [this] {
        logPortUsers();
        updateNotice();
    });
}

void InputHealth::setInput(const QString &name, bool expecting, const QSet<quint16> &unicastPorts)
{
    m_input = name;
    m_silence.setExpecting(expecting);
    m_basis.expecting = expecting;
    m_ports.setPorts(unicastPorts);
    updateNotice();
}

void InputHealth::setSensor(const SensorInfo *sensor)
{
    m_silence.setSensor(sensor);
    m_basis.sensorKind = sensor ? sensor->type() : UnknownSensor;
    m_basis.sensorSac = sensor ? sensor->sac() : 0;
    m_basis.sensorSic = sensor ? sensor->sic() : 0;
}

void InputHealth::beginInput()
{
    m_sources.beginInput();
    m_silence.beginInput();
    m_nets.beginInput();
    m_lastPlaces.beginInput();
    m_unheardEnds.clear();
    m_lastPlaceMap->setPlaces({});
    updateNotice();
}

void InputHealth::look(const DisplaySnapshot &snapshot)
{
    m_now = snapshot.time;
    const Level before = m_silence.level();
    const qint64 silentMs = m_silence.silentMs();
    if (m_silence.look(snapshot)) {
        logSilence(before, silentMs);
    }
    if (m_lastPlaces.look(snapshot, m_silence)) {
        m_lastPlaceMap->setPlaces(m_lastPlaces.places());
    }
    logUnheardEnds(snapshot);
    const bool netsChanged = m_nets.look(snapshot);
    updateNotice(); // when the day changes, so does its text
    if (netsChanged) {
        Q_EMIT changed();
    }
}

void InputHealth::take(const InputStatistics &statistics)
{
    m_basis.nowMs = statistics.timeMs;
    m_basis.live = !statistics.recordedTime;
    m_basis.inputSilent = m_silence.level() == Level::Silent;
    const QList<SourceWatch::Line> lines = m_sources.take(statistics, m_basis);
    m_silence.setMeasuredPeriod(m_sources.measuredPeriod());
    if (m_silence.level() == Level::Heard) { // else one line has said it for all
        for (const SourceWatch::Line &line : lines) {
            Q_EMIT logMessage(line.level, line.text);
        }
    }
    updateNotice();
    if (m_sources.explanation() != std::exchange(m_explanation, m_sources.explanation())) {
        Q_EMIT changed();
    }
    Q_EMIT sourcesChanged();
}

SourceJudgement::Light InputHealth::light() const
{
    using Light = SourceJudgement::Light;
    switch (m_basis.expecting ? m_silence.level() : Level::Heard) {
    case Level::Silent:
        return Light::Red;
    case Level::Overdue:
        return std::max(Light::Amber, m_sources.worst());
    case Level::Heard:
        break;
    }
    return m_notice ? std::max(Light::Amber, m_sources.worst()) : m_sources.worst();
}

QString InputHealth::remarks() const
{
    QStringList sentences;
    if (m_notice) {
        sentences += QStringLiteral("%1. %2").arg(m_notice->headline, m_notice->text);
    }
    for (const UdpPortUser &user : m_ports.others()) {
        sentences += tr("%1 listens on UDP port %2 too.").arg(UdpPortUsers::describe(user)).arg(user.port);
    }
    sentences += m_sources.remarks();
    sentences.removeAll(QString());
    return sentences.join(' ');
}

void InputHealth::updateNotice()
{
    auto notice = silenceNotice();
    if (!notice && m_basis.expecting) {
        notice = m_sources.notice();
    }
    if (notice != std::exchange(m_notice, notice)) {
        Q_EMIT changed();
    }
}

// With the day when it is another than that of the picture.
QString InputHealth::timeText(const QDateTime &time) const
{
    return time.toString(time.date() == m_now.date() ? "HH:mm:ss" : "yyyy-MM-dd HH:mm:ss");
}

std::optional<HealthNotice> InputHealth::silenceNotice() const
{
    if (m_silence.level() == Level::Heard) {
        return std::nullopt;
    }
    const Urgency urgency = m_silence.level() == Level::Silent ? Urgency::Alarm : Urgency::Caution;
    return HealthNotice{urgency, tr("NO DATA since %1").arg(timeText(m_silence.since())), silenceText()};
}

QString InputHealth::silenceText() const
{
    if (m_silence.recorded()) {
        return tr("There is a gap in %1: the picture is old.").arg(m_input);
    }
    QStringList sentences{m_silence.everHeard() ? tr("Nothing arrives on %1 any more: the picture is old.").arg(m_input)
                                                : tr("Nothing has arrived on %1 yet.").arg(m_input)};
    for (const UdpPortUser &user : m_ports.others()) {
        sentences += tr("%1 listens there too, and takes what is sent.").arg(UdpPortUsers::describe(user));
    }
    if (m_ports.others().isEmpty()) {
        sentences += m_silence.everHeard() ? tr("Check the sender and the line.")
                                           : tr("Check the sender, and the input in Settings (F10).");
    }
    return sentences.join(' ');
}

QString InputHealth::netsUnheard() const
{
    const bool silent = m_silence.level() != Level::Heard;
    if ((!m_nets.unheard() && !silent) || !m_nets.lastHeard().isValid()) {
        return {};
    }
    return tr("The safety nets are no longer heard, since %1: the indicators show what they said then.")
        .arg(timeText(m_nets.lastHeard()));
}

void InputHealth::logSilence(Level before, qint64 silentMs)
{
    const QString since = timeText(m_silence.since());
    switch (m_silence.level()) {
    case Level::Overdue:
        Q_EMIT logMessage(LogLevel::Warning, tr("No data from %1 since %2.").arg(m_input, since));
        return;
    case Level::Silent:
        Q_EMIT logMessage(LogLevel::Critical, tr("NO DATA since %1 from %2: the picture is old.").arg(since, m_input));
        return;
    case Level::Heard:
        if (before != Level::Heard) {
            const double seconds = static_cast<double>(silentMs) / 1000.0;
            Q_EMIT logMessage(
                LogLevel::Info, tr("Data again from %1, after %2 s without any.").arg(m_input).arg(seconds, 0, 'f', 0));
        }
        return;
    }
}

void InputHealth::logUnheardEnds(const DisplaySnapshot &snapshot)
{
    QSet<unsigned int> ended;
    for (const AlertSnapshot &alert : snapshot.alerts) {
        if (!alert.endedUnheard) {
            continue;
        }
        ended.insert(alert.id);
        if (!m_unheardEnds.contains(alert.id)) {
            const QString tracks =
                alert.track2Applicable ? tr("%1 and %2").arg(alert.track1.text, alert.track2.text) : alert.track1.text;
            Q_EMIT logMessage(LogLevel::Warning,
                tr("The %1 of %2 has ended only because nothing is heard of the safety nets any more.")
                    .arg(Alert::typeString(alert.type), tracks));
        }
    }
    m_unheardEnds = ended;
}

void InputHealth::logPortUsers()
{
    for (const UdpPortUser &user : m_ports.others()) {
        Q_EMIT logMessage(LogLevel::Warning,
            tr("%1 listens on UDP port %2 too: of the two, one alone gets each datagram.")
                .arg(UdpPortUsers::describe(user))
                .arg(user.port));
    }
}
