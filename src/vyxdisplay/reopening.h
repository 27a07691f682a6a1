#pragma once

#include "app/log_level.h"

#include <QObject>
#include <QTimer>

class InputSession;

// Opens the input of an unattended terminal again when it could not be opened or has been closed: after five
// seconds, then after twice as long each time, up to five minutes. Who stops it says so here. GUI thread.
class Reopening final : public QObject {
    Q_OBJECT

public:
    // The session must outlive this object.
    explicit Reopening(const InputSession *session, QObject *parent = nullptr);

    // The input is wanted, and opened by whoever says so.
    void begin();
    // Nobody wants the input any more. True when it would have been opened again.
    bool end();

Q_SIGNALS:
    void message(LogLevel level, const QString &text);
    // It is to be opened now.
    void due();

private:
    void wait();

    QTimer m_timer{this};
    bool m_wanted = false;
    int m_waitMs;
};
