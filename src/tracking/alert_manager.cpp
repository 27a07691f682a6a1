#include "tracking/alert_manager.h"

#include "tracking/track.h"

namespace {

AlertSnapshot::TrackSide side(
    const QSharedPointer<Track> &track, bool modeAValid, unsigned int modeA, unsigned int otherTrackNumber)
{
    return {track ? track->incarnationId() : 0, otherTrackNumber, modeA, modeAValid,
        alertTrackText(track, modeAValid, modeA, otherTrackNumber)};
}

// What stands in the second track's place in an alert of one track.
QString objectText(const Alert &alert)
{
    if (!alert.objectApplicable()) {
        return QStringLiteral("---");
    }
    return alert.objectName().isEmpty() ? QStringLiteral("N/A") : alert.objectName();
}

AlertSnapshot snapshotOf(const Alert &alert)
{
    AlertSnapshot snapshot;
    snapshot.id = alert.id();
    snapshot.type = alert.type();
    snapshot.state = alert.state();
    snapshot.endedUnheard = alert.endedUnheard();
    snapshot.stateString = alert.stateString();
    snapshot.objectName = alert.objectName();
    snapshot.lastUpdate = alert.lastUpdate();
    snapshot.startTime = alert.startTime();
    snapshot.endTime = alert.endTime();
    snapshot.track1 =
        side(alert.track1(), alert.track1ModeACodeValid(), alert.track1ModeACode(), alert.track1OtherTrackNumber());
    snapshot.track2Applicable = alert.track2Applicable();
    if (alert.track2Applicable()) {
        snapshot.track2 =
            side(alert.track2(), alert.track2ModeACodeValid(), alert.track2ModeACode(), alert.track2OtherTrackNumber());
    } else {
        snapshot.track2.text = objectText(alert);
    }
    return snapshot;
}

} // namespace

AlertManager::AlertManager(QObject *parent) : QObject(parent), m_lifeTimer(this)
{
    connect(&m_lifeTimer, &QTimer::timeout, this, [this] {
        if (!m_clock->isRecorded()) {
            checkLife();
        }
    });
    m_lifeTimer.start(1000);
}

QSharedPointer<Alert> AlertManager::createAlert(unsigned int id)
{
    auto &alert = m_alerts[id];
    if (!alert) {
        alert = QSharedPointer<Alert>::create(id, now());
    }
    return alert;
}

void AlertManager::removeAlert(const QSharedPointer<Alert> &alert)
{
    if (!alert) {
        return;
    }
    m_alerts.remove(alert->id());
    if (const auto track = alert->track1()) {
        track->removeAlert(alert);
    }
    if (const auto track = alert->track2()) {
        track->removeAlert(alert);
    }
}

const QList<QSharedPointer<Alert>> &AlertManager::allAlerts()
{
    m_alertList = m_alerts.values();
    return m_alertList;
}

void AlertManager::setAlertLifeSpan(unsigned int activeMs, unsigned int endMs)
{
    m_activeLifeSpan = activeMs;
    m_endLifeSpan = endMs;
}

void AlertManager::reset()
{
    m_alertList.clear();
    m_alerts.clear();
    m_lastHeard = {};
}

void AlertManager::checkLife()
{
    const auto time = now();
    const auto alerts = m_alerts.values(); // a copy: alerts are removed on the way
    for (const auto &alert : alerts) {
        if (alert->active() && alert->lastUpdate().msecsTo(time) >= m_activeLifeSpan) {
            alert->setEndedUnheard(!m_lastHeard.isValid() || m_lastHeard <= alert->lastUpdate());
            alert->setState(Alert::End, time);
        } else if (alert->end() && alert->endTime().msecsTo(time) >= m_endLifeSpan) {
            alert->setState(Alert::Terminated, time);
        }
        if (alert->terminated()) {
            removeAlert(alert);
        }
    }
}

QList<AlertSnapshot> AlertManager::snapshotAlerts() const
{
    QList<AlertSnapshot> snapshots;
    snapshots.reserve(m_alerts.size());
    for (const auto &alert : m_alerts) {
        snapshots.append(snapshotOf(*alert));
    }
    return snapshots;
}

QString alertTrackText(
    const QSharedPointer<Track> &track, bool modeAValid, unsigned int modeA, unsigned int otherTrackNumber)
{
    const QLatin1Char zero('0');
    if (!track && modeAValid) {
        return QStringLiteral("[A%1]").arg(modeA, 4, 8, zero);
    }
    if (!track) {
        return QStringLiteral("[#%1]").arg(otherTrackNumber, 4, 10, zero);
    }
    if (track->modeSCallsignValid()) {
        return track->modeSCallsign();
    }
    if (track->modeACodeValid()) {
        return QStringLiteral("A%1").arg(track->modeACode(), 4, 8, zero);
    }
    return QStringLiteral("#%1").arg(track->trackNumber(), 4, 10, zero);
}
