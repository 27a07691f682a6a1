#pragma once

#include <QObject>
#include <QString>

#include <optional>

struct DisplaySnapshot;

// Why the scope of an open input is empty: whether nothing arrives, or nothing that would be seen. Goes by the time of
// the pictures. GUI thread.
class EmptyScope final : public QObject {
    Q_OBJECT

public:
    // One sentence, empty while there is something to see or it is too early to say. The input as in "UDP port 20000".
    QString notice(const QString &input) const;
    // Data arrive, but nothing that would be seen.
    bool nothingIsSeen() const { return m_reason == Reason::NoTargets; }

public Q_SLOTS:
    // What the next snapshots show is of another input.
    void beginInput();
    // To be called with every snapshot.
    void look(const DisplaySnapshot &snapshot);
    // Weather or radar video is there to be seen.
    void noteRadarPicture() { m_radarPicture = true; }

Q_SIGNALS:
    // The notice.
    void changed();

private:
    enum class Reason { None, NothingArrives, NoTargets };

    void beginRun(const DisplaySnapshot &snapshot);
    Reason reason(qint64 nowMs, bool recorded) const;

    Reason m_reason = Reason::None;
    bool m_radarPicture = false; // in this run, as is what follows
    quint64 m_run = 0;
    quint64 m_endedRun = 0; // of an input before
    quint64 m_messages = 0;
    qint64 m_lastMessageMs = 0; // when the run began, before the first one
    std::optional<qint64> m_firstMessageMs;
    std::optional<qint64> m_lastTargetMs;
};
