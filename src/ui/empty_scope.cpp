#include "ui/empty_scope.h"

#include "engine/display_snapshot.h"

#include <algorithm>

namespace {

constexpr qint64 SilenceMs = 10000; // nearly every radar turns once in this time

std::optional<qint64> newestPlot(const PlotHistory &plots)
{
    return plots.batches.isEmpty() ? std::nullopt : std::optional(plots.batches.constLast()->plots.back().timeMs);
}

} // namespace

QString EmptyScope::notice(const QString &input) const
{
    switch (m_reason) {
    case Reason::NothingArrives:
        return tr("Nothing arrives on %1: check the sender, and the input in Settings (F10).").arg(input);
    case Reason::NoTargets:
        return tr("There are no targets in what %1 brings; if there should be, check sensor and processor in Settings "
                  "(F10).")
            .arg(input);
    case Reason::None:
        break;
    }
    return {};
}

void EmptyScope::beginInput()
{
    m_endedRun = m_run;
    m_reason = Reason::None;
    Q_EMIT changed();
}

void EmptyScope::look(const DisplaySnapshot &snapshot)
{
    if (snapshot.plots.run == m_endedRun) {
        return;
    }
    const qint64 nowMs = snapshot.time.toMSecsSinceEpoch();
    if (snapshot.plots.run != m_run) {
        beginRun(snapshot);
    }
    if (snapshot.messages != m_messages) {
        m_messages = snapshot.messages;
        m_lastMessageMs = nowMs;
        m_firstMessageMs = m_firstMessageMs.value_or(nowMs);
    }
    if (!snapshot.tracks.isEmpty() || !snapshot.alerts.isEmpty()) {
        m_lastTargetMs = nowMs;
    } else if (const auto plot = newestPlot(snapshot.plots)) {
        m_lastTargetMs = std::max(*plot, m_lastTargetMs.value_or(*plot));
    }
    const Reason found = reason(nowMs, snapshot.recordedTime);
    if (found != m_reason) {
        m_reason = found;
        Q_EMIT changed();
    }
}

void EmptyScope::beginRun(const DisplaySnapshot &snapshot)
{
    m_run = snapshot.plots.run;
    m_messages = snapshot.messages;
    m_lastMessageMs = snapshot.time.toMSecsSinceEpoch();
    m_firstMessageMs.reset();
    m_lastTargetMs.reset();
    m_radarPicture = false;
}

EmptyScope::Reason EmptyScope::reason(qint64 nowMs, bool recorded) const
{
    const auto longSince = [nowMs](qint64 thenMs) { return nowMs - thenMs >= SilenceMs; };
    if (m_lastTargetMs && !longSince(*m_lastTargetMs)) {
        return Reason::None;
    }
    // The gaps of a recording are its own.
    if (!recorded && longSince(m_lastMessageMs)) {
        return Reason::NothingArrives;
    }
    const bool heard = m_firstMessageMs && longSince(*m_firstMessageMs);
    return heard && !m_radarPicture ? Reason::NoTargets : Reason::None;
}
