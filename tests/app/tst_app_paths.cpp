#include "app/app_paths.h"
#include "test_program.h"

#include <QDir>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

// What is decided once per process is asked of a child, which runs from where its executable was copied to.
namespace {

using Answers = QMap<QString, QString>;

Answers ask(const QString &directory, const QStringList &arguments)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", directory + "/home/config");
    environment.insert("XDG_DATA_HOME", directory + "/home/share");
    QProcess child;
    child.setProcessEnvironment(environment);
    child.start(directory + "/child", arguments);
    child.waitForFinished();
    Answers answers;
    for (const auto &line : QString::fromUtf8(child.readAllStandardOutput()).split('\n')) {
        answers[line.section('=', 0, 0)] = line.section('=', 1);
    }
    return answers;
}

} // namespace

class TestAppPaths : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void locations_data()
    {
        QTest::addColumn<bool>("portable");
        QTest::addColumn<QString>("profile");
        QTest::addColumn<QString>("configDir"); // below the directory of the executable
        QTest::addColumn<QString>("appDataDir");
        const auto share = QStringLiteral("/home/share/Korvane/VyxDisplay");
        const auto data = QStringLiteral("/data/VyxDisplay");
        const auto demo = QStringLiteral("/vyxdisplay-demo");
        const auto config = QStringLiteral("/home/config");
        QTest::newRow("per user") << false << "" << config << share;
        QTest::newRow("per user, profile") << false << "demo" << config + demo << share + demo;
        QTest::newRow("portable") << true << "" << data << data;
        QTest::newRow("portable, profile") << true << "demo" << data + demo << data + demo;
    }

    void locations()
    {
        QFETCH(const bool, portable);
        QFETCH(const QString, profile);
        QFETCH(const QString, configDir);
        const auto directory = install(QTest::currentDataTag(), portable);
        const auto answers = ask(directory, {"paths", profile});
        QCOMPARE(answers["portable"], QString(portable ? "yes" : "no"));
        QCOMPARE(answers["configDir"], directory + configDir);
        QTEST(answers["appDataDir"].mid(directory.size()), "appDataDir");
        QCOMPARE(answers["crashLogFile"], directory + configDir + "/vyxdisplay_crash.log");
        const bool created = portable || !profile.isEmpty();
        QCOMPARE(QDir(answers["configDir"]).exists(), created);
        QCOMPARE(QDir(answers["appDataDir"]).exists(), created);
        QVERIFY(!portable || !QDir(directory + "/home").exists());
    }

    void profileNamesLeaveNoDirectory()
    {
        for (const char *good : {"tower", "TWR-2_north.1", "..a", "a", "-"}) {
            QVERIFY2(AppPaths::isProfileName(good), good);
        }
        for (const QString &bad : {QString(), QString(".."), QString("."), QString("a/b"), QString("../a"),
                 QString("a b"), QString("t\u00fcrm"), QString("a\n"), QString(65, 'a')}) {
            QVERIFY2(!AppPaths::isProfileName(bad), qPrintable(bad));
        }
        for (const bool portable : {false, true}) {
            const auto directory = install(portable ? "portable profiles" : "profiles", portable);
            for (const char *profile : {"tower", "demo", "", "apron"}) {
                QVERIFY(ask(directory, {"paths", profile}).contains("profiles"));
            }
            QCOMPARE(ask(directory, {"paths", "tower"})["profiles"], QString("apron tower"));
            QCOMPARE(ask(directory, {"paths", ""})["profiles"], QString("apron tower"));
        }
    }

    void storesPathsOfThePortableTreeRelative()
    {
        const auto portable = install("portable", true);
        const auto perUser = install("per user", false);
        // The path, how it is stored and what it is resolved to.
        for (const auto &row : QList<QStringList>{{"", "", ""}, {"%1/maps/x.map", "maps/x.map", "%1/maps/x.map"},
                 {"maps/x.map", "maps/x.map", "%1/maps/x.map"}, {"%1/..maps/x.map", "..maps/x.map", "%1/..maps/x.map"},
                 {"%1-other/x.map", "%1-other/x.map", "%1-other/x.map"}, {"%1/..", "%1/..", "%1/.."}}) {
            const auto texts = QStringList(row).replaceInStrings("%1", portable);
            auto answers = ask(portable, {"paths", "", texts[0]});
            QCOMPARE(answers["stored"], texts[1]);
            QCOMPARE(answers["resolved"], texts[2]);
            answers = ask(perUser, {"paths", "", texts[0]});
            QCOMPARE(answers["stored"], texts[0]);
            QCOMPARE(answers["resolved"], texts[0]);
        }
    }

    void debugMarker()
    {
        const auto directory = install("debug", false);
        QCOMPARE(ask(directory, {"paths", ""})["debug"], QStringLiteral("no"));
        QFile marker(directory + "/child.dbg");
        QVERIFY(marker.open(QIODevice::WriteOnly));
        QCOMPARE(ask(directory, {"paths", ""})["debug"], QStringLiteral("yes"));
    }

private:
    // A copy of the child in a new directory below the temporary one.
    QString install(const QString &name, bool portable) const
    {
        const auto directory = QDir(m_root.path()).canonicalPath() + '/' + name;
        QDir().mkpath(directory + (portable ? "/data" : ""));
        QFile::copy(QCoreApplication::applicationDirPath() + "/app_child", directory + "/child");
        return directory;
    }

    QTemporaryDir m_root;
};

VYX_TEST(TestAppPaths)
#include "tst_app_paths.moc"
