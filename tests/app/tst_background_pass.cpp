#include "app/background_pass.h"

#include "test_program.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>

namespace {

constexpr int PatienceMs = 5000;

// A worker that stands still until it is let go, and tells afterwards how that went.
struct Gate {
    QSemaphore started;
    QSemaphore open;
    QSemaphore left;
    std::atomic<bool> passed = false; // rather than out of patience
    std::atomic<bool> goOn = true; // as the token said behind the gate

    int pass(const BackgroundPass::Token &token, int result)
    {
        started.release();
        passed = open.tryAcquire(1, PatienceMs);
        goOn = token.report(50, 100);
        left.release();
        return result;
    }
    void letGo()
    {
        open.release();
        QVERIFY(left.tryAcquire(1, PatienceMs));
    }
};

// Everything that workers posted up to now has been delivered.
void deliverPosted()
{
    QTest::qWait(20);
}

} // namespace

class TestBackgroundPass : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void progressAndResultOnOwnersThread();
    void cancelledPassDeliversNothing();
    void cancelDropsWhatIsOnItsWay();
    void ownerMayDieFirst();
    void startGivesUpTheLastPass();
    void deliveryMayStartTheNextOrDelete();
};

void TestBackgroundPass::progressAndResultOnOwnersThread()
{
    BackgroundPass pass;
    QList<int> percents;
    connect(&pass, &BackgroundPass::progressed, this, [&](int percent) { percents.append(percent); });
    QThread *deliveredOn = nullptr;
    std::unique_ptr<QThread *> worker;
    const auto work = [](const BackgroundPass::Token &token) {
        for (const qint64 done : {0, 1, 2, 500, 509, 1000, 2000}) {
            token.report(done, 1000);
        }
        return std::make_unique<QThread *>(QThread::currentThread());
    };
    pass.start(work, [&](std::unique_ptr<QThread *> result) {
        worker = std::move(result);
        deliveredOn = QThread::currentThread();
    });
    QVERIFY(pass.running());
    QVERIFY(!worker); // never from within start()
    QTRY_VERIFY(worker);
    QVERIFY(!pass.running());
    QCOMPARE(deliveredOn, thread());
    QVERIFY(*worker != thread());
    QCOMPARE(percents, QList<int>({0, 50, 100}));
}

void TestBackgroundPass::cancelledPassDeliversNothing()
{
    const auto gate = std::make_shared<Gate>();
    BackgroundPass pass;
    const QSignalSpy progressed(&pass, &BackgroundPass::progressed);
    bool delivered = false;
    pass.start([gate](const auto &token) { return gate->pass(token, 1); }, [&](int) { delivered = true; });
    QVERIFY(gate->started.tryAcquire(1, PatienceMs));
    pass.cancel();
    QVERIFY(!pass.running());
    gate->letGo();
    QVERIFY(gate->passed); // cancel() did not wait for the worker
    QVERIFY(!gate->goOn);
    deliverPosted();
    QVERIFY(!delivered);
    QVERIFY(progressed.isEmpty());
}

void TestBackgroundPass::cancelDropsWhatIsOnItsWay()
{
    const auto gate = std::make_shared<Gate>();
    BackgroundPass pass;
    const QSignalSpy progressed(&pass, &BackgroundPass::progressed);
    bool delivered = false;
    pass.start([gate](const auto &token) { return gate->pass(token, 1); }, [&](int) { delivered = true; });
    gate->letGo(); // the progress is posted now
    QVERIFY(gate->goOn);
    pass.cancel();
    deliverPosted();
    QVERIFY(!delivered);
    QVERIFY(progressed.isEmpty());
}

void TestBackgroundPass::ownerMayDieFirst()
{
    const auto gate = std::make_shared<Gate>();
    bool delivered = false;
    {
        BackgroundPass pass;
        pass.start([gate](const auto &token) { return gate->pass(token, 1); }, [&](int) { delivered = true; });
        QVERIFY(gate->started.tryAcquire(1, PatienceMs));
    }
    gate->letGo();
    QVERIFY(gate->passed); // the destructor did not wait for the worker
    QVERIFY(!gate->goOn);
    deliverPosted();
    QVERIFY(!delivered);
}

void TestBackgroundPass::startGivesUpTheLastPass()
{
    const auto gate = std::make_shared<Gate>();
    BackgroundPass pass;
    QList<int> results;
    const auto deliver = [&](int result) { results.append(result); };
    pass.start([gate](const auto &token) { return gate->pass(token, 1); }, deliver);
    QVERIFY(gate->started.tryAcquire(1, PatienceMs));
    pass.start([](const auto &) { return 2; }, deliver); // not held up by the one that hangs
    QTRY_COMPARE(results, QList<int>({2}));
    gate->letGo();
    deliverPosted();
    QCOMPARE(results, QList<int>({2}));
}

void TestBackgroundPass::deliveryMayStartTheNextOrDelete()
{
    auto *pass = new BackgroundPass(this);
    const QSignalSpy destroyed(pass, &QObject::destroyed);
    const auto work = [](const auto &) { return 0; };
    pass->start(work, [pass, work](int) { pass->start(work, [pass](int) { delete pass; }); });
    QTRY_COMPARE(destroyed.size(), 1);
}

VYX_TEST(TestBackgroundPass)
#include "tst_background_pass.moc"
