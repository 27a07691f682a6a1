#include "asterix/asterix.h"
#include "processors/video_processor.h"
#include "test_program.h"

#include <QTest>

class TestVideoProcessor final : public QObject {
    Q_OBJECT

private:
    // Four cells; format are the items 048 and 049 in hexadecimal.
    static void send(VideoProcessor &processor, const QByteArray &format)
    {
        const QByteArray octets =
            QByteArray::fromHex("f00020 cbc0 190a 02 0000 0010 00000000 00000190" + format + "01 01020304");
        _ast_datablock_t block;
        const auto *data = reinterpret_cast<const unsigned char *>(octets.constData());
        QVERIFY(ast_datablock_smart_decode(&block, data, static_cast<std::size_t>(octets.size())));
        processor.procAsterixMessage(block);
    }

private Q_SLOTS:
    void otherFormatsAreDropped()
    {
        const QString unsupported = "Unsupported video resolution or compressed video, record dropped.";
        const std::pair<const char *, QString> rows[]{{"8004 0004 000004", unsupported},
            {"0003 0004 000004", unsupported}, {"0005 0004 000004", unsupported},
            {"0004 0004 000005", "Video vector error 7, record dropped."}}; // more cells than there are
        for (const auto &[format, warning] : rows) {
            VideoProcessor processor;
            qint64 milliseconds = 0;
            processor.setMonotonicClock([&milliseconds] { return milliseconds; });
            QStringList said; // with the time
            connect(&processor, &VideoProcessor::message, this,
                [&](LogLevel, const QString &text) { said += QStringLiteral("%1 ").arg(milliseconds) + text; });
            QList<VideoProcessor::Radial> radials;
            connect(&processor, &VideoProcessor::radialReady, this, [&](const auto &radial) { radials += radial; });
            for (const qint64 time : {0, 10, 999, 1000, 1999}) { // logged once a second
                milliseconds = time;
                send(processor, format);
            }
            QCOMPARE(said, QStringList({"0 Video Processor: " + warning, "1000 Video Processor: " + warning}));
            QVERIFY(processor.allowLog(7777)); // each warning by itself
            QCOMPARE(radials.size(), 0);
            send(processor, "0004 0004 000004");
            QCOMPARE(radials.size(), 1);
            QCOMPARE(radials.first().timeOfDay, -1.0);
        }
    }
};

VYX_TEST(TestVideoProcessor)
#include "tst_video_processor.moc"
