#pragma once

#include <QDateTime>
#include <QSharedPointer>
#include <QString>
#include <QWeakPointer>

class Track;

// One safety-net alert as a ground server reports it. Belongs to the thread of its AlertManager.
class Alert {
public:
    // Any other value is kept and shown as unknown.
    enum Type : int {
        None = 0,
        MSAW = 1, // minimum safe altitude warning
        APW = 2, // area proximity warning
        STCA = 3, // short-term conflict alert: two tracks
    };

    enum State : int { Initial = 0, Active = 1, End = 2, Terminated = 3 };

    // The id is the server's; now is UTC and becomes last update and start time.
    explicit Alert(unsigned int id, const QDateTime &now = QDateTime::currentDateTimeUtc());

    unsigned int id() const { return m_id; }

    Type type() const { return m_type; }
    void setType(Type type) { m_type = type; }
    static QString typeString(Type type);
    QString typeString() const { return typeString(m_type); }

    State state() const { return m_state; }
    static QString stateString(State state); // "---" for a value that is no state
    QString stateString() const { return stateString(m_state); }
    bool initial() const { return m_state == Initial; }
    bool active() const { return m_state == Active; }
    bool end() const { return m_state == End; }
    bool terminated() const { return m_state == Terminated; }
    // Asking an active alert for Active refreshes it. An alert that has ended or terminated cannot end again; values
    // that are no state are ignored.
    void setState(State state, const QDateTime &now = QDateTime::currentDateTimeUtc());
    // It ended because nothing was heard of the safety nets any more, not by their word; until it is active again.
    bool endedUnheard() const { return m_endedUnheard; }
    void setEndedUnheard(bool unheard) { m_endedUnheard = unheard; }
    // Type and state back to their start, last update and start time invalid; the rest stays.
    void reset();

    // When the server last refreshed the alert; invalid in the initial state.
    const QDateTime &lastUpdate() const { return m_lastUpdate; }
    void setLastUpdate(const QDateTime &time) { m_lastUpdate = time; }
    const QDateTime &startTime() const { return m_startTime; } // when it last became active
    const QDateTime &endTime() const { return m_endTime; } // when it last ended; stays when it becomes active again

    // The tracks by the server's number and Mode A code (binary value), and the local track if one matches.
    unsigned int track1OtherTrackNumber() const { return m_track1.otherTrackNumber; }
    void setTrack1OtherTrackNumber(unsigned int number) { m_track1.otherTrackNumber = number; }
    unsigned int track1ModeACode() const { return m_track1.modeACode; }
    void setTrack1ModeACode(unsigned int code) { m_track1.modeACode = code; }
    bool track1ModeACodeValid() const { return m_track1.modeACodeValid; }
    void setTrack1ModeACodeValid(bool valid) { m_track1.modeACodeValid = valid; }
    QSharedPointer<Track> track1() const { return m_track1.track.toStrongRef(); } // null when gone
    void setTrack1(const QSharedPointer<Track> &track) { m_track1.track = track; }

    unsigned int track2OtherTrackNumber() const { return m_track2.otherTrackNumber; }
    void setTrack2OtherTrackNumber(unsigned int number) { m_track2.otherTrackNumber = number; }
    unsigned int track2ModeACode() const { return m_track2.modeACode; }
    void setTrack2ModeACode(unsigned int code) { m_track2.modeACode = code; }
    bool track2ModeACodeValid() const { return m_track2.modeACodeValid; }
    void setTrack2ModeACodeValid(bool valid) { m_track2.modeACodeValid = valid; }
    QSharedPointer<Track> track2() const { return m_track2.track.toStrongRef(); }
    void setTrack2(const QSharedPointer<Track> &track) { m_track2.track = track; }
    bool track2Applicable() const { return m_type == STCA; }

    // The area or object concerned.
    QString objectName() const { return m_objectName; }
    void setObjectName(const QString &name) { m_objectName = name; }
    bool objectApplicable() const { return m_type == APW; }

private:
    struct Side {
        unsigned int otherTrackNumber = 0;
        unsigned int modeACode = 0;
        bool modeACodeValid = false;
        QWeakPointer<Track> track;
    };

    void stampEnd(const QDateTime &now);

    unsigned int m_id;
    Type m_type = None;
    State m_state = Initial;
    bool m_endedUnheard = false;
    Side m_track1;
    Side m_track2;
    QString m_objectName;
    QDateTime m_lastUpdate;
    QDateTime m_startTime;
    QDateTime m_endTime;
};
