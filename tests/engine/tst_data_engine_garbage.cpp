#include "engine_rig.h"
#include "test_program.h"

#include <QCoreApplication>
#include <QTest>

#include <algorithm>
#include <random>

namespace {

constexpr int GoodTracks = 50;

// What a network brings beside good data. Deterministic.
class Garbage {
public:
    QByteArray next()
    {
        switch (m_kind++ % 6) {
        case 0:
            return random(1 + below(200));
        case 1: // an ASTERIX header before anything
            return header(below(256), 3 + below(1400)) + random(below(300));
        case 2: // cut short
            return plotBlock(7).left(1 + below(12));
        case 3: // of a category that tracks are made of, with contents of chance, in the stated length
            return wholeBlock(48, random(10 + below(100)));
        case 4: // hostile repetition count: FSPEC with I048/250, then 255 registers of which none are there
            return QByteArray::fromHex("30000a 010120 ff000000");
        default: // a length of zero, and of less than the header
            return header(48, below(3)) + random(below(20));
        }
    }

private:
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    QByteArray random(int size)
    {
        QByteArray octets(size, '\0');
        for (char &octet : octets) {
            octet = static_cast<char>(m_random());
        }
        return octets;
    }

    static QByteArray header(int category, int length)
    {
        return QByteArray(1, static_cast<char>(category)) + static_cast<char>(length >> 8) + static_cast<char>(length);
    }

    static QByteArray wholeBlock(int category, const QByteArray &contents)
    {
        return header(category, 3 + static_cast<int>(contents.size())) + contents;
    }

    std::mt19937 m_random{20};
    int m_kind = 0;
};

} // namespace

class TestDataEngineGarbage final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Twenty datagrams of garbage around every good one, and each good report is shown where it belongs.
    void goodReportsBesideGarbageAreShown()
    {
        EngineRig rig;
        rig.open();
        QCOMPARE(rig.opened.count(), 1);
        QUdpSocket sender;
        const auto send = [&](const QByteArray &datagram) {
            sender.writeDatagram(datagram, QHostAddress::LocalHost, rig.port());
        };
        Garbage garbage;
        for (int number = 1; number <= GoodTracks; ++number) {
            for (int i = 0; i < 20; ++i) {
                send(garbage.next());
            }
            send(plotBlock(static_cast<quint8>(number), static_cast<quint16>(number * 1000)));
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(rig.engine.messagesReceived(), quint64(GoodTracks * 21));

        const QList<TrackSnapshot> tracks = rig.tracks();
        for (int number = 1; number <= GoodTracks; ++number) {
            const double bearing = number * 1000 * 360.0 / 65536.0;
            const GeoCoordinate expected(rig.radar()->location().atDistanceAndAzimuth(10 * 1852.0, bearing));
            const bool shown = std::any_of(tracks.begin(), tracks.end(),
                [&expected](const TrackSnapshot &track) { return track.geoCoordinate.distanceTo(expected) < 100.0; });
            QVERIFY2(shown, qPrintable(QString("track %1").arg(number)));
        }
    }
};

VYX_TEST(TestDataEngineGarbage)
#include "tst_data_engine_garbage.moc"
