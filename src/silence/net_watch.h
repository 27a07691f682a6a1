#pragma once

#include <QDateTime>
#include <QtGlobal>

struct DisplaySnapshot;

// Whether the safety nets whose state the indicators show are still heard. They tell how they are in intervals of their
// own, which no document fixes: three of the longest that was seen without a word make them unheard. A plain value.
class NetWatch {
public:
    static constexpr qint64 ShortestMs = 8000; // the time for which they may leave an active alert without a word
    static constexpr qint64 UnknownMs = 30000; // before two intervals have been seen

    // What the next snapshots show is of another input.
    void beginInput() { *this = {}; }
    // To be called with every snapshot; true when unheard() has changed.
    bool look(const DisplaySnapshot &snapshot);

    // A net is shown as running, and nothing comes from any.
    bool unheard() const { return m_unheard; }
    const QDateTime &lastHeard() const { return m_lastHeard; }

private:
    void takeInterval(qint64 ms);
    qint64 patienceMs() const;

    QDateTime m_lastHeard;
    int m_intervals = 0; // seen
    qint64 m_longestMs = 0;
    bool m_unheard = false;
};
