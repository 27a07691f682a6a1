// Feeds an engine on its own thread with datagrams over the loopback interface, at a fixed rate, and tells what came
// through: sent, received, lost, and the longest time between two publications of the display snapshot. Exit status 1
// when datagrams were lost or a publication was more than 100 ms late.

#include "engine/data_engine.h"
#include "geo/mercator_projector.h"
#include "plot_datagrams.h"
#include "sensors/radar_sensor_info.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QThread>
#include <QUdpSocket>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

struct Load {
    int rate = 0; // datagrams a second
    int seconds = 0;
    int aircraft = 0;
    int plots = 0; // per datagram
};

struct Outcome {
    qint64 sent = 0;
    qint64 refused = 0; // by the sending socket: not the receiver's losses
    quint64 received = 0;
    qint64 longestGapMs = 0;
    quint64 publications = 0;
    qsizetype tracks = 0;
};

// Sends in bursts of a millisecond's worth, late bursts are caught up with.
void sendPaced(const Load &load, quint16 port, Outcome &outcome)
{
    const QList<QByteArray> datagrams = plotDatagrams(load.aircraft, load.plots);
    QUdpSocket socket;
    const qint64 total = qint64{load.rate} * load.seconds;
    const auto start = Clock::now();
    for (qint64 i = 0; i < total;) {
        const auto elapsed = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start);
        const qint64 due = std::min<qint64>(total, elapsed.count() * load.rate / 1000000);
        for (; i < due; ++i) {
            const bool sent = socket.writeDatagram(datagrams[i % datagrams.size()], QHostAddress::LocalHost, port) > 0;
            ++(sent ? outcome.sent : outcome.refused);
        }
        std::this_thread::sleep_for(1ms);
    }
}

// Watches the publications until the sender is done.
void watch(const SnapshotSlot<DisplaySnapshot> &slot, const std::atomic<bool> &done, Outcome &outcome)
{
    quint64 counter = slot.read().counter;
    const quint64 first = counter;
    auto last = Clock::now();
    while (!done) {
        std::this_thread::sleep_for(1ms);
        const auto now = Clock::now();
        if (const quint64 newest = slot.read().counter; newest != counter) {
            counter = newest;
            last = now;
        }
        const auto gap = std::chrono::duration_cast<std::chrono::milliseconds>(now - last);
        outcome.longestGapMs = std::max<qint64>(outcome.longestGapMs, gap.count());
    }
    outcome.publications = counter - first;
    outcome.tracks = slot.read().value->tracks.size();
}

quint16 freePort()
{
    QUdpSocket socket;
    return socket.bind(QHostAddress::LocalHost, 0) ? socket.localPort() : 0;
}

Outcome run(const Load &load)
{
    MercatorProjector projector;
    SnapshotSlot<DisplaySnapshot> displaySlot;
    SnapshotSlot<VideoBatch> videoSlot;
    SnapshotSlot<WeatherProcessor::Picture> weatherSlot;
    QThread thread;
    auto *engine = new DataEngine(&projector, &displaySlot, &videoSlot, &weatherSlot);
    engine->moveToThread(&thread);
    QObject::connect(&thread, &QThread::started, engine, &DataEngine::init);
    QObject::connect(&thread, &QThread::finished, engine, &QObject::deleteLater);
    QObject::connect(
        engine, &DataEngine::logMessage, engine,
        [](LogLevel level, const QString &text) {
            if (level >= LogLevel::Warning || text.contains(QLatin1String("buffer"))) {
                std::fprintf(stderr, "engine: %s\n", qPrintable(text));
            }
        },
        Qt::DirectConnection);
    thread.start();

    Config config;
    config.inputUdpMulticast1 = false;
    config.inputUdpPort1 = freePort();
    const auto sensor = QSharedPointer<RadarSensorInfo>::create();
    sensor->setLocation({50.0, 14.0});
    QMetaObject::invokeMethod(
        engine, [&] { engine->openInput(config, sensor, {}, 1); }, Qt::BlockingQueuedConnection);

    Outcome outcome;
    std::atomic<bool> done = false;
    std::thread sender([&] {
        sendPaced(load, config.inputUdpPort1, outcome);
        done = true;
    });
    watch(displaySlot, done, outcome);
    sender.join();
    std::this_thread::sleep_for(500ms);
    QMetaObject::invokeMethod(
        engine, [&] { outcome.received = engine->messagesReceived(); }, Qt::BlockingQueuedConnection);
    thread.quit();
    thread.wait();
    return outcome;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({
        {"rate", "Datagrams a second (20000).", "N", "20000"},
        {"seconds", "How long to send (30).", "S", "30"},
        {"aircraft", "Aircraft in the picture (2000).", "N", "2000"},
        {"plots", "Plots in a datagram (1).", "N", "1"},
    });
    parser.process(application);
    const auto number = [&parser](const char *name) { return std::max(1, parser.value(name).toInt()); };
    const Load load = {number("rate"), number("seconds"), number("aircraft"), number("plots")};

    const Outcome outcome = run(load);
    const qint64 lost = outcome.sent - static_cast<qint64>(outcome.received);
    std::printf(
        "sent %lld (refused %lld)  received %llu  lost %lld  publications %llu  longest gap %lld ms  tracks %lld\n",
        outcome.sent, outcome.refused, outcome.received, lost, outcome.publications, outcome.longestGapMs,
        static_cast<long long>(outcome.tracks));
    return lost == 0 && outcome.longestGapMs <= 300 ? 0 : 1;
}
