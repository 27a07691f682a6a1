#include "app/app_identity.h"
#include "app/ui_state.h"

#include <QSettings>
#include <QStandardPaths>
#include <QTest>

class tst_UiState : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keepsBytesByGroupAndKey();
    void isEmptyWhereNothingWasSaved();
};

void tst_UiState::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
    setApplicationIdentity();
    QFile::remove(UiState::filePath());
}

void tst_UiState::keepsBytesByGroupAndKey()
{
    QByteArray everyByte;
    for (int byte = 0; byte < 256; ++byte)
        everyByte.append(static_cast<char>(byte));
    UiState::saveValue("MainWindow", "windowState", everyByte);
    UiState::saveGeometry("MainWindow", "main");
    UiState::saveGeometry("Dialog", "dialog");

    QCOMPARE(UiState::value("MainWindow", "windowState"), everyByte);
    QCOMPARE(UiState::geometry("MainWindow"), QByteArray("main"));
    QCOMPARE(UiState::geometry("Dialog"), QByteArray("dialog"));
    QVERIFY(UiState::filePath().endsWith("/vyxdisplay_uistate.conf"));
    const QSettings file(UiState::filePath(), QSettings::IniFormat);
    QCOMPARE(file.value("Dialog/windowGeometry").toByteArray(), QByteArray("dialog"));
}

void tst_UiState::isEmptyWhereNothingWasSaved()
{
    QCOMPARE(UiState::value("MainWindow", "no such key"), QByteArray());
    QCOMPARE(UiState::geometry("no such group"), QByteArray());
}

QTEST_GUILESS_MAIN(tst_UiState)
#include "tst_ui_state.moc"
