#include "test_program.h"
#include "tracking/track_manager.h"

#include <QTest>

class TestTrackManager : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_clock->startRecorded(m_start);
        m_manager = std::make_unique<TrackManager>();
        m_manager->setClock(m_clock);
    }

    void numbersGoRound()
    {
        QCOMPARE(m_manager->createTrack()->trackNumber(), 1u);
        const auto second = m_manager->createTrack();
        m_manager->removeTrack(second);
        QCOMPARE(m_manager->createTrack()->trackNumber(), 3u); // the free 2 waits for its turn
        for (unsigned int number = 4; number <= 4096; ++number) {
            m_manager->removeTrack(m_manager->createTrack());
        }
        const auto wrapped = m_manager->createTrack(); // 1 is in use
        QCOMPARE(wrapped->trackNumber(), 2u);
        QVERIFY(wrapped->incarnationId() != second->incarnationId());
        m_manager->reset();
        QCOMPARE(m_manager->createTrack(7), m_manager->createTrack(7)); // does not move the rotation
        const auto afterReset = m_manager->createTrack();
        QCOMPARE(afterReset->trackNumber(), 1u);
        QVERIFY(afterReset->incarnationId() > wrapped->incarnationId());
    }

    // The rotation moves on by one number fewer than there are with each refusal: the number that is missed changes.
    void refusesWhenAllNumbersAreInUse()
    {
        m_manager->setTrackNumberCount(4);
        m_manager->createTrack(9); // takes none of the four
        for (unsigned int number = 1; number <= 4; ++number) {
            QCOMPARE(m_manager->createTrack()->trackNumber(), number);
        }
        QVERIFY(!m_manager->createTrack()); // tries 1 to 3
        QVERIFY(!m_manager->createTrack()); // tries 4, 1 and 2
        m_manager->removeTrack(m_manager->findTrackByTrackNum(2));
        QVERIFY(!m_manager->createTrack()); // tries 3, 4 and 1
        QCOMPARE(m_manager->createTrack()->trackNumber(), 2u);
        m_manager->setTrackNumberCount(3);
        m_manager->removeTrack(m_manager->findTrackByTrackNum(4)); // above the numbers now: frees none
        QVERIFY(!m_manager->createTrack());
        m_manager->setTrackNumberCount(70000);
        QCOMPARE(m_manager->trackNumberCount(), 65535u);
        QCOMPARE(m_manager->createTrack()->trackNumber(), 4u);
    }

    void findersIndexWhatTheyFind()
    {
        const auto track = m_manager->createTrack();
        QVERIFY(!m_manager->findTrackByICAOAddr(0)); // no address is not an address
        QVERIFY(!m_manager->findTrackByOtherTrackNum(0));
        track->setIcaoAddr(0x4b1a2c);
        track->setOtherTrackNumber(77);
        QCOMPARE(m_manager->findTrackByICAOAddr(0x4b1a2c), track);
        track->setIcaoAddr(0x4b1a2d);
        QCOMPARE(m_manager->findTrackByICAOAddr(0x4b1a2c), track); // indexed by the search before, and left there
        QCOMPARE(m_manager->findTrackByICAOAddr(0x4b1a2d), track);
        QCOMPARE(m_manager->findTrackByOtherTrackNum(77), track);
        QVERIFY(!m_manager->findTrackByOtherTrackNum(78));
    }

    // Finders search only while a track may not be indexed: whatever happens to tracks, they find what a search would.
    void findersFindWhatASearchWould()
    {
        QList<QSharedPointer<Track>> tracks;
        quint32 state = 4711;
        const auto below = [&state](quint32 limit) {
            state = state * 1664525u + 1013904223u;
            return state / 65536u % limit;
        };
        for (int step = 0; step < 20000; ++step) {
            const auto action = below(8);
            if (action == 0 || tracks.isEmpty()) {
                tracks.append(m_manager->createTrack());
                continue;
            }
            const auto track = tracks[below(static_cast<quint32>(tracks.size()))];
            if (action == 1) {
                m_manager->removeTrack(track);
                tracks.removeOne(track);
            } else if (action == 2) {
                track->setIcaoAddr(below(6));
            } else if (action == 3) {
                track->setOtherTrackNumber(below(6));
            } else if (action < 6) {
                m_manager->registerTrack(track);
            } else {
                const unsigned int key = 1 + below(5);
                const auto has = [key](const auto &candidate) { return candidate->icaoAddr() == key; };
                const bool held = std::any_of(tracks.begin(), tracks.end(), has);
                const auto found = m_manager->findTrackByICAOAddr(key);
                QVERIFY2(found || !held, qPrintable(QString::number(step)));
                const auto isNumbered = [key](const auto &other) { return other->otherTrackNumber() == key; };
                QVERIFY(
                    m_manager->findTrackByOtherTrackNum(key) || std::none_of(tracks.begin(), tracks.end(), isNumbered));
            }
        }
        QVERIFY(!tracks.isEmpty());
    }

    void removalGoesByKey()
    {
        const auto first = m_manager->createTrack();
        const auto second = m_manager->createTrack();
        for (const auto &track : {first, second}) {
            track->setIcaoAddr(0xabcdef);
            track->setOtherTrackNumber(5);
            m_manager->registerTrack(track);
        }
        QCOMPARE(m_manager->findTrackByICAOAddr(0xabcdef), second);
        m_manager->removeTrack(first);
        QVERIFY(!m_manager->hasTrackNum(first->trackNumber()));
        QCOMPARE(m_manager->findTrackByICAOAddr(0xabcdef), second); // found by search again
        m_manager->removeTrack(second);
        QVERIFY(!m_manager->findTrackByICAOAddr(0xabcdef));
        QVERIFY(!m_manager->findTrackByOtherTrackNum(5));
        QCOMPARE(m_manager->trackCount(), 0);
    }

    void life_data()
    {
        QTest::addColumn<int>("termination"); // span; tracks coast after 5000 ms
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("age");
        QTest::addColumn<int>("after");
        const auto row = [](const char *name, Track::State before, int age, Track::State after,
                             int termination = 12000) {
            QTest::newRow(name) << termination << int(before) << age << int(after);
        };
        row("young", Track::Confirmed, 4999, Track::Confirmed);
        row("coasts at the span", Track::Confirmed, 5000, Track::Coasting);
        row("ageing never confirms", Track::Coasting, 100, Track::Coasting);
        row("terminates at the span", Track::Coasting, 12000, Track::Terminated);
        row("terminated by a tracker", Track::Terminated, 0, Track::Terminated);
        row("not terminated before it would coast", Track::Confirmed, 4999, Track::Confirmed, 3000);
        row("terminates where it would coast", Track::Confirmed, 5000, Track::Terminated, 3000);
    }

    void life()
    {
        QFETCH(int, termination);
        QFETCH(int, before);
        QFETCH(int, age);
        m_manager->setTrackLifeSpan(5000, termination);
        const auto track = m_manager->createTrack(); // without a position it ages from its creation
        track->setState(static_cast<Track::State>(before));
        m_clock->startRecorded(m_start.addMSecs(age));
        m_manager->checkLife();
        QTEST(int(track->state()), "after");
        QCOMPARE(m_manager->hasTrackNum(track->trackNumber()), !track->terminated());
    }

    void snapshotIsACopy()
    {
        const auto track = m_manager->createTrack();
        track->setState(Track::Coasting);
        track->setModeSCallsign(QStringLiteral("VYX1"));
        track->setIcaoAddr(0x00b1a2);
        track->setLevel(35000);
        track->setLevelValid(true);
        track->setGeoCoordinate({50.0, 8.0});
        m_manager->createTrack(9)->setState(Track::Terminated);
        auto snapshots = m_manager->snapshotTracks(0);
        track->setLevel(0);
        track->setGeoCoordinate({51.0, 8.0});
        track->setModeSCallsign(QString());
        QCOMPARE(snapshots.size(), 2); // terminated ones are shown as well
        if (snapshots[0].trackNumber != 1) {
            snapshots.swapItemsAt(0, 1);
        }
        QVERIFY(snapshots[0].coasting);
        QCOMPARE(snapshots[0].level, 35000);
        QCOMPARE(snapshots[0].callsign, QStringLiteral("VYX1"));
        QCOMPARE(snapshots[0].icaoAddrString, QStringLiteral("00B1A2"));
        QCOMPARE(snapshots[0].geoCoordinate.latitude(), 50.0);
        QCOMPARE(snapshots[1].icaoAddrString, QStringLiteral("------"));
    }

    void trail()
    {
        const auto source = m_manager->createTrack();
        source->setGeoCoordinate({50.0, 8.0});
        source->recordHistory(); // not projected yet
        for (int i = 1; i <= 4; ++i) {
            source->setCarCoordinate(QPointF(i, i));
            source->recordHistory();
        }
        const QList<QPointF> newestFirst{{4, 4}, {3, 3}, {2, 2}, {1, 1}};
        for (const int dots : {-1, 0, 2, 9}) {
            QCOMPARE(m_manager->snapshotTracks(dots).first().trail, newestFirst.first(std::clamp(dots, 0, 4)));
        }
    }

private:
    const QDateTime m_start = QDateTime::fromSecsSinceEpoch(1'800'000'000, Qt::UTC);
    std::shared_ptr<Clock> m_clock = std::make_shared<Clock>();
    std::unique_ptr<TrackManager> m_manager;
};

VYX_TEST(TestTrackManager)
#include "tst_track_manager.moc"
