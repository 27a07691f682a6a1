#pragma once

#include "app/background_pass.h"

#include <QSemaphore>

#include <atomic>
#include <memory>
#include <vector>

// Keeps every worker of background passes busy, so that whatever is started meanwhile stays under way.
class BusyWorkers {
public:
    BusyWorkers()
    {
        for (int i = 0; i < Count; ++i) {
            m_passes.push_back(std::make_unique<BackgroundPass>());
            m_passes.back()->start(
                [gate = m_gate](const BackgroundPass::Token &) {
                    gate->started.release();
                    if (!gate->open.tryAcquire(1, PatienceMs)) {
                        gate->waitedFor = true;
                    }
                    return 0;
                },
                [](int) {});
        }
        m_gate->started.tryAcquire(Count, PatienceMs);
    }
    ~BusyWorkers() { letGo(); }
    Q_DISABLE_COPY_MOVE(BusyWorkers)

    void letGo() { m_gate->open.release(Count); }
    // Somebody stood still until the workers lost their patience.
    bool waitedFor() const { return m_gate->waitedFor; }

private:
    static constexpr int Count = 64; // as many as there are
    static constexpr int PatienceMs = 5000;

    struct Gate {
        QSemaphore started;
        QSemaphore open;
        std::atomic<bool> waitedFor = false;
    };

    std::shared_ptr<Gate> m_gate = std::make_shared<Gate>();
    std::vector<std::unique_ptr<BackgroundPass>> m_passes;
};
