#include "adsb_blocks.h"
#include "asterix/edition_fit.h"
#include "octets.h"
#include "test_program.h"

#include <QTest>

using korvane::asterix::EditionFit;
using korvane::asterix::EditionJudge;

class TestEditionFit final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // What a station sends in one edition fits that one without any oddity; the others refuse it or find it odd.
    void tellsEditionsApart_data()
    {
        QTest::addColumn<int>("mostForeign"); // of 150 judgements
        QTest::newRow("2.7") << 60; // 2.1 and 2.7 differ in little
        QTest::newRow("2.1") << 60;
        QTest::newRow("0.26") << 5;
        QTest::newRow("0.23") << 5;
    }

    void tellsEditionsApart()
    {
        QFETCH(int, mostForeign);
        const std::string edition = QTest::currentDataTag();
        EditionJudge judge;
        AdsbBlocks blocks(edition.c_str(), 11);
        int foreign = 0;
        for (int i = 0; i < 50; ++i) {
            const auto sent = blocks.makeBlock(4).block();
            const auto fits = judge.judge(sent.data(), sent.size());
            QCOMPARE(fits.size(), 4U);
            for (const EditionFit &fit : fits) {
                if (fit.edition == edition) {
                    QVERIFY(fit.isWhole && fit.records == 4 && fit.oddRecords == 0);
                } else {
                    foreign += fit.isWhole && fit.oddRecords == 0;
                }
            }
        }
        QVERIFY2(foreign <= mostForeign, qPrintable(QString::number(foreign)));
    }

    void oddRecords_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<QByteArray>("records");
        QTest::addColumn<int>("odd");
        QTest::newRow("plots") << 48 << QByteArray("e0 1905 000001 a0 e0 1905 a8bfff a0") << 0;
        QTest::newRow("time of day after midnight") << 48 << QByteArray("e0 1905 000001 a0 e0 1905 a8c000 a0") << 1;
        // The item that has the aircraft's address in another category: one octet at the end of the record.
        QTest::newRow("track status") << 62 << QByteArray("8104 1905 00") << 0;
    }

    void oddRecords()
    {
        QFETCH(int, category);
        QFETCH(QByteArray, records);
        QFETCH(int, odd);
        const Octets block = Octets::block(category, records);
        EditionJudge judge;
        const auto fits = judge.judge(block.data(), block.size());
        QCOMPARE(fits.size(), 1U);
        QVERIFY(fits.front().isWhole);
        QCOMPARE(int(fits.front().oddRecords), odd);
        const Octets unknown = Octets::block(255, "00");
        QVERIFY(judge.judge(unknown.data(), unknown.size()).empty());
    }
};

VYX_TEST(TestEditionFit)
#include "tst_edition_fit.moc"
