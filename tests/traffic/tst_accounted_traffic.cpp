#include "scenario_rig.h"

#include "sensors/sensor_info.h"
#include "test_program.h"
#include "traffic/scenario_reader.h"

#include <QHash>

// What scenarios send is accounted for to the last record.
class TestAccountedTraffic final : public QObject {
    Q_OBJECT

private:
    // By category; of whole blocks only, as the generator sends them.
    static void countRecords(const QByteArray &datagram, QHash<int, quint64> &records)
    {
        const auto *data = reinterpret_cast<const unsigned char *>(datagram.constData());
        const auto size = static_cast<std::size_t>(datagram.size());
        _ast_datablock_t block;
        for (std::size_t at = 0; at < size; at += block.size) {
            QVERIFY(ast_datablock_smart_decode(&block, data + at, size - at) && block.size > 0);
            records[static_cast<int>(block.category)] += block.records.size();
        }
    }

private Q_SLOTS:
    void outcomesSumToTheRecords_data()
    {
        // What may become of that which the scenario's sensor does not show.
        QTest::addColumn<QStringList>("drops");
        for (const char *name : {"adsb", "alerts", "busy", "demo", "mlat", "sdps", "sirm", "smr", "video", "weather"}) {
            QTest::newRow(name) << QStringList();
        }
        // Before both halves of a position have come, and an address in a squitter.
        QTest::newRow("modes") << QStringList({"noPosition", "unknownAddress"});
    }

    void outcomesSumToTheRecords()
    {
        const std::optional<Scenario> scenario = ScenarioReader().read(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(scenario);
        ScenarioRig rig(*scenario);
        const bool asterix = rig.config.processorType == Config::ProcessorType::Asterix;
        QHash<int, quint64> records;
        quint64 octets = 0;
        rig.play(20, [&](const QByteArray &datagram, double) {
            octets += static_cast<quint64>(datagram.size());
            if (asterix) {
                countRecords(datagram, records);
            }
        });

        const auto statistics = rig.statistics();
        quint64 counted = 0;
        QFETCH(QStringList, drops);
        for (const SourceStatistics &of : statistics->sources) {
            counted += of.octets;
            quint64 accounted = 0;
            for (int i = 0; i < ReportOutcomeCount; ++i) {
                const auto outcome = static_cast<ReportOutcome>(i);
                accounted += of.outcome(outcome);
                const QString name = QLatin1String(reportOutcomeName(outcome));
                QVERIFY2(of.outcome(outcome) == 0 || isShown(outcome) || drops.contains(name), qPrintable(name));
            }
            QCOMPARE(accounted, of.records);
            records[of.category] -= asterix ? accounted : 0;
        }
        QVERIFY(!statistics->sources.isEmpty());
        for (const auto &[category, left] : records.asKeyValueRange()) {
            QVERIFY2(left == 0, qPrintable(QString::number(category)));
        }
        QCOMPARE(statistics->undecodableMessages + statistics->trailedMessages, 0ULL);
        if (asterix) {
            QCOMPARE(counted, octets);
        }
    }
};

VYX_TEST(TestAccountedTraffic)
#include "tst_accounted_traffic.moc"
