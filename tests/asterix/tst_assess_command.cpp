#include "test_program.h"
#include "vyx-asterix/assess_command.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

// The command around the check, which has tests of its own.
class TestAssessCommand : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsArguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("error"); // how it begins; empty: none

        QTest::newRow("whole") << QStringList{"assess", "--sensor", "25/11", "--site", "-40.5,116.25,45", "--json",
            "--report", "a.pdf", "f.pcap"}
                               << QString();
        QTest::newRow("site without height")
            << QStringList{"assess", "--sensor", "25/11", "--site", "40,-116", "f"} << QString();
        QTest::newRow("no source") << QStringList{"assess", "--sensor", "25", "f"} << "--sensor takes SAC/SIC";
        QTest::newRow("no such source") << QStringList{"assess", "--sensor", "25/256", "f"} << "--sensor takes SAC/SIC";
        QTest::newRow("no place") << QStringList{"assess", "--sensor", "25/11", "--site", "91,1", "f"}
                                  << "--site takes";
        QTest::newRow("whose place") << QStringList{"assess", "--site", "40,116", "f"} << "--site needs one --sensor";
        QTest::newRow("of another command") << QStringList{"stat", "--json", "f"} << "unknown option";
        QTest::newRow("of the others") << QStringList{"assess", "--uap", "48=1.32", "f"} << "unknown option";
    }

    void readsArguments()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, error);
        std::vector<std::string> strings;
        for (const QString &argument : arguments) {
            strings.push_back(argument.toStdString());
        }
        CommandLine line;
        std::string found;
        QCOMPARE(CommandLine::parse(strings, line, found), error.isEmpty());
        QVERIFY2(QString::fromStdString(found).startsWith(error), found.c_str());
        if (qstrcmp(QTest::currentDataTag(), "whole") == 0) {
            QCOMPARE(line.assess.sensors, std::vector<int>{25 * 256 + 11});
            QVERIFY(line.assess.site[0] == -40.5 && line.assess.site[1] == 116.25 && line.assess.site[2] == 45.0);
            QVERIFY(line.isJson && line.assess.reportName == "a.pdf" && line.fileName == "f.pcap");
        }
    }

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
        QFile file(folder.filePath(QStringLiteral("f.ast")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
        file.close();
        CommandLine line;
        line.fileName = file.fileName().toStdString();
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
