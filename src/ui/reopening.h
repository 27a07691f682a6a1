#pragma once

#include "app/log_level.h"

#include <QObject>
#include <QTimer>

class InputSession;

// Opens the input of an unattended terminal again when it could not be opened or has ended by itself: after five
// seconds, then after twice as long each time, up to five minutes. Whoever stops the input ends this, too. GUI thread.
class Reopening final : public QObject {
    Q_OBJECT

public:
    // The session must outlive this object.
    explicit Reopening(InputSession *session, QObject *parent = nullptr);

    // From the next opening on; that is for whoever says so.
    void setWanted(bool wanted) { m_wanted = wanted; }

Q_SIGNALS:
    void message(LogLevel level, const QString &text);
    // It is to be opened now.
    void due();

private:
    void wait();
    void end();

    InputSession *m_session;
    QTimer m_timer{this};
    bool m_wanted = false;
    int m_waitMs;
};
