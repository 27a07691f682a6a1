#pragma once

#include "app/log_level.h"
#include "health/health_notice.h"
#include "health/source_health.h"

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

// How the sources of the input do, one by one, and what is to be said of them. A plain value; goes by the engine's
// statistics. That all of the input is silent is SilenceWatch's to say.
class SourceWatch {
    Q_DECLARE_TR_FUNCTIONS(SourceWatch)

public:
    struct Line {
        LogLevel level;
        QString text;
    };

    static constexpr double LateEnds = 2.5; // seconds; what has been late is so until its delay is less
    static constexpr qint64 LossShownMs = 30000; // after the last one

    // What the next statistics show is of another input.
    void beginInput() { *this = {}; }
    // Of the basis only what concerns no single source counts. The lines that are to be logged.
    QList<Line> take(const InputStatistics &input, const JudgementBasis &basis);

    // In the order of their names.
    const QList<SourceHealth> &sources() const { return m_sources; }
    SourceJudgement::Light worst() const;
    // The most urgent thing to be said; nothing while all is well.
    std::optional<HealthNotice> notice() const;
    // Of the input as a whole, a sentence each; empty where there is nothing to say.
    QString remarks() const;
    // Why nothing of what arrives is seen; empty where no source tells.
    QString explanation() const;
    // Seconds a revolution, of the quickest antenna that was measured; 0: none was.
    double measuredPeriod() const;

private:
    void judge(const JudgementBasis &basis);
    void noteLosses();
    void noteSilence(QList<Line> &lines);
    void noteLateness(QList<Line> &lines);
    std::optional<HealthNotice> silenceNotice() const;
    std::optional<HealthNotice> lateNotice() const;
    std::optional<HealthNotice> lossNotice() const;

    InputStatistics m_input; // its sources are in m_sources
    QList<SourceHealth> m_sources;
    bool m_live = true;
    QSet<QString> m_silent; // names of those that are, and brought targets
    QHash<QString, double> m_late; // seconds, by name
    quint64 m_drops = 0;
    qint64 m_lossSinceMs = 0; // when the first of them were seen
    qint64 m_lossMs = 0; // and the last
};
