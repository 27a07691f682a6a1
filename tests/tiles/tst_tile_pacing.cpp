#include "test_program.h"
#include "tiles/tile_pacing.h"

#include <QTest>

class TestTilePacing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void delaysGrow();
    void honoursTheService_data();
    void honoursTheService();
    void blockOutlastsBackoff();
    void survivesAClockThatIsSetBack();

private:
    QDateTime m_now;
    TilePacing m_pacing;
};

void TestTilePacing::init()
{
    m_now = QDateTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
    m_pacing = TilePacing();
    m_pacing.setClock([this] { return m_now; });
}

void TestTilePacing::delaysGrow()
{
    for (const int seconds : {1, 2, 4, 8, 16, 30, 30, 30}) {
        m_pacing.enterBackoff();
        QCOMPARE(m_pacing.delay(), (seconds + 1) * 1000);
        m_now = m_now.addSecs(seconds);
        QCOMPARE(m_pacing.delay(), 0);
        QVERIFY(!m_pacing.backingOff());
    }
    m_pacing.resetBackoff();
    m_pacing.enterBackoff();
    QCOMPARE(m_pacing.delay(), 2000);
}

void TestTilePacing::honoursTheService_data()
{
    QTest::addColumn<QByteArray>("retryAfter");
    QTest::addColumn<int>("seconds");
    QTest::addRow("seconds") << QByteArray("17") << 17;
    QTest::addRow("too many") << QByteArray("86400") << 300;
    QTest::addRow("far too many") << QByteArray("99999999999999") << 300;
    QTest::addRow("none") << QByteArray("0") << 1;
    QTest::addRow("negative") << QByteArray("-5") << 1;
    QTest::addRow("date") << QByteArray("Sun, 01 Mar 2026 12:00:40 GMT") << 40;
    QTest::addRow("date with offset") << QByteArray("Sun, 01 Mar 2026 13:00:40 +0100") << 40;
    QTest::addRow("date that has passed") << QByteArray("Sun, 01 Mar 2026 11:00:40 GMT") << 1;
    QTest::addRow("nonsense") << QByteArray("soon") << 1;
}

void TestTilePacing::honoursTheService()
{
    QFETCH(QByteArray, retryAfter);
    QFETCH(int, seconds);
    m_pacing.enterBackoff(retryAfter);
    QCOMPARE(m_pacing.delay(), (seconds + 1) * 1000);
    m_now = m_now.addSecs(seconds);
    QCOMPARE(m_pacing.delay(), 0);
}

void TestTilePacing::blockOutlastsBackoff()
{
    m_pacing.enterBackoff();
    m_pacing.blockAuthentication();
    m_now = m_now.addSecs(60);
    QVERIFY(m_pacing.delay() > 1000 * 60);
    m_pacing.resetAuthBlock();
    QCOMPARE(m_pacing.delay(), 0);
}

void TestTilePacing::survivesAClockThatIsSetBack()
{
    m_pacing.enterBackoff("10");
    m_now = m_now.addYears(-1);
    QVERIFY(m_pacing.delay() <= (TilePacing::MaxDelay + 1) * 1000);
    m_now = m_now.addSecs(TilePacing::MaxDelay);
    QCOMPARE(m_pacing.delay(), 0);
}

VYX_TEST(TestTilePacing)

#include "tst_tile_pacing.moc"
