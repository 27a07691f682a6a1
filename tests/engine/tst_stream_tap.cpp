#include "encoded_report.h"
#include "engine/stream_tap.h"
#include "engine_rig.h"
#include "test_program.h"

#include <QTest>

namespace {

std::span<const unsigned char> spanOf(const QByteArray &octets)
{
    return {reinterpret_cast<const unsigned char *>(octets.constData()), static_cast<std::size_t>(octets.size())};
}

QByteArray octetsOf(std::span<const unsigned char> octets)
{
    return {reinterpret_cast<const char *>(octets.data()), static_cast<qsizetype>(octets.size())};
}

} // namespace

class TestStreamTap final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void copiesWhatTheInputReceives()
    {
        EngineRig rig;
        const auto messages = std::make_shared<StreamTap>(StreamTap::Content::Messages);
        const auto records = std::make_shared<StreamTap>(StreamTap::Content::Records);
        rig.engine.openTap(messages);
        rig.engine.openTap(records);
        rig.open();
        const QByteArray plot = encodedReport(48, "161/TRN=7 040/RHO=5 040/THETA=90 220=0x400123");
        const QByteArray stray = encodedReport(48, "040/RHO=5 040/THETA=180");
        const QByteArray datagram = plot + stray;
        rig.engine.procMessage(datagram);
        QVERIFY(messages->takeAll().batches.empty()); // not handed over yet
        rig.engine.publishSnapshot();

        const StreamTap::Taken heard = messages->takeAll();
        QCOMPARE(heard.batches.size(), 1U);
        QCOMPARE(heard.batches[0]->messages.size(), 1U);
        QCOMPARE(octetsOf(heard.batches[0]->octetsOf(heard.batches[0]->messages[0])), datagram);
        QCOMPARE(heard.batches[0]->messages[0].timeMs, rig.nowMs);

        const StreamTap::Taken taken = records->takeAll();
        QCOMPARE(taken.batches.size(), 1U);
        const StreamBatch &batch = *taken.batches[0];
        QCOMPARE(batch.records.size(), 2U);
        QCOMPARE(octetsOf(batch.octetsOf(batch.records[0])), plot.mid(3));
        QCOMPARE(octetsOf(batch.octetsOf(batch.records[1])), stray.mid(3));
        QVERIFY(batch.records[0].outcome == ReportOutcome::Track && batch.records[0].trackNumber > 0);
        QVERIFY(batch.records[1].outcome == ReportOutcome::Plot && batch.records[1].uap != nullptr);
        QVERIFY(batch.records[1].identified && batch.records[1].sac == 25);

        rig.engine.closeTap(messages);
        rig.engine.closeTap(records);
        rig.engine.procMessage(datagram);
        rig.engine.publishSnapshot();
        QVERIFY(messages->takeAll().batches.empty() && records->takeAll().batches.empty());
    }

    // Who does not read gets the newest, and is told how much he missed.
    void isBounded()
    {
        StreamTap tap(StreamTap::Content::Messages);
        tap.setClock(std::make_shared<Clock>([] { return 5; }, [] { return 5; }));
        const std::size_t size = StreamTap::BatchOctets / 4;
        const int sent = static_cast<int>(StreamTap::MostWaiting) * 4 + 9;
        for (int i = 0; i < sent; ++i) {
            tap.addMessage(spanOf(QByteArray(static_cast<qsizetype>(size), static_cast<char>(i))));
        }
        tap.addMessage(spanOf(QByteArray(300000, 'x'))); // larger than a batch
        tap.flush();
        const StreamTap::Taken taken = tap.takeAll();
        QVERIFY(taken.batches.size() <= StreamTap::MostWaiting);
        quint64 got = 0;
        for (const auto &batch : taken.batches) {
            got += batch->messages.size();
        }
        QCOMPARE(got + taken.missed, quint64(sent) + 1);
        QVERIFY(taken.missed > 0);
        QCOMPARE(taken.batches.back()->octets.size(), 300000U);
        QCOMPARE(tap.takeAll().missed, 0U);
    }
};

VYX_TEST(TestStreamTap)
#include "tst_stream_tap.moc"
