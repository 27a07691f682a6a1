#include "test_program.h"
#include "typed_twins.h"

#include <QTest>

namespace {

_ast_datarecord_008_t weather(const char *recordHex)
{
    return typedRecord<_ast_datarecord_008_t>(Octets::block(8, recordHex), ast_datarecord_008_disassemble);
}

using Segment = QList<double>;

QList<Segment> segments(const _ast_datarecord_008_t &record, int scalingFactor)
{
    QList<Segment> all;
    _ast_weather_segment_t segment;
    for (unsigned i = 0; ast_weather_segment_get(&segment, record, i, scalingFactor); ++i) {
        all.append({segment.x1, segment.y1, segment.x2, segment.y2});
    }
    return all;
}

} // namespace

class TestWeatherRecords : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsPolarVectors()
    {
        const auto record = weather("E8 19C9 01 D1 04 02 10204000 FFFF8001");
        QVERIFY(record.valid && record.i000.type == 1 && record.i034.present && record.i034.count == 2);
        QVERIFY(record.i020.systemCoordinates && record.i020.intensity == 5 && record.i020.test && !record.i020.error);
        QVERIFY(record.i034.vectors[0].startRange == 16 && record.i034.vectors[0].endRange == 32);
        QVERIFY(record.i034.vectors[0].azimuth == 90 && record.i034.vectors[1].endRange == 255);
        QCOMPARE(record.i034.vectors[1].azimuth, 180 + 360.0 / 65536);
    }

    void readsPictureFrame_data()
    {
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<int>("scalingFactor");
        QTest::addColumn<int>("stage");
        QTest::addColumn<int>("parameters");
        QTest::newRow("positive") << QByteArray("3A0002") << 7 << 2 << 1;
        QTest::newRow("largest") << QByteArray("780000") << 15 << 0 << 0;
        QTest::newRow("smallest") << QByteArray("80FFFE") << -16 << 0 << 0x7FFF;
        QTest::newRow("minus one") << QByteArray("FF8000") << -1 << 7 << 0x4000;
    }

    void readsPictureFrame()
    {
        QFETCH(QByteArray, status);
        const auto start = weather(("C1C0 19C9 FE 5460FF" + status).constData());
        QVERIFY(start.valid && start.i000.type == 254 && start.i090.present && start.i100.present);
        QCOMPARE(start.i090.value * start.i090.lsb, 43200 + 255.0 / 128);
        QTEST(int(start.i100.scalingFactor), "scalingFactor");
        QTEST(int(start.i100.reductionStage), "stage");
        QTEST(int(start.i100.parameters), "parameters");
        const auto end = weather("C110 19C9 FF 0102");
        QVERIFY(end.i000.type == 255 && end.i120.present && end.i120.count == 258 && !end.i100.present);
    }

    void makesSegments_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<int>("scalingFactor");
        QTest::addColumn<QList<Segment>>("expected");
        const auto row = [](const char *name, const char *record, int factor, const QList<Segment> &expected) {
            QTest::newRow(name) << QByteArray(record) << factor << expected;
        };
        // Intensity 3 and the direction of the vectors in the qualifier.
        row("to the north", "F0 19C9 02 30 01 0AEC28", 6, {{10, -20, 10, 20}});
        row("to the east", "F0 19C9 02 38 01 0AEC28", 6, {{10, -20, 50, -20}});
        row("to the south-east, scaled up", "F0 19C9 02 3C 01 000064", 7, {{0, 0, 141.421356, -141.421356}});
        row("start and end, scaled down", "C108 19C9 04 01 80FF7F40", 5, {{-64, -0.5, 63.5, 32}});
        row("contour", "C6 19C9 03 3342 03 0000 0A00 0AF6", 6, {{0, 0, 10, 0}, {10, 0, 10, -10}, {10, -10, 10, -10}});
        row("polar vectors", "E8 19C9 01 10 01 10204000", 6, {});
    }

    void makesSegments()
    {
        QFETCH(QByteArray, record);
        QFETCH(int, scalingFactor);
        QFETCH(QList<Segment>, expected);
        const auto actual = segments(weather(record.constData()), scalingFactor);
        QCOMPARE(actual.size(), expected.size());
        for (int i = 0; i < actual.size(); ++i) {
            for (int k = 0; k < 4; ++k) {
                QVERIFY2(qAbs(actual[i][k] - expected[i][k]) < 1e-6, qPrintable(QString::number(actual[i][k])));
            }
        }
    }

    void readsContour()
    {
        const auto contour = weather("C6 19C9 03 B242 01 0000");
        QVERIFY(contour.i040.systemCoordinates && contour.i040.intensity == 3 && contour.i040.serial == 0x42);
        QVERIFY(contour.i040.first && !contour.i040.last);
    }
};

VYX_TEST(TestWeatherRecords)
#include "tst_weather_records.moc"
