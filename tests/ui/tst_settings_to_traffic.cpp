#include "played_scenario.h"
#include "window_fixture.h"

#include "app/uap_profile.h"
#include "settings/config_window.h"
#include "test_program.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>

namespace {

// One aircraft and one vehicle about the fixture's sensor, which every kind of sensor sees in its way.
constexpr char Frame[] = R"({"name": "t", "startTime": "2025-06-01T06:00:00Z",
    "%1": [{"name": "S", "sac": 1, "sic": 2, "lat": 48, "lon": 16 %2}], "flights": [
    {"callsign": "VYX1", "address": "780A12", "squawk": "1234", "performance": {"speed": 450},
        "route": [{"lat": 48.5, "lon": 16.2, "altitude": 20000}, {"lat": 47.5, "lon": 17.5, "altitude": 30000}]},
    {"transponder": "none", "vehicle": true, "performance": {"speed": 20},
        "route": [{"lat": 48.005, "lon": 15.99, "altitude": 20}, {"lat": 47.995, "lon": 15.99}]}]})";

// With the keys, as an operator who has moved to the field.
bool choose(QWidget *window, const char *field, int value)
{
    auto *box = window->findChild<QComboBox *>(field);
    QTest::keyClick(box, Qt::Key_Home);
    for (int step = 1; step < box->count() && box->currentData().toInt() != value; ++step) {
        QTest::keyClick(box, Qt::Key_Down);
    }
    return box->currentData().toInt() == value;
}

int profile(const char *identifier)
{
    for (int i = 0; i < int(uapProfiles().size()); ++i) {
        if (qstrcmp(uapProfiles()[i].identifier, identifier) == 0) {
            return i;
        }
    }
    return -1;
}

} // namespace

// From the settings window alone, over a real socket, to tracks: whatever it offers can be chosen and works.
class TestSettingsToTraffic final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatIsChosenIsShown_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<QString>("more");
        QTest::addColumn<int>("sensor");
        QTest::addColumn<int>("processor");
        QTest::addColumn<int>("uap");
        using Processor = Config::ProcessorType;
        const auto row = [](const char *name, const char *kind, const QString &more, SensorType sensor,
                             Processor processor, int uap) {
            QTest::newRow(name) << QByteArray(kind) << more << int(sensor) << int(processor) << uap;
        };
        row("SIR-M radar", "radars", R"(, "category": "sirm")", RadarSensor, Processor::AleniaSirM, 0);
        row("Mode S receiver", "modesReceivers", {}, AdsbSensor, Processor::ModeS, 0);
        row("multilateration", "mlat", {}, MlatSensor, Processor::Asterix, 0);
        row("system tracks", "sdps", {}, SdpsSensor, Processor::Asterix, 0);
        row("surface radar", "smr", {}, SmrSensor, Processor::Asterix, 0);
        for (int uap = 0; uap < int(uapProfiles().size()); ++uap) {
            const QByteArray name = uapProfiles()[uap].identifier;
            row(("radar, profile " + name).constData(), "radars", {}, RadarSensor, Processor::Asterix, uap);
        }
        for (const char *edition : {"0.23", "0.26", "2.1", "2.7"}) {
            const QByteArray name = QByteArray("cat021-") + edition;
            const QString more = QStringLiteral(R"(, "edition": "%1")").arg(edition);
            row(name.constData(), "adsb", more, AdsbSensor, Processor::Asterix, profile(name.constData()));
        }
    }

    void whatIsChosenIsShown()
    {
        QFETCH(QByteArray, kind);
        QFETCH(QString, more);
        QFETCH(int, sensor);
        QFETCH(int, processor);
        QFETCH(int, uap);
        WindowFixture fixture;
        const auto window = WindowFixture::makeWindow();
        window->showConfigWindow();
        auto *settings = window->findChild<ConfigWindow *>();
        QVERIFY(choose(settings, "sensorType", sensor));
        QVERIFY(choose(settings, "processorType", processor));
        QVERIFY(choose(settings, "processorAsterixUap", uap));
        const auto *buttons = settings->findChild<QDialogButtonBox *>();
        QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
        QVERIFY(WindowFixture::openInput(*window));

        const QString json = QString::fromLatin1(Frame).arg(QLatin1String(kind), more);
        const Scenario scenario = PlayedScenario::read(json.toUtf8().constData());
        TrafficSource source(scenario, 1);
        QUdpSocket socket;
        while (source.nextTime() < 20) {
            for (const QByteArray &datagram : *source.next().datagrams) {
                socket.writeDatagram(datagram, QHostAddress::LocalHost, fixture.port);
            }
        }
        QTRY_VERIFY(window->newestSnapshot() && !window->newestSnapshot()->tracks.isEmpty());
        QVERIFY(WindowFixture::close(*window));
    }
};

VYX_TEST(TestSettingsToTraffic)
#include "tst_settings_to_traffic.moc"
