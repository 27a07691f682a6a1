#include <QDir>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

// What is decided once per process is asked of a child, which runs from where its executable was copied to.
class tst_AppPaths : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void locations_data();
    void locations();
    void storesPathsOfThePortableTreeRelative_data();
    void storesPathsOfThePortableTreeRelative();
    void debugMarker();

private:
    // A copy of the child in a new directory below the temporary one.
    QString install(const QString &name, bool portable) const;

    QTemporaryDir m_root;
};

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
    for (const auto &line : QString::fromUtf8(child.readAllStandardOutput()).split('\n'))
        answers[line.section('=', 0, 0)] = line.section('=', 1);
    return answers;
}

} // namespace

QString tst_AppPaths::install(const QString &name, bool portable) const
{
    const auto directory = QDir(m_root.path()).canonicalPath() + '/' + name;
    QDir().mkpath(directory + (portable ? "/data" : ""));
    QFile::copy(QCoreApplication::applicationDirPath() + "/app_child", directory + "/child");
    return directory;
}

void tst_AppPaths::locations_data()
{
    QTest::addColumn<bool>("portable");
    QTest::addColumn<QString>("profile");
    QTest::addColumn<QString>("configDir"); // below the directory of the executable
    QTest::addColumn<QString>("appDataDir");
    const auto share = QStringLiteral("/home/share/Korvane/VyxDisplay");
    const auto data = QStringLiteral("/data/VyxDisplay");
    const auto demo = QStringLiteral("/vyxdisplay-demo");
    QTest::newRow("per user") << false << ""
                              << "/home/config" << share;
    QTest::newRow("per user, profile") << false << "demo"
                                       << "/home/config" + demo << share + demo;
    QTest::newRow("portable") << true << "" << data << data;
    QTest::newRow("portable, profile") << true << "demo" << data + demo << data + demo;
}

void tst_AppPaths::locations()
{
    QFETCH(const bool, portable);
    QFETCH(const QString, profile);
    QFETCH(const QString, configDir);
    const auto directory = install(QTest::currentDataTag(), portable);
    const auto answers = ask(directory, {"paths", profile});
    QCOMPARE(answers["portable"], QString(portable ? "yes" : "no"));
    QCOMPARE(answers["exeDir"], directory);
    QCOMPARE(answers["configDir"], directory + configDir);
    QTEST(answers["appDataDir"].mid(directory.size()), "appDataDir");
    QCOMPARE(answers["configFile"], directory + configDir + "/vyxdisplay_settings.conf");
    QCOMPARE(answers["crashLogFile"], directory + configDir + "/vyxdisplay_crash.log");
    const bool created = portable || !profile.isEmpty();
    QCOMPARE(QDir(answers["configDir"]).exists(), created);
    QCOMPARE(QDir(answers["appDataDir"]).exists(), created);
    QVERIFY(!portable || !QDir(directory + "/home").exists());
}

void tst_AppPaths::storesPathsOfThePortableTreeRelative_data()
{
    QTest::addColumn<QString>("path"); // %1: the directory of the executable
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("resolved");
    QTest::newRow("none") << ""
                          << ""
                          << "";
    QTest::newRow("inside") << "%1/maps/x.map"
                            << "maps/x.map"
                            << "%1/maps/x.map";
    QTest::newRow("relative already") << "maps/x.map"
                                      << "maps/x.map"
                                      << "%1/maps/x.map";
    QTest::newRow("a name that begins with dots") << "%1/..maps/x.map"
                                                  << "..maps/x.map"
                                                  << "%1/..maps/x.map";
    QTest::newRow("beside") << "%1-other/x.map"
                            << "%1-other/x.map"
                            << "%1-other/x.map";
    QTest::newRow("the directory above") << "%1/.."
                                         << "%1/.."
                                         << "%1/..";
    QTest::newRow("far outside") << "/x.map"
                                 << "/x.map"
                                 << "/x.map";
}

void tst_AppPaths::storesPathsOfThePortableTreeRelative()
{
    QFETCH(QString, path);
    QFETCH(QString, stored);
    QFETCH(QString, resolved);
    const auto portable = install("portable", true);
    for (auto *const text : {&path, &stored, &resolved})
        text->replace("%1", portable);
    const auto answers = ask(portable, {"paths", "", path});
    QCOMPARE(answers["stored"], stored);
    QCOMPARE(answers["resolved"], resolved);

    const auto perUser = ask(install("per user", false), {"paths", "", path});
    QCOMPARE(perUser["stored"], path);
    QCOMPARE(perUser["resolved"], path);
}

void tst_AppPaths::debugMarker()
{
    const auto directory = install("debug", false);
    QCOMPARE(ask(directory, {"paths", ""})["debug"], QStringLiteral("no"));
    QFile marker(directory + "/child.dbg");
    QVERIFY(marker.open(QIODevice::WriteOnly));
    QCOMPARE(ask(directory, {"paths", ""})["debug"], QStringLiteral("yes"));
}

QTEST_GUILESS_MAIN(tst_AppPaths)
#include "tst_app_paths.moc"
