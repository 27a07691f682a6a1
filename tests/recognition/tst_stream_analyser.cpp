#include "recorded_stream.h"
#include "test_program.h"

#include "modes/encoder.h"
#include "sirm/alenia_sir_m_radar_encoder.h"

#include <QRandomGenerator>
#include <QTest>

using namespace korvane::modes;

namespace {

QByteArray octetsOf(const std::vector<unsigned char> &octets)
{
    return {reinterpret_cast<const char *>(octets.data()), static_cast<qsizetype>(octets.size())};
}

const char PlotReport[] = "161/TRN=7 040/RHO=50.5 040/THETA=90.5 220=0x400123 020/TYP=5";

QByteArray sirMData()
{
    AleniaSirMRadarTrackRecord track;
    track.setTrackNumber(12);
    track.setTrackType(2);
    track.setPosition(30, 40);
    AleniaSirMRadarDataMessage message;
    message.setRadarId(3);
    message.addTrackRecord(track);
    message.addPlotRecord({});
    return octetsOf(AleniaSirMRadarEncoder::encode(message));
}

QByteArray northMarker(int periodMs)
{
    AleniaSirMRadarNorthMarkerMessage message;
    message.setRadarId(3);
    message.setRotationPeriod(static_cast<unsigned>(periodMs));
    return octetsOf(AleniaSirMRadarEncoder::encode(message));
}

// An aircraft at 50 degrees north, 8 degrees east, as a receiver hands out what it sends.
QByteArray squitters(ModeSEncapsulation::Format format, int count)
{
    std::string octets;
    for (int i = 0; i < count; ++i) {
        ModeSFrame frame = encodeAirbornePosition(0x400123, {50.0, 8.0}, 30000, i % 2 != 0);
        frame.ticks = 12000ULL * 400 * static_cast<unsigned>(i);
        frame.signalLevel = 200;
        appendEncapsulated(octets, frame, format);
    }
    return QByteArray::fromStdString(octets);
}

} // namespace

class TestStreamAnalyser final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void kindAndEnvelope_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("format");
        const QByteArray plots = encodedReport(48, PlotReport) + encodedReport(34, "000=1");
        const QByteArray hdlc = QByteArray::fromHex("0103");
        const QByteArray managAir(16, '\x02');
        const QByteArray fcs = QByteArray::fromHex("1234");
        const auto row = [](const char *tag, const QByteArray &message, Config::ProcessorType kind, int format) {
            QTest::newRow(tag) << message << int(kind) << format;
        };
        row("ASTERIX", plots, Config::ProcessorType::Asterix, 0);
        row("ASTERIX, octets of the recorder's", plots + QByteArray(10, '\xcd'), Config::ProcessorType::Asterix, 0);
        row("ASTERIX in HDLC", hdlc + plots + fcs, Config::ProcessorType::Asterix, 1);
        row("ASTERIX in ManagAir", managAir + plots, Config::ProcessorType::Asterix, 2);
        row("SIR-M", sirMData(), Config::ProcessorType::AleniaSirM, 0);
        row("SIR-M in HDLC", hdlc + sirMData() + fcs, Config::ProcessorType::AleniaSirM, 1);
        row("SIR-M in ManagAir", managAir + sirMData(), Config::ProcessorType::AleniaSirM, 2);
        for (const auto format : {ModeSEncapsulation::Raw, ModeSEncapsulation::Avr, ModeSEncapsulation::Beast,
                 ModeSEncapsulation::RawRssi}) {
            row(ModeSEncapsulation::name(format).c_str(), squitters(format, 6), Config::ProcessorType::ModeS, format);
        }
    }

    void kindAndEnvelope()
    {
        QFETCH(QByteArray, message);
        QFETCH(int, kind);
        QFETCH(int, format);
        RecordedStream stream;
        for (int i = 0; i < 5; ++i) {
            stream.add(message);
        }
        const StreamFindings found = stream.findings();
        QVERIFY(found.kind);
        QCOMPARE(int(*found.kind), kind);
        const int formats[]{int(found.asterixFormat), int(found.modeSEncapsulation), int(found.aleniaSirMFormat)};
        QCOMPARE(formats[kind], format);
        QCOMPARE(found.undecodableOctets, 0);
        QCOMPARE(found.messages, 5);
        QCOMPARE(found.first.secsTo(found.last), 4);
    }

    void noiseIsNothing()
    {
        QRandomGenerator random(7);
        RecordedStream stream;
        for (int i = 0; i < 2000; ++i) {
            QByteArray noise(random.bounded(1, 1400), '\0');
            for (char &octet : noise) {
                octet = static_cast<char>(random.generate());
            }
            stream.add(noise);
        }
        QVERIFY2(!stream.findings().kind, qPrintable(describe(stream.findings())));
        QVERIFY(describe(stream.findings()).contains("2,000 messages"));
        QVERIFY(!StreamAnalyser().findings().kind);
    }

    void oneSourceInASentence_data()
    {
        QTest::addColumn<int>("category");
        QTest::addColumn<QString>("reports");
        QTest::addColumn<QString>("sentence");
        const auto row = [](int category, const char *reports, const char *sentence) {
            QTest::addRow("%d %s", category, reports) << category << reports << sentence;
        };
        row(48, PlotReport, "CAT048 from 25/0, polar positions, track numbers and aircraft addresses");
        row(48, "040/RHO=5", "CAT048 from 25/0, polar positions, no track numbers");
        row(48, "161/TRN=7 040/RHO=5; 040/RHO=5; 161/TRN=8",
            "CAT048 from 25/0, polar positions, track numbers, both in 1 of 3 reports");
        row(1, "161=3 042/X=5 042/Y=6", "CAT001 from 25/0, Cartesian positions, track numbers");
        row(34, "000=1 041=4.5", "CAT034 from 25/0, turning once in 4.5 s");
        row(62, "040=9 105/LAT=50 105/LON=8",
            "CAT062 from 25/0, WGS-84 positions, track numbers, around 500000N 0080000E");
        row(21, "080=0x400123 130/LAT=50 130/LON=8 073=100 040/ATP=0",
            "CAT021 in edition 2.7 from 25/0, WGS-84 positions, aircraft addresses, around 500000N 0080000E");
        row(63, "030=100", "CAT063 from 25/0");
    }

    void oneSourceInASentence()
    {
        QFETCH(int, category);
        QFETCH(QString, reports);
        QFETCH(QString, sentence);
        RecordedStream stream;
        stream.report(category, reports);
        QCOMPARE(describe(stream.findings()), sentence);
    }

    void sourcesAreToldApart()
    {
        RecordedStream stream;
        for (int i = 0; i < 3; ++i) {
            const QByteArray plot = encodedReport(48, PlotReport);
            // A block of two sources, and one of another radar alone.
            QByteArray both = plot + fromSource(plot, 25, 12).mid(3);
            both[2] = static_cast<char>(both.size());
            stream.add(both);
            stream.add(fromSource(plot, 26, 1) + QByteArray::fromHex("ff0006 c0 1901"));
        }
        const StreamFindings found = stream.findings();
        QStringList sources;
        for (const SourceFindings &source : found.sources) {
            const CategoryFindings *plots = source.find(48);
            sources += source.name() + ' ' + QString::number(plots ? plots->records : -1);
        }
        QCOMPARE(sources, QStringList({"a source without SAC/SIC -1", "25/0 3", "25/12 3", "26/1 3"}));
        QCOMPARE(found.undecodableOctets, 3 * 6);
        QCOMPARE(describe(found),
            QStringLiteral(
                "4 sources: CAT048 from 25/0 (3 records); CAT048 from 25/12 (3 records); CAT048 from 26/1 (3 "
                "records); CAT255 (cannot be decoded) from a source without SAC/SIC (0 records), 18 of %1 "
                "octets cannot be decoded")
                .arg(found.octets));
    }

    void periodOfTheAntenna_data()
    {
        using Basis = SourceFindings::PeriodBasis;
        QTest::addColumn<QString>("once"); // at every turn of 4.8 s
        QTest::addColumn<int>("basis");
        QTest::newRow("told") << "34 000=1 041=5.0" << int(Basis::Reported);
        QTest::newRow("north markers") << "34 000=1" << int(Basis::SectorsAndMarkers);
        QTest::newRow("sector crossings") << "2 000=2 020=90" << int(Basis::SectorsAndMarkers);
        QTest::newRow("plots of a track") << "48 161/TRN=7 040/RHO=5" << int(Basis::TrackUpdates);
        QTest::newRow("plots alone") << "48 040/RHO=5" << int(Basis::None);
    }

    void periodOfTheAntenna()
    {
        QFETCH(QString, once);
        QFETCH(int, basis);
        RecordedStream stream;
        for (int turn = 0; turn < 9; ++turn) {
            if (turn != 3) { // lost on the way
                stream.addAt(turn * 4.8, encodedReport(once.section(' ', 0, 0).toInt(), once.section(' ', 1)));
            }
        }
        const SourceFindings source = stream.findings().sources.value(0);
        QCOMPARE(int(source.periodBasis), basis);
        const bool told = source.periodBasis == SourceFindings::PeriodBasis::Reported;
        const bool unknown = source.periodBasis == SourceFindings::PeriodBasis::None;
        QCOMPARE(source.rotationPeriod, unknown ? 0.0 : told ? 5.0 : 4.8);
    }

    void placeOfTheSource()
    {
        // Five kilometres east and ten north of where the system stands.
        const GeoCoordinate site(50.0, 179.99);
        const GeoCoordinate target = site.atDistanceAndAzimuth(std::hypot(5000, 10000), 26.565);
        RecordedStream stream;
        for (int i = 0; i < 20; ++i) {
            stream.report(20,
                QStringLiteral("161/TRN=3 041/LAT=%1 041/LON=%2 042/X=5000 042/Y=10000")
                    .arg(target.latitude(), 0, 'f', 7)
                    .arg(target.longitude(), 0, 'f', 7));
        }
        const SourceFindings source = stream.findings().sources.value(0);
        QVERIFY2(source.site.distanceTo(site) < 20, qPrintable(source.site.toString()));
        QVERIFY(source.area.center.distanceTo(target) < 20);
        QCOMPARE(source.area.positions, 20);

        RecordedStream radar;
        radar.report(34, "000=1 120/HGT=300 120/LAT=48.5 120/LON=-7.25");
        QVERIFY(radar.findings().sources.value(0).site.distanceTo(GeoCoordinate(48.5, -7.25)) < 10);
    }

    void framesAndRadarMessagesAreCounted()
    {
        RecordedStream frames;
        // Cut where no frame ends, as serial lines do.
        const QByteArray octets = squitters(ModeSEncapsulation::Beast, 40);
        frames.add(octets.left(100));
        frames.add(octets.mid(100) + QByteArray::fromHex("1a31000000000001800e55").repeated(3)); // Mode A/C replies
        const ModeSFindings modeS = frames.findings().modeS;
        QCOMPARE(modeS.frames, 40);
        QCOMPARE(modeS.squitters, 40);
        QCOMPARE(modeS.modeAcReplies, 3);
        QCOMPARE(frames.findings().undecodableOctets, 0);
        QCOMPARE(modeS.aircraft, 1);
        QVERIFY(modeS.area.center.distanceTo(GeoCoordinate(50, 8)) < 100);
        QVERIFY(modeS.area.positions >= 39);

        RecordedStream radar;
        for (int i = 0; i < 3; ++i) {
            radar.add(northMarker(6000) + sirMData());
        }
        QCOMPARE(describe(radar.findings()),
            QStringLiteral("Alenia SIR-M radar 3: 3 tracks, 3 plots, turning once in 6.0 s"));
    }
};

VYX_TEST(TestStreamAnalyser)
#include "tst_stream_analyser.moc"
