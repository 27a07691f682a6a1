#include "asterix/asterix.h"
#include "processors/weather_processor.h"
#include "test_program.h"

#include <QTest>

namespace {

using Message = _ast_datarecord_008_t;

Message ofType(std::uint8_t type)
{
    Message record{};
    record.valid = true;
    record.i000 = {true, type};
    return record;
}

Message start(std::optional<std::int8_t> scale, std::optional<unsigned> timeOfDay = {})
{
    Message record = ofType(254);
    record.i100 = {scale.has_value(), scale.value_or(0), 0, 0};
    record.i090 = {timeOfDay.has_value(), timeOfDay.value_or(0), 1.0 / 128};
    return record;
}

// The first vector is from 0 to 1 at 0 degrees, the next from 1 to 2 at 10 degrees.
Message vectors(std::uint8_t count, bool systemCoordinates = false, bool test = false, bool error = false)
{
    Message record = ofType(1);
    record.i020 = {true, systemCoordinates, 3, 0.0, test, error};
    record.i034.present = true;
    record.i034.count = count;
    for (std::uint8_t i = 0; i < count; ++i) {
        record.i034.vectors[i] = {i, std::uint8_t(i + 1), 10.0 * i};
    }
    return record;
}

Message end(std::optional<std::uint16_t> total = {})
{
    Message record = ofType(255);
    record.i120 = {total.has_value(), total.value_or(0)};
    return record;
}

} // namespace

Q_DECLARE_METATYPE(QList<Message>)

class TestWeatherProcessor final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Expected: all that is logged, after its level, and a line for each picture: its time and its last vector.
    void messages_data()
    {
        QTest::addColumn<QList<Message>>("messages");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const QList<Message> &messages, const QStringList &expected) {
            QTest::newRow(name) << messages << expected;
        };
        const QString begun = "1 SOP received (time of day: N/A, scale factor: 7).";
        const QString incomplete = "1 Polar vector record incomplete, record dropped.";
        const QString bad = "1 Test or error polar vector, record dropped.";
        row("complete", {start(9, 86399 * 128 + 64), vectors(2), vectors(100), end(102)},
            {"1 SOP received (time of day: 23:59:59.500, scale factor: 9).",
                "1 2 polar vector(s) received (intensity 3, total 2).",
                "1 100 polar vector(s) received (intensity 3, total 102).",
                "1 EOP received, weather picture complete: 102 of 102 vector(s).", "86399.5: 3 396 400 990"});
        row("no end, vectors lost", {start(7), vectors(2), start(0), vectors(2), end(3)},
            {begun, "1 2 polar vector(s) received (intensity 3, total 2).",
                "3 Incomplete weather picture discarded by new SOP.",
                "1 SOP received (time of day: N/A, scale factor: 0).",
                "1 2 polar vector(s) received (intensity 3, total 2).",
                "3 Incomplete weather picture: 2 of 3 vectors received.",
                "1 EOP received, weather picture incomplete: 2 of 3 vector(s).", "-1: 3 0.0078125 0.015625 10"});
        row("no scale, then that of the picture before",
            {start({}, 0), vectors(1), start(7), end(), start({}), vectors(1), end()},
            {"1 SOP received (time of day: 00:00:00.000, scale factor: N/A).",
                "3 No scaling factor received, weather vectors dropped.",
                "3 Incomplete weather picture discarded by new SOP.", begun,
                "1 EOP received, weather picture: 0 vector(s).", begun,
                "1 1 polar vector(s) received (intensity 3, total 1).", "1 EOP received, weather picture: 1 vector(s).",
                "-1: 3 0 1 0"});
        row("outside a picture", {end(1), vectors(1), ofType(3)},
            {"1 Polar vectors received without SOP, record dropped.", "1 Unsupported CAT008 message type: 3"});
        row("dropped",
            {start(7), vectors(0), vectors(1, true), vectors(1, false, true), vectors(1, false, false, true)},
            {begun, incomplete, "3 Weather vectors in system coordinates are not supported, record dropped.", bad,
                bad});
    }

    void messages()
    {
        QFETCH(QList<Message>, messages);
        WeatherProcessor processor;
        QStringList said;
        connect(&processor, &WeatherProcessor::message, this, [&said](LogLevel level, QString text) {
            said += QString::number(int(level)) + ' ' + text.remove("Weather Processor: ");
        });
        connect(&processor, &WeatherProcessor::pictureReady, this, [&said](const WeatherProcessor::Picture &picture) {
            const auto &last = picture.vectors.last();
            QStringList figures{QString::number(picture.timeOfDay) + ':', QString::number(last.intensity)};
            for (const double figure : {last.startRange, last.endRange, last.azimuth}) {
                figures += QString::number(figure, 'g', 10);
            }
            said += figures.join(' ');
        });
        for (const Message &record : messages) {
            processor.procCat008Record(record);
        }
        QTEST(said, "expected");
    }
};

VYX_TEST(TestWeatherProcessor)
#include "tst_weather_processor.moc"
