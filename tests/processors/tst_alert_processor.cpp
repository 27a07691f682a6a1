#include "asterix/asterix.h"
#include "processors/alert_processor.h"
#include "test_program.h"
#include "tracking/alert_manager.h"
#include "tracking/track_manager.h"

#include <QTest>

namespace {

using Message = _ast_datarecord_004_t;

Message message(std::uint8_t type, std::optional<std::uint16_t> id = {}, std::optional<std::uint16_t> track1 = {},
    std::optional<std::uint16_t> track2 = {}, std::optional<std::uint16_t> modeA = {})
{
    Message record{};
    record.valid = true;
    record.i000 = {true, type};
    record.i040 = {id.has_value(), id.value_or(0)};
    record.i030 = {track1.has_value(), track1.value_or(0)};
    record.i035 = {track2.has_value(), track2.value_or(0)};
    record.i170.present = record.i170.mode3APresent = modeA.has_value();
    record.i170.mode3A = modeA.value_or(0);
    return record;
}

Message alive(std::initializer_list<_ast_snet_status_t> functions)
{
    Message record = message(1);
    record.i060.present = true;
    for (const auto &function : functions) {
        record.i060.entries[record.i060.count++] = function;
    }
    return record;
}

QStringList said;

} // namespace

Q_DECLARE_METATYPE(QList<Message>)

class TestAlertProcessor final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // One message a second. Expected: all that is told, then each alert with its type, state, seconds of start and last
    // update, and how it calls its tracks: T8 and A0011 while it is linked to tracks 8 and 9.
    void messages_data()
    {
        QTest::addColumn<QList<Message>>("messages");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QList<Message> &messages, const QStringList &expected) {
            QTest::newRow(name) << messages << expected;
        };
        enum : std::uint8_t { Msaw = 4, Apw = 5, Stca = 7, End = 17 };
        const auto mixed = alive({{6, false}, {Msaw, false}, {Apw, true}, {Stca, true}});
        row("changes of status are told", {mixed, mixed, alive({{Apw, false}})},
            {"MSAW off", "APW on", "STCA on", "APW off"});
        row("functions and messages of no use", {alive({{9, true}, {6, false}}), message(2), Message{}},
            {"Unsupported CAT004 status: ALM (009)", "Unsupported CAT004 message type: RAMLD (002)"});
        row("incomplete",
            {message(1), message(End), message(Msaw, {}, 8), message(Msaw, 5), message(Apw), //
                message(Apw, 5), message(Stca, {}, 8, 9), message(Stca, 5, {}, 9), message(Stca, 5, 8)},
            {"CAT004 ALIVE message: Invalid staus.", "CAT004 EOC message: Invalid alert id.",
                "CAT004 MSAW message: Invalid alert id.", "CAT004 MSAW message: Invalid track number.",
                "CAT004 APW message: Invalid alert id.", "CAT004 APW message: Invalid track number.",
                "CAT004 STCA message: Invalid alert id.", "CAT004 STCA message: Invalid track 1 number.",
                "CAT004 STCA message: Invalid track 2 number."});
        row("a refreshed MSAW changes its track", {message(Msaw, 5, 8), message(Msaw, 5, 9)},
            {"CAT004 MSAW message: Track number changed 8 => 9", "MSAW Active 0-1 A0011 ---"});
        row("an APW starts anew and keeps its link", {message(Apw, 5, 8), message(Apw, 5, 9)},
            {"APW Active 1-1 T8 N/A"});
        row("an STCA starts anew and keeps its links", {message(Stca, 5, 8, 9), message(Stca, 5, 9, 8)},
            {"STCA Active 1-1 T8 A0011"});
        row("other messages refresh an MSAW", {message(Msaw, 5, 8), message(Apw, 5, 9), message(Stca, 5, 8, 9)},
            {"CAT004 APW message: Track number changed 8 => 9", "CAT004 STCA message: Track 1 number changed 9 => 8",
                "CAT004 STCA message: Track 2 number changed 0 => 9", "MSAW Active 0-2 T8 ---"});
        row("codes stay", {message(Stca, 5, 20, 21, 01234), message(Stca, 5, 20, 22)}, //
            {"STCA Active 1-1 [A1234] [#0022]"});
        row("a number that a track had before", {message(Msaw, 5, 7)}, {"MSAW Active 0-0 [#0007] ---"});
        row("conflicts end", {message(Msaw, 5, 8), message(End, 6), message(End, 5)}, {"MSAW End 0-2 T8 ---"});
        row("ended alerts come back", {message(Msaw, 5, 8), message(End, 5), message(Msaw, 5, 8)},
            {"MSAW Active 2-2 T8 ---"});
    }

    void messages()
    {
        QFETCH(QList<Message>, messages);
        const auto alerts = QSharedPointer<AlertManager>::create();
        const auto tracks = QSharedPointer<TrackManager>::create();
        AlertProcessor processor(alerts, tracks);
        said.clear();
        connect(&processor, &AlertProcessor::message, this, [](LogLevel, const QString &text) { said += text; });
        connect(&processor, &AlertProcessor::alertStatusChanged, this,
            [](Alert::Type type, bool on) { said += Alert::typeString(type) + (on ? " on" : " off"); });
        for (const unsigned int number : {8U, 9U}) {
            const auto track = tracks->createTrack();
            track->setOtherTrackNumber(number);
            track->setModeACode(number);
            track->setModeACodeValid(true);
            track->setModeSCallsign(number == 8 ? QStringLiteral("T8") : QString());
            tracks->registerTrack(track);
        }
        const auto handler =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) { said += text; });
        const auto clock = std::make_shared<Clock>();
        alerts->setClock(clock);
        // 7 has become 8: an alert of another aircraft under the old number is not its alert.
        const auto renumbered = tracks->findTrackByOtherTrackNum(8);
        renumbered->setOtherTrackNumber(7);
        tracks->registerTrack(renumbered);
        renumbered->setOtherTrackNumber(8);
        tracks->registerTrack(renumbered);
        qint64 second = 0;
        for (const Message &record : messages) {
            clock->startRecorded(QDateTime::fromSecsSinceEpoch(second, Qt::UTC));
            processor.procCat004Message(record);
            ++second;
        }
        qInstallMessageHandler(handler);
        for (const AlertSnapshot &alert : alerts->snapshotAlerts()) {
            said += QStringLiteral("%1 %2 %3-%4 %5 %6")
                        .arg(Alert::typeString(alert.type), alert.stateString)
                        .arg(alert.startTime.toSecsSinceEpoch())
                        .arg(alert.lastUpdate.toSecsSinceEpoch())
                        .arg(alert.track1.text, alert.track2.text);
            const auto linked = alerts->findAlertById(alert.id)->track1();
            QVERIFY(!linked || linked->alerts().contains(alerts->findAlertById(alert.id)));
        }
        QTEST(said, "expected");
    }
};

VYX_TEST(TestAlertProcessor)
#include "tst_alert_processor.moc"
