#include "app/run_config.h"
#include "app/settings_owner.h"
#include "app/start_guard.h"
#include "app/ui_state.h"
#include "test_program.h"

#include <QCoreApplication>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

// What more than one process, or one start after the other, have to do with each other.
class TestSettingsOwner final : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_directory;

    static QByteArray answer(QProcess &child, const QString &directory)
    {
        child.start(QCoreApplication::applicationDirPath() + "/app_child", {"own", directory});
        return child.waitForReadyRead(5000) ? child.readLine().trimmed() : QByteArray();
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("XDG_CONFIG_HOME", m_directory.path().toUtf8());
        QCoreApplication::setApplicationName("VyxDisplay");
    }

    void onlyTheFirstProcessKeepsSettings()
    {
        const QString settings = m_directory.filePath("new");
        QProcess first;
        QCOMPARE(answer(first, settings), QByteArray("owns"));
        {
            const SettingsOwner late(settings);
            QVERIFY(!SettingsOwner::mayWrite());
            UiState::saveValue("window", "key", "late");
            QCOMPARE(UiState::value("window", "key"), QByteArray());
            const QString file = m_directory.filePath("late.conf");
            RunConfig config(file, std::chrono::milliseconds(0));
            QSignalSpy told(&config, &RunConfig::writeFailed);
            for (const char *name : {"one", "two"}) {
                config.edit([name](Config &edited) { edited.sensorName = name; });
                QVERIFY(config.flush());
            }
            QCOMPARE(told.size(), 1);
            QVERIFY(!QFile::exists(file));
            QCOMPARE(config.live().sensorName, QString("two"));
        }
        first.kill(); // without leave
        QVERIFY(first.waitForFinished());
        const SettingsOwner next(settings);
        QVERIFY(SettingsOwner::mayWrite());
        UiState::saveValue("window", "key", "kept");
        QCOMPARE(UiState::value("window", "key"), QByteArray("kept"));
        QProcess second;
        QCOMPARE(answer(second, settings), QByteArray("is late"));
        second.kill();
        second.waitForFinished();
    }

    void twoCrashesInARowAreCounted()
    {
        const auto crashed = [] { return UiState::value("start", "unfinished"); };
        for (const bool well : {true, true, false, false}) {
            const QByteArray before = crashed();
            QByteArray after;
            {
                const StartGuard guard;
                QCOMPARE(guard.startsWell(), well);
                after = crashed();
            }
            QCOMPARE(crashed(), QByteArray("0")); // an orderly end
            UiState::saveValue("start", "unfinished", after); // as if there had been none
            QVERIFY(before != after);
        }
    }
};

VYX_TEST(TestSettingsOwner)
#include "tst_settings_owner.moc"
