#include "health/source_watch.h"

#include <QDateTime>
#include <QStringList>

#include <algorithm>

using Light = SourceJudgement::Light;
using Trouble = SourceJudgement::Trouble;

namespace {

QString clockTime(qint64 ms)
{
    return QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC).toString(QStringLiteral("HH:mm:ss"));
}

// What belongs to now: the time of a weather picture is that of its beginning.
bool isMissedWhenLate(const SourceStatistics &source)
{
    return SourceJudge::bringsTargets(source) && SourceJudge::isSteady(source);
}

} // namespace

QList<SourceWatch::Line> SourceWatch::take(const InputStatistics &input, const JudgementBasis &basis)
{
    m_input = input;
    m_live = basis.live;
    judge(basis);
    noteLosses();
    QList<Line> lines;
    if (basis.expecting && !basis.inputSilent) { // else no single source is to blame
        noteSilence(lines);
        noteLateness(lines);
    }
    return lines;
}

void SourceWatch::judge(const JudgementBasis &basis)
{
    m_sources.clear();
    for (const SourceStatistics &source : std::as_const(m_input.sources)) {
        m_sources.append({source, SourceJudge::judge(source, SourceJudge::basisFor(source, m_input, basis))});
    }
    std::sort(m_sources.begin(), m_sources.end(),
        [](const SourceHealth &a, const SourceHealth &b) { return a.identity() < b.identity(); });
}

void SourceWatch::noteLosses()
{
    if (m_input.backlog.kernelDrops > m_drops) {
        m_lossSinceMs = m_drops == 0 ? m_input.timeMs : m_lossSinceMs;
        m_lossMs = m_input.timeMs;
        m_drops = m_input.backlog.kernelDrops;
    }
}

void SourceWatch::noteSilence(QList<Line> &lines)
{
    for (const SourceHealth &source : std::as_const(m_sources)) {
        const QString name = SourceJudge::nameOf(source.statistics);
        const bool silent = source.judgement.light == Light::Red && SourceJudge::bringsTargets(source.statistics);
        if (silent && !m_silent.contains(name)) {
            m_silent.insert(name);
            lines.append({LogLevel::Warning, tr("%1 is %2.").arg(name, source.judgement.state)});
        } else if (source.judgement.light != Light::Red && m_silent.remove(name)) {
            lines.append({LogLevel::Info, tr("%1 is heard again.").arg(name)});
        }
    }
}

void SourceWatch::noteLateness(QList<Line> &lines)
{
    for (const SourceHealth &source : std::as_const(m_sources)) {
        const QString name = SourceJudge::nameOf(source.statistics);
        const DelayStatistics &delay = source.statistics.delay;
        const bool wasLate = m_late.contains(name);
        const double limit = wasLate ? LateEnds : SourceJudge::LateSeconds;
        if (delay.samples == 0 || delay.median <= limit) {
            m_late.remove(name);
            continue;
        }
        m_late[name] = delay.median;
        if (!wasLate && isMissedWhenLate(source.statistics)) {
            lines.append({LogLevel::Warning,
                tr("The reports of %1 arrive %2 after their time of day.")
                    .arg(name, SourceJudge::delayText(delay.median))});
        }
    }
}

Light SourceWatch::worst() const
{
    Light worst = Light::Off;
    for (const SourceHealth &source : m_sources) {
        worst = std::max(worst, source.judgement.light);
    }
    return worst;
}

std::optional<HealthNotice> SourceWatch::notice() const
{
    for (const auto &notice : {silenceNotice(), lateNotice(), lossNotice()}) {
        if (notice) {
            return notice;
        }
    }
    return std::nullopt;
}

// Alarming where nothing that brings targets is heard any more, though something else is.
std::optional<HealthNotice> SourceWatch::silenceNotice() const
{
    QStringList names;
    qint64 lastMs = 0;
    bool othersHeard = false;
    for (const SourceHealth &source : m_sources) {
        if (!SourceJudge::bringsTargets(source.statistics)) {
            continue;
        }
        if (source.judgement.light == Light::Red) {
            names += SourceJudge::nameOf(source.statistics);
            lastMs = std::max(lastMs, source.statistics.lastArrivalMs);
        } else {
            othersHeard = true;
        }
    }
    if (names.isEmpty()) {
        return std::nullopt;
    }
    const QString sources = names.join(QStringLiteral(", "));
    if (othersHeard) {
        return HealthNotice{Urgency::Caution, tr("NO DATA from %1 since %2").arg(sources, clockTime(lastMs)),
            tr("Other sources go on. Check this one, and the line to it.")};
    }
    return HealthNotice{Urgency::Alarm, tr("NO DATA since %1").arg(clockTime(lastMs)),
        tr("Nothing that is shown comes from %1 any more: the picture is old.").arg(sources)};
}

// A recording's delays are of another day.
std::optional<HealthNotice> SourceWatch::lateNotice() const
{
    double latest = 0.0;
    QString name;
    for (const SourceHealth &source : m_sources) {
        const double delay = m_late.value(SourceJudge::nameOf(source.statistics));
        if (isMissedWhenLate(source.statistics) && delay > latest) {
            latest = delay;
            name = SourceJudge::nameOf(source.statistics);
        }
    }
    if (!m_live || name.isEmpty()) {
        return std::nullopt;
    }
    return HealthNotice{Urgency::Caution, tr("DATA %1 LATE").arg(SourceJudge::delayText(latest)),
        tr("Reports of %1 arrive so long after their time of day: the picture is old, or the clocks differ.")
            .arg(name)};
}

std::optional<HealthNotice> SourceWatch::lossNotice() const
{
    if (m_drops == 0 || m_input.timeMs - m_lossMs >= LossShownMs) {
        return std::nullopt;
    }
    return HealthNotice{Urgency::Caution,
        tr("DATA LOST: %1 datagrams since %2").arg(m_drops).arg(clockTime(m_lossSinceMs)),
        tr("They found no room in the system's buffer: this computer cannot keep up with the input.")};
}

QString SourceWatch::remarks() const
{
    QStringList sentences;
    const auto loss = lossNotice();
    if (m_drops > 0 && (!loss || notice() != loss)) { // else it is said with it
        sentences += tr("%1 datagrams found no room in the system's buffer.").arg(m_drops);
    }
    if (m_input.undecodableMessages > 0) {
        sentences += tr("%1 of %2 messages could not be decoded at all: another format or processor than the one in "
                        "Settings?")
                         .arg(m_input.undecodableMessages)
                         .arg(m_input.messages);
    }
    if (m_input.trailedMessages > 0) {
        sentences +=
            tr("%1 messages have octets behind their last block: check sequences, or another envelope than the one in "
               "Settings.")
                .arg(m_input.trailedMessages);
    }
    if (m_input.otherSources > 0) {
        sentences += tr("%1 more sources are not listed.").arg(m_input.otherSources);
    }
    return sentences.join(' ');
}

QString SourceWatch::explanation() const
{
    const SourceHealth *largest = nullptr;
    for (const SourceHealth &source : m_sources) {
        const SourceJudgement &judgement = source.judgement;
        const bool unused = judgement.cure != SourceJudgement::Cure::None || judgement.trouble == Trouble::Unused;
        if (unused && !judgement.whyNotUsed.isEmpty()
            && (!largest || source.statistics.records > largest->statistics.records)) {
            largest = &source;
        }
    }
    if (largest) {
        return tr("%1: %2").arg(SourceJudge::nameOf(largest->statistics), largest->judgement.whyNotUsed);
    }
    return m_sources.isEmpty() ? remarks() : QString();
}

double SourceWatch::measuredPeriod() const
{
    double shortest = 0.0;
    for (const SourceHealth &source : m_sources) {
        const double period = source.statistics.antenna.period;
        shortest = period > 0.0 && (shortest == 0.0 || period < shortest) ? period : shortest;
    }
    return shortest;
}
