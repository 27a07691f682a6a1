#pragma once

#include "app/log_level.h"
#include "health/health_notice.h"
#include "health/port_watch.h"
#include "health/source_watch.h"
#include "silence/last_places.h"
#include "silence/net_watch.h"
#include "silence/silence_watch.h"

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
    // The layer must outlive this object.
    explicit InputHealth(GeoLastPlaceMap *lastPlaces);

    // The input's name as in "UDP port 20000"; whether something should come in: it is open and not paused; and the
    // ports on which it takes datagrams that are no multicast.
    void setInput(const QString &name, bool expecting, const QSet<quint16> &unicastPorts);
    // Null: none.
    void setSensor(const SensorInfo *sensor);

    // The most urgent; nothing while all is well.
    const std::optional<HealthNotice> &notice() const { return m_notice; }
    // Why the indicators may be out of date; empty while the safety nets are heard.
    QString netsUnheard() const;

    // In the order of their names, as of the last second.
    const QList<SourceHealth> &sources() const { return m_sources.sources(); }
    // Of all of them; red also while nothing arrives at all.
    SourceJudgement::Light light() const;
    // Of the input as a whole, a sentence each; may be empty.
    QString remarks() const;
    // Why nothing of what arrives is seen; empty where no source tells.
    QString explanation() const { return m_sources.explanation(); }

public Q_SLOTS:
    // What the next snapshots show is of another input.
    void beginInput();
    // To be called with every snapshot.
    void look(const DisplaySnapshot &snapshot);
    void setPlotsShown(bool shown) { m_basis.plotsShown = shown; }
    // To be called with all statistics of the engine.
    void take(const InputStatistics &statistics);

Q_SIGNALS:
    // The notice, the explanation, or whether the safety nets are heard.
    void changed();
    // The sources, their light, or the remarks.
    void sourcesChanged();
    void logMessage(LogLevel level, const QString &text);

private:
    void updateNotice();
    std::optional<HealthNotice> silenceNotice() const;
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
    SourceWatch m_sources;
    JudgementBasis m_basis; // of all sources
    std::optional<HealthNotice> m_notice;
    QString m_explanation; // as last told
    QDateTime m_now; // of the newest picture
    QSet<unsigned int> m_unheardEnds; // alerts that were logged
};
