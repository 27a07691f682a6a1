#include "app/run_config.h"
#include "app/settings_lock.h"
#include "test_program.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace std::chrono_literals;

class TestSettingsLock : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thePasswordAloneOpens();
    void guessingTakesLongerAndLonger();
    void lockedSettingsStayAsTheyAre();
    void asksBeforeWhatNeedsThePassword();
};

void TestSettingsLock::thePasswordAloneOpens()
{
    const QString password = QStringLiteral("Tür zu 1");
    const QString stored = SettingsLock::stored(password);
    QVERIFY(stored.startsWith("pbkdf2-sha512:20000:") && !stored.contains("zu"));
    QVERIFY2(stored != SettingsLock::stored(password), "a salt of its own");
    QVERIFY(SettingsLock::opens(password, stored));
    // Made with another implementation: PBKDF2-HMAC-SHA512 of "password", salt "salt", one round.
    QVERIFY(SettingsLock::opens("password", "pbkdf2-sha512:1:c2FsdA==:hn9wzxreAs/zdSWZo6U9xK80x6ZpgVrl1RNVThyM8lI="));
    for (const char *wrong : {"", "tür zu 1", "Tür zu 1 "}) {
        QVERIFY(!SettingsLock::opens(QString::fromUtf8(wrong), stored));
    }
    for (const char *damaged :
        {"x", "pbkdf2-sha512:::", "pbkdf2-sha512:0:c2FsdA==:", "pbkdf2-sha512:1:c2FsdA==:aGFsZg==",
            "pbkdf2-sha512:99999999999:c2FsdA==:hn9wzxreAs/zdSWZo6U9xK80x6ZpgVrl1RNVThyM8lI="}) {
        QVERIFY2(!SettingsLock::opens("", damaged) && SettingsLock(damaged).locked(), damaged);
    }
}

void TestSettingsLock::guessingTakesLongerAndLonger()
{
    std::chrono::milliseconds now = 0ms;
    SettingsLock lock(
        "pbkdf2-sha512:1:c2FsdA==:hn9wzxreAs/zdSWZo6U9xK80x6ZpgVrl1RNVThyM8lI=", nullptr, [&now] { return now; });
    const QSignalSpy changes(&lock, &SettingsLock::changed);
    for (const auto wait : {0ms, 0ms, 1000ms, 2000ms, 4000ms}) {
        QVERIFY(!lock.unlock("guess"));
        QCOMPARE(lock.wait(), wait);
        now += wait;
    }
    for (int guess = 0; guess < 40; ++guess) {
        QVERIFY(!lock.unlock("guess"));
        now += lock.wait();
    }
    QVERIFY(!lock.unlock("guess"));
    QVERIFY2(!lock.unlock("password") && lock.locked(), "not before the wait is over");
    QCOMPARE(lock.wait(), 5min);
    now += 5min;
    QVERIFY(lock.unlock("password"));
    QCOMPARE(changes.size(), 1);
    lock.lock();
    QVERIFY(!lock.unlock("guess"));
    QCOMPARE(lock.wait(), 0ms);
}

void TestSettingsLock::lockedSettingsStayAsTheyAre()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath("settings.conf");
    Config config;
    config.settingsLock = SettingsLock::stored("open sesame");
    config.save(file);
    const auto onDisk = [&file] {
        Config stored;
        stored.load(file);
        return stored;
    };
    RunConfig run(file);
    const Config before = run.live();
    const QSignalSpy locked(&run.lock(), &SettingsLock::changed);
    QVERIFY(run.lock().locked());
    QVERIFY(!run.edit([](Config &edited) { edited.inputUdpPort1 = 1; }));
    QVERIFY(!run.edit([](Config &edited) { edited.settingsLock.clear(); }));
    QVERIFY2(!run.edit([](Config &edited) {
        edited.mapWeatherVisible = true;
        edited.mapWeatherOpacity = 3;
    }),
        "not the half of it either");
    QVERIFY(!Config::changedGroups(run.live(), before));
    QVERIFY2(run.edit([](Config &edited) { edited.mapWeatherVisible = true; }), "the scope is worked with");
    QVERIFY(run.live().mapWeatherVisible && run.flush() && !onDisk().mapWeatherVisible);

    QVERIFY(run.lock().unlock("open sesame"));
    QVERIFY(run.edit([](Config &edited) { edited.inputUdpPort1 = 4321; }) && run.flush());
    QCOMPARE(onDisk().inputUdpPort1, 4321);
    QVERIFY2(!onDisk().mapWeatherVisible, "what was switched while locked holds for the run");
    QVERIFY(run.edit([](Config &edited) { edited.settingsLock.clear(); }) && run.flush());
    run.lock().lock();
    QVERIFY(!run.lock().locked() && onDisk().settingsLock.isEmpty());
    QCOMPARE(locked.size(), 2);
}

void TestSettingsLock::asksBeforeWhatNeedsThePassword()
{
    SettingsLock lock(SettingsLock::stored("x"));
    int done = 0;
    std::function<void()> asked;
    lock.whenUnlocked([&done] { ++done; });
    lock.setQuestion([&asked](const std::function<void()> &action) { asked = action; });
    lock.whenUnlocked([&done] { ++done; });
    QVERIFY(asked && done == 0);
    asked();
    QVERIFY(lock.unlock("x"));
    lock.whenUnlocked([&done] { ++done; });
    QCOMPARE(done, 2);
}

VYX_TEST(TestSettingsLock)
#include "tst_settings_lock.moc"
