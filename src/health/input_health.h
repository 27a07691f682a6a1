#pragma once

#include "app/log_level.h"
#include "health/port_watch.h"
#include "silence/last_places.h"
#include "silence/net_watch.h"
#include "silence/silence_watch.h"
#include "widgets/urgency.h"

#include <QObject>
#include <QSet>
#include <QString>

class GeoLastPlaceMap;
struct DisplaySnapshot;

#include <optional>

// What is wrong with the input, as the whole window says it: on the scope, over the lists, beside the safety nets'
// indicators and in the log. GUI thread.
class InputHealth final : public QObject {
    Q_OBJECT

public:
    struct Notice {
        Urgency urgency = Urgency::Note;
        QString headline;
        QString text; // what it means, and what to do

        bool operator==(const Notice &other) const = default;
    };

    // The layer must outlive this object.
    explicit InputHealth(GeoLastPlaceMap *lastPlaces);

    // The input's name as in "UDP port 20000"; whether something should come in: it is open and not paused; and the
    // ports on which it takes datagrams that are no multicast.
    void setInput(const QString &name, bool expecting, const QSet<quint16> &unicastPorts);
    // Null: none.
    void setSensor(const SensorInfo *sensor) { m_silence.setSensor(sensor); }

    // The most urgent; nothing while all is well.
    const std::optional<Notice> &notice() const { return m_notice; }
    // Why the indicators may be out of date; empty while the safety nets are heard.
    QString netsUnheard() const;

public Q_SLOTS:
    // What the next snapshots show is of another input.
    void beginInput();
    // To be called with every snapshot.
    void look(const DisplaySnapshot &snapshot);

Q_SIGNALS:
    // The notice, or whether the safety nets are heard.
    void changed();
    void logMessage(LogLevel level, const QString &text);

private:
    void updateNotice();
    std::optional<Notice> silenceNotice() const;
    QString silenceText() const;
    QString timeText(const QDateTime &time) const;
    void logSilence(SilenceWatch::Level before, qint64 silentMs);
    void logUnheardEnds(const DisplaySnapshot &snapshot);
    void logPortUsers();

    GeoLastPlaceMap *m_lastPlaceMap;
    QString m_input;
    SilenceWatch m_silence;
    NetWatch m_nets;
    LastPlaces m_lastPlaces;
    PortWatch m_ports;
    std::optional<Notice> m_notice;
    QDateTime m_now; // of the newest picture
    QSet<unsigned int> m_unheardEnds; // alerts that were logged
};
