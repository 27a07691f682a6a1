#include "app/background_pass.h"

#include <QCoreApplication>
#include <QMutex>
#include <QMutexLocker>
#include <QThreadPool>

#include <algorithm>
#include <atomic>

namespace {

// A worker that hangs, on a network drive that has gone, must not keep the others from their turn.
constexpr int MaxWorkers = 64;
constexpr int LastWaitMs = 3000;

// Never destroyed: its destructor would wait for a worker that hangs. The wait at the end of the application has a
// limit, and keeps the others from running while what they use is taken down.
QThreadPool &workers()
{
    static QThreadPool *const pool = [] {
        auto *made = new QThreadPool;
        made->setMaxThreadCount(MaxWorkers);
        made->setThreadPriority(QThread::LowPriority);
        qAddPostRoutine([] { workers().waitForDone(LastWaitMs); });
        return made;
    }();
    return *pool;
}

} // namespace

// What both threads see of one pass.
struct BackgroundPass::State : std::enable_shared_from_this<State> {
    explicit State(BackgroundPass *owner) : m_owner(owner) { }

    bool cancelled() const { return m_cancelled; }

    void cancel()
    {
        const QMutexLocker lock(&m_posting); // the owner may be gone as soon as this returns
        m_cancelled = true;
    }

    // Worker.
    void post(Delivery deliver)
    {
        const QMutexLocker lock(&m_posting);
        if (m_cancelled) {
            return;
        }
        const auto unlessCancelled = [self = shared_from_this(), deliver = std::move(deliver)] {
            if (!self->m_cancelled) {
                deliver();
            }
        };
        QMetaObject::invokeMethod(m_owner, unlessCancelled, Qt::QueuedConnection);
    }

    // Worker.
    void report(int percent)
    {
        if (std::exchange(m_percent, percent) != percent) {
            post([owner = m_owner, percent] { Q_EMIT owner->progressed(percent); });
        }
    }

    // Worker.
    void finish(Delivery deliver)
    {
        post([owner = m_owner, deliver = std::move(deliver)] {
            owner->m_state.reset();
            deliver();
        });
    }

private:
    BackgroundPass *const m_owner; // alive until cancelled
    QMutex m_posting;
    std::atomic<bool> m_cancelled = false;
    int m_percent = -1; // worker
};

bool BackgroundPass::Token::cancelled() const
{
    return m_state->cancelled();
}

bool BackgroundPass::Token::report(qint64 done, qint64 total) const
{
    const double part = total > 0 ? static_cast<double>(done) / static_cast<double>(total) : 0.0;
    m_state->report(static_cast<int>(100.0 * std::clamp(part, 0.0, 1.0)));
    return !cancelled();
}

BackgroundPass::BackgroundPass(QObject *parent) : QObject(parent) { }

BackgroundPass::~BackgroundPass()
{
    cancel();
}

void BackgroundPass::cancel()
{
    if (const std::shared_ptr<State> state = std::exchange(m_state, nullptr)) {
        state->cancel();
    }
}

void BackgroundPass::run(std::function<Delivery(const Token &)> work)
{
    cancel();
    m_state = std::make_shared<State>(this);
    workers().start([state = m_state, work = std::move(work)] { state->finish(work(Token(state))); });
}
