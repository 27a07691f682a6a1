#pragma once

#include "tracking/alert.h"
#include "tracking/alert_snapshot.h"
#include "tracking/clock.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QSharedPointer>
#include <QTimer>

// All alerts by the server's identifier: ageing once a second and the copy for the display. Everything happens on the
// thread that it lives on.
class AlertManager final : public QObject {
    Q_OBJECT

public:
    explicit AlertManager(QObject *parent = nullptr);

    // The stored alert, untouched, or a new one in the initial state.
    QSharedPointer<Alert> createAlert(unsigned int id);
    bool hasAlert(unsigned int id) const { return m_alerts.contains(id); }
    // Null when there is none.
    QSharedPointer<Alert> findAlertById(unsigned int id) const { return m_alerts.value(id); }
    // Also takes it from the tracks that it links.
    void removeAlert(const QSharedPointer<Alert> &alert);
    int alertCount() const { return static_cast<int>(m_alerts.size()); }
    // In no particular order; valid until the next call.
    const QList<QSharedPointer<Alert>> &allAlerts();

    // Milliseconds: since its last refresh after which an active alert ends, and since its end until it is removed.
    void setAlertLifeSpan(unsigned int activeMs, unsigned int endMs);
    // Forgets all alerts; tracks are not told, they go at the same time.
    void reset();

    QList<AlertSnapshot> snapshotAlerts() const;

    // The safety nets have sent something, whatever it is.
    void noteHeard() { m_lastHeard = now(); }
    // When they last did, UTC; invalid: not since the last reset().
    const QDateTime &lastHeard() const { return m_lastHeard; }

    // The UTC time by which alerts age.
    QDateTime now() const { return m_clock->now(); }
    void setClock(SharedClock clock) { m_clock = std::move(clock); }

public Q_SLOTS:
    // Called by a timer every second, but not in recorded time: whoever drives that calls this each time that a second
    // of it has passed. Ends alerts that are no longer refreshed and removes those that ended long enough ago.
    void checkLife();

private:
    QMap<quint32, QSharedPointer<Alert>> m_alerts; // by identifier
    QList<QSharedPointer<Alert>> m_alertList;
    QTimer m_lifeTimer;
    QDateTime m_lastHeard;
    unsigned int m_activeLifeSpan = 8000;
    unsigned int m_endLifeSpan = 8000;
    SharedClock m_clock = std::make_shared<Clock>(); // the system's until another is set
};

// How an alert calls one of its tracks: by call sign, Mode A code ("A7500") or track number ("#0042") of the local
// track; by what the server said, in brackets ("[A7500]", "[#0042]"), when no local track is held.
QString alertTrackText(
    const QSharedPointer<Track> &track, bool modeAValid, unsigned int modeA, unsigned int otherTrackNumber);
