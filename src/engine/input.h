#pragma once

#include "app/log_level.h"
#include "engine/message_router.h"
#include "engine/source_statistics.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

// Where messages come from: made for one opening and gone after it, together with the router that it feeds. On the
// engine's thread.
class Input : public QObject {
    Q_OBJECT

public:
    enum class Opening {
        Opened,
        Failed,
        GivenUp, // reading was cancelled; to be closed as if it were open
    };

    Input(std::unique_ptr<MessageRouter> router, QObject *parent) : QObject(parent), m_router(std::move(router)) { }

    virtual Opening open() = 0;

    // What it reads, for people: each of the endpoints by whose numbers the router is told where a message came by.
    virtual QStringList endpoints() const = 0;

    virtual InputBacklog backlog() const { return {}; }

    // What reads ends with it, at once. The object stays until whatever is on the way through its router is done.
    virtual void close() = 0;

    // Live inputs receive what is sent, whether or not anybody takes it.
    virtual bool isLive() const { return true; }

    // A paused live input is read and thrown away, a paused recording holds its position.
    virtual void setPaused(bool paused) { m_paused = paused; }
    bool isPaused() const { return m_paused; }

    // The clock of the pipeline is brought up to date where it is this input that moves it.
    virtual void updateClock() { }

    MessageRouter &router() { return *m_router; }
    // Not while a message is being routed.
    void setRouter(std::unique_ptr<MessageRouter> router) { m_router = std::move(router); }

    // Why it could not be opened, or why it ended; empty when nothing went wrong.
    QString faultReason() const { return m_faultReason; }

Q_SIGNALS:
    void message(LogLevel level, const QString &text);
    // Nothing more comes; it is to be closed.
    void ended();

protected:
    // Says what went wrong, and keeps it.
    void reportFault(const QString &reason)
    {
        m_faultReason = reason;
        Q_EMIT message(LogLevel::Warning, reason);
    }

    bool m_paused = false;

private:
    std::unique_ptr<MessageRouter> m_router;
    QString m_faultReason;
};
