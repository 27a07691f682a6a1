#include "settings/config_window.h"
#include "test_program.h"
#include "ui/actions.h"
#include "window_fixture.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QMenu>
#include <QNetworkDatagram>
#include <QSet>
#include <QTimer>

#include <limits>

// What a person can open, all of it.
class TestEveryWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyActionWorksInAFreshProfile();
    void inputsComeAndGoBesideAllWindows();
};

namespace {

constexpr int WarmUp = 4; // inputs, until all that is kept has been made once
// Of 4,096 octets, in resident memory: the allocator and the log account for some. What is freed is kept for a while
// under the address sanitizer.
#ifdef __SANITIZE_ADDRESS__
constexpr qint64 MostPagesMore = std::numeric_limits<qint64>::max();
#else
constexpr qint64 MostPagesMore = 4000;
#endif

QSet<QWidget *> shownWindows()
{
    QSet<QWidget *> shown;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *window : all) {
        if (window->isVisible() && window->windowType() != Qt::ToolTip) {
            shown.insert(window);
        }
    }
    return shown;
}

// Notes what comes up while an action runs, and closes what has an event loop of its own, which would not return.
class WindowWatch {
public:
    WindowWatch() : m_before(shownWindows())
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(5);
    }
    bool sawAny()
    {
        look();
        return !m_seen.isEmpty();
    }
    void closeAll()
    {
        m_timer.stop();
        const QSet<QWidget *> opened = shownWindows() - m_before;
        for (QWidget *window : opened) {
            window->close();
        }
    }

private:
    void look()
    {
        m_seen |= shownWindows() - m_before;
        if (QWidget *modal = QApplication::activeModalWidget(); modal && m_seen.contains(modal)) {
            modal->close();
        }
        if (QWidget *popup = QApplication::activePopupWidget()) {
            popup->close();
        }
    }

    const QSet<QWidget *> m_before;
    QSet<QWidget *> m_seen;
    QTimer m_timer;
};

bool opensAWindow(const ActionSpec &spec)
{
    return QString::fromLatin1(spec.text).trimmed().endsWith(QLatin1String("..."));
}

qint64 residentPages()
{
    QFile statm(QStringLiteral("/proc/self/statm"));
    return statm.open(QIODevice::ReadOnly) ? statm.readAll().split(' ').value(1).toLongLong() : 0;
}

constexpr SensorType Types[] = {RadarSensor, AdsbSensor, MlatSensor, SdpsSensor, SmrSensor};

// One input after the other with a sensor of another type, as the settings window would start it.
bool playOne(MainWindow &window, ConfigWindow &settings, SensorType type)
{
    Config config = window.config();
    config.sensorType = type;
    Q_EMIT settings.configApplied(config);
    if (!WindowFixture::openInput(window)) {
        return false;
    }
    // A plot of CAT048, whatever the sensor.
    const QByteArray plot = QByteArray::fromHex("300011f41001020a40002a0010007000");
    QUdpSocket().writeDatagram(plot, QHostAddress::LocalHost, window.config().inputUdpPort1);
    QTest::qWait(20);
    window.stopInput();
    return QTest::qWaitFor([&window] { return !window.inputOpen(); }, 3000);
}

} // namespace

void TestEveryWindow::everyActionWorksInAFreshProfile()
{
    const WindowFixture fixture;
    QFile::remove(AppPaths::configFile());
    const auto window = WindowFixture::makeWindow();
    const auto &actions = *window->findChild<Actions *>();
    for (const ActionSpec &spec : actionTable()) {
        QAction *action = actions[spec.id];
        if (spec.id == ActionId::Exit || !action->isEnabled() || action->menu()) {
            continue;
        }
        WindowWatch watch;
        action->trigger();
        QVERIFY2(!opensAWindow(spec) || QTest::qWaitFor([&watch] { return watch.sawAny(); }, 2000), spec.text);
        QTest::qWait(10);
        if (action->isCheckable()) {
            action->trigger(); // off and on again
        }
        watch.closeAll();
        window->closeInput();
        QVERIFY2(QTest::qWaitFor([&window] { return !window->inputOpen(); }, 3000), spec.text);
    }
    QVERIFY(WindowFixture::close(*window));
}

// VYX_TEST_CYCLES: how many inputs (10).
void TestEveryWindow::inputsComeAndGoBesideAllWindows()
{
    const WindowFixture fixture;
    const auto window = WindowFixture::makeWindow();
    window->setStopQuestion([] { return true; });
    const auto &actions = *window->findChild<Actions *>();
    for (const ActionId id : {ActionId::Settings, ActionId::Statistics, ActionId::RawView, ActionId::SensorCheck,
             ActionId::ExplainTrack, ActionId::WhyNotShown, ActionId::WeatherIntensity, ActionId::TrackLabelFormat,
             ActionId::RangeRings, ActionId::SensorManager, ActionId::StaticMaps, ActionId::CheatSheet}) {
        actions[id]->trigger();
        QTest::qWait(10);
    }
    auto *settings = window->findChild<ConfigWindow *>();
    QVERIFY(settings);
    const int cycles = std::max(WarmUp + 1, qEnvironmentVariable("VYX_TEST_CYCLES", "10").toInt());
    qsizetype objects = 0;
    qint64 pages = 0;
    for (int cycle = 0; cycle < cycles; ++cycle) {
        QVERIFY2(playOne(*window, *settings, Types[cycle % std::size(Types)]), qPrintable(QString::number(cycle)));
        if (cycle == WarmUp) {
            objects = window->findChildren<QObject *>().size();
            pages = residentPages();
        }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const qsizetype grown = window->findChildren<QObject *>().size() - objects;
    QVERIFY2(grown < cycles - WarmUp, qPrintable(QString::number(grown))); // not one an input
    QVERIFY2(residentPages() - pages < MostPagesMore, qPrintable(QString::number(residentPages() - pages)));
    QVERIFY(WindowFixture::close(*window));
}

VYX_TEST(TestEveryWindow)

#include "tst_every_window.moc"
