#include "engine/identity_directory.h"
#include "test_program.h"

#include <QTest>

namespace {

SeenIdentity withAddress(quint32 address, ReportOutcome outcome = ReportOutcome::NoPosition, qint64 timeMs = 0)
{
    SeenIdentity seen;
    seen.address = address;
    seen.outcome = outcome;
    seen.lastMs = timeMs;
    return seen;
}

SeenIdentity full()
{
    SeenIdentity seen = withAddress(0x4B1A2C);
    qstrcpy(seen.callsign, "VYX123");
    seen.modeA = 07000;
    seen.sensorNumber = 42;
    return seen;
}

} // namespace

class TestIdentityDirectory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findsWhatTheTextCanMean_data();
    void findsWhatTheTextCanMean();
    void countsReportsOfOneOutcome();
    void keepsEndBesideReports();
    void tellsSourcesApart();
    void dropsTheLeastRecentlyNamed();
};

void TestIdentityDirectory::findsWhatTheTextCanMean_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("found");
    QTest::newRow("callsign") << "VYX123" << true;
    QTest::newRow("small letters and blanks") << " vyx123 " << true;
    QTest::newRow("beginning") << "VYX" << true;
    QTest::newRow("too short a beginning") << "VY" << false;
    QTest::newRow("end") << "123" << false;
    QTest::newRow("code") << "7000" << true;
    QTest::newRow("code in decimal") << "3584" << false;
    QTest::newRow("code of three digits") << "700" << false;
    QTest::newRow("address") << "4b1a2c" << true;
    QTest::newRow("address without its last digit") << "4B1A2" << false;
    QTest::newRow("number") << "42" << true;
    QTest::newRow("number with its sign") << "#42" << true;
    QTest::newRow("number with zeros") << "0042" << true;
    QTest::newRow("no number") << "0" << false;
    QTest::newRow("nothing") << "" << false;
    QTest::newRow("blanks") << "   " << false;
}

void TestIdentityDirectory::findsWhatTheTextCanMean()
{
    QFETCH(QString, text);
    QFETCH(bool, found);
    IdentityDirectory directory;
    directory.note(full());
    directory.note(withAddress(0x111111)); // with nothing else: matches no text of these, nor does what it lacks
    QCOMPARE(directory.find(IdentityQuery::fromText(text)).size(), found ? 1 : 0);
}

void TestIdentityDirectory::countsReportsOfOneOutcome()
{
    IdentityDirectory directory;
    directory.note(withAddress(5, ReportOutcome::NoPosition, 1));
    directory.note(withAddress(5, ReportOutcome::NoPosition, 2));
    const auto query = IdentityQuery::fromText("000005");
    QCOMPARE(directory.find(query).first().reports, 2ULL);
    directory.note(withAddress(5, ReportOutcome::OtherSource, 3));
    QCOMPARE(directory.find(query).size(), 1);
    QCOMPARE(directory.find(query).first().reports, 1ULL);
    QCOMPARE(directory.find(query).first().lastMs, 3LL);
}

void TestIdentityDirectory::keepsEndBesideReports()
{
    IdentityDirectory directory;
    SeenIdentity ended = withAddress(5, ReportOutcome::TrackEnd, 1);
    ended.endedMs = 2;
    directory.note(ended);
    directory.note(withAddress(5, ReportOutcome::OtherSource, 3));
    const auto found = directory.find(IdentityQuery::fromText("000005"));
    QCOMPARE(found.size(), 2);
    QCOMPARE(found[0].outcome, ReportOutcome::OtherSource); // the newer first
    QVERIFY(found[1].hasEnded());
}

void TestIdentityDirectory::tellsSourcesApart()
{
    IdentityDirectory directory;
    SeenIdentity seen = full();
    seen.address = 0;
    for (const quint8 sic : {1, 2, 1}) {
        seen.sic = sic;
        directory.note(seen);
    }
    const auto found = directory.find(IdentityQuery::fromText("42"));
    QCOMPARE(found.size(), 2);
    QCOMPARE(found[0].sic, quint8(1));
    QCOMPARE(found[0].reports, 2ULL);
}

void TestIdentityDirectory::dropsTheLeastRecentlyNamed()
{
    const auto textOf = [](unsigned address) { return QString("%1").arg(address, 6, 16, QChar('0')); };
    const auto maximum = static_cast<unsigned>(IdentityDirectory::MaximumIdentities);
    IdentityDirectory directory;
    for (unsigned address = 1; address <= maximum; ++address) {
        directory.note(withAddress(address));
    }
    directory.note(withAddress(1)); // heard again
    for (unsigned address = maximum + 1; address <= maximum + 1000; ++address) {
        directory.note(withAddress(address));
    }
    QCOMPARE(directory.size(), IdentityDirectory::MaximumIdentities);
    const auto knows = [&](unsigned address) {
        return !directory.find(IdentityQuery::fromText(textOf(address))).isEmpty();
    };
    QVERIFY(knows(1));
    QVERIFY(!knows(2));
    QVERIFY(!knows(1001));
    QVERIFY(knows(1002));
    QVERIFY(knows(maximum + 1000));
    directory.clear();
    QVERIFY(!knows(1));
    directory.note(withAddress(7));
    QVERIFY(knows(7));
}

VYX_TEST(TestIdentityDirectory)
#include "tst_identity_directory.moc"
