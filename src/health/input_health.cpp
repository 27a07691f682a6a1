#include "health/input_health.h"

#include "engine/display_snapshot.h"
#include "silence/geo_last_place_map.h"

#include <QStringList>

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
    m_ports.setPorts(unicastPorts);
    updateNotice();
}

void InputHealth::beginInput()
{
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

void InputHealth::updateNotice()
{
    const auto notice = silenceNotice();
    if (notice != std::exchange(m_notice, notice)) {
        Q_EMIT changed();
    }
}

// With the day when it is another than that of the picture.
QString InputHealth::timeText(const QDateTime &time) const
{
    return time.toString(time.date() == m_now.date() ? "HH:mm:ss" : "yyyy-MM-dd HH:mm:ss");
}

std::optional<InputHealth::Notice> InputHealth::silenceNotice() const
{
    if (m_silence.level() == Level::Heard) {
        return std::nullopt;
    }
    const Urgency urgency = m_silence.level() == Level::Silent ? Urgency::Alarm : Urgency::Caution;
    return Notice{urgency, tr("NO DATA since %1").arg(timeText(m_silence.since())), silenceText()};
}

QString InputHealth::silenceText() const
{
    if (m_silence.recorded()) {
        return tr("There is a gap in %1: the picture is old.").arg(m_input);
    }
    QStringList sentences;
    if (m_silence.everHeard()) {
        sentences +=
            tr("Nothing arrives on %1 any more: the picture is old. Check the sender and the line.").arg(m_input);
    } else {
        sentences +=
            tr("Nothing has arrived on %1 yet: check the sender, and the input in Settings (F10).").arg(m_input);
    }
    for (const UdpPortUser &user : m_ports.others()) {
        sentences += tr("%1 listens there too, and takes what is sent.").arg(UdpPortUsers::describe(user));
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
