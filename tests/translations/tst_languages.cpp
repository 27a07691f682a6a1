#include "app/config.h"
#include "app/languages.h"
#include "settings/display_config_page.h"
#include "test_program.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

class TestLanguages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offersEveryLanguageByItsOwnName();
    void englishCounts();
    void speaksTheLanguageChosen();
    void fileInTheWorkingDirectoryWins();
    void settingsOfferThem();
};

void TestLanguages::offersEveryLanguageByItsOwnName()
{
    QStringList offered;
    for (const Languages::Language &language : Languages::available()) {
        offered.append(language.code + ' ' + language.name);
    }
    QCOMPARE(offered, QStringList({"en English", "de Deutsch", QString::fromUtf8("zh_CN 简体中文")}));
}

void TestLanguages::englishCounts()
{
    Languages::install("en_US");
    const char *const text = "%1, %2, %n message(s)";
    QCOMPARE(QCoreApplication::translate("ReplayWindow", text, nullptr, 1), QString("%1, %2, 1 message"));
    QCOMPARE(QCoreApplication::translate("ReplayWindow", text, nullptr, 3), QString("%1, %2, 3 messages"));
    QCOMPARE(QCoreApplication::translate("Actions", "Start Input"), QString("Start Input"));
}

void TestLanguages::speaksTheLanguageChosen()
{
    Languages::install("fi");
    QCOMPARE(Languages::spoken(), QString("en"));
    Languages::install("de_AT"); // of no country of its own
    QCOMPARE(Languages::spoken(), QString("de"));
    QCOMPARE(QCoreApplication::translate("Actions", "Start Input"), QString("Eingang starten"));
    Languages::install("zh_CN");
    QCOMPARE(QCoreApplication::translate("Actions", "Start Input"), QString::fromUtf8("启动输入"));
}

void TestLanguages::fileInTheWorkingDirectoryWins()
{
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QVERIFY(QFile::copy(":/translations/vyxdisplay_zh_CN.qm", folder.filePath("vyxdisplay_de.qm")));
    QVERIFY(QDir::setCurrent(folder.path()));
    Languages::install("de");
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(QCoreApplication::translate("Actions", "Start Input"), QString::fromUtf8("启动输入"));
}

void TestLanguages::settingsOfferThem()
{
    DisplayConfigPage page;
    auto *box = page.findChild<QComboBox *>("displayLanguage");
    auto *note = page.findChild<QWidget *>("languageNote");
    QVERIFY(box && note);
    Languages::install("en");
    page.load(Config());
    QVERIFY(note->isHidden());
    QTest::keyClicks(box, "Deu");
    QVERIFY(!note->isHidden());
    Config config;
    page.store(&config);
    QCOMPARE(config.displayLanguage, QString("de"));

    config.displayLanguage = "fi"; // whose file has gone
    page.load(config);
    QVERIFY2(!note->isHidden(), "it is not spoken yet");
    page.store(&config);
    QCOMPARE(config.displayLanguage, QString("fi"));
}

VYX_TEST(TestLanguages)

#include "tst_languages.moc"
