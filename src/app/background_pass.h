#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

// Runs one piece of long work at a time on a worker thread and hands its result back. All members belong to the
// thread of this object, which needs an event loop. Nothing here ever waits for the worker: a pass that is given up
// runs on until it next looks at its token, and its result is dropped. The work therefore owns what it uses and never
// refers to the object that started it. After the event loop, the end of the application grants the workers a few
// seconds.
class BackgroundPass final : public QObject {
    Q_OBJECT

    struct State;

public:
    // The worker's end of a pass. Copies are the same pass.
    class Token {
    public:
        bool cancelled() const;
        // Tells how far the work has come; false: give up. Zero of a total that is not known.
        bool report(qint64 done, qint64 total) const;

    private:
        friend class BackgroundPass;
        explicit Token(std::shared_ptr<State> state) : m_state(std::move(state)) { }

        std::shared_ptr<State> m_state;
    };

    explicit BackgroundPass(QObject *parent = nullptr);
    ~BackgroundPass() override; // cancels

    // Gives up the pass under way. work(const Token &) runs on a worker and returns a value, which deliver(value) gets
    // on the thread of this object, unless the pass was cancelled before. deliver may start the next pass, and it may
    // delete this object. What the two own may be destroyed on either thread.
    template <typename Work, typename Deliver>
    void start(Work work, Deliver deliver)
    {
        run([work = std::move(work), deliver = std::move(deliver)](const Token &token) -> Delivery {
            using Result = std::invoke_result_t<const Work &, const Token &>;
            const auto result = std::make_shared<Result>(work(token));
            return [result, deliver] { deliver(std::move(*result)); };
        });
    }

    // No progress and no result come any more, not even those that are already on their way.
    void cancel();
    bool running() const { return m_state != nullptr; } // until the result is delivered

Q_SIGNALS:
    // 0 to 100, each value once, all of them before the result.
    void progressed(int percent);

private:
    using Delivery = std::function<void()>;

    void run(std::function<Delivery(const Token &)> work);

    std::shared_ptr<State> m_state; // null while nothing is under way
};
