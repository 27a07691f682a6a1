#include "test_files.h"
#include "test_program.h"
#include "vyx-asterix/assess_command.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

// The command around the check, which has tests of its own.
class TestAssessCommand : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsOfRecording_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<bool>("stopped");
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("sensors"); // -1: nothing is written

        const QByteArray north = QByteArray::fromHex("22000B F0 190B 01 000000 00");
        QTest::newRow("a radar") << QByteArray(north).repeated(3) << false << 0 << 1;
        QTest::newRow("no radar") << QByteArray::fromHex("150006801901") << false << 0 << 0;
        QTest::newRow("no data") << QByteArray("hello, world") << false << 1 << -1;
        QTest::newRow("interrupted") << QByteArray(north).repeated(3) << true << 1 << 0;
    }

    void tellsOfRecording()
    {
        QFETCH(QByteArray, contents);
        QFETCH(bool, stopped);
        QFETCH(int, status);
        QFETCH(int, sensors);
        const QTemporaryDir folder;
        CommandLine line;
        line.fileName = writtenTo(folder.filePath("f.ast"), contents).toStdString();
        line.isJson = true;
        QByteArray out;
        QByteArray err;
        const std::atomic<bool> stop{stopped};
        const int found = runAssess(
            line, [&](std::string_view text) { return out.append(text.data(), static_cast<int>(text.size())), true; },
            [&](std::string_view text) { err.append(text.data(), static_cast<int>(text.size())); }, stop);
        QVERIFY2(found == status, err.constData());
        QCOMPARE(err.isEmpty(), status == 0);
        const QJsonObject json = QJsonDocument::fromJson(out).object();
        QCOMPARE(json.isEmpty() ? -1 : static_cast<int>(json[QLatin1String("sensors")].toArray().size()), sensors);
    }
};

VYX_TEST(TestAssessCommand)
#include "tst_assess_command.moc"
