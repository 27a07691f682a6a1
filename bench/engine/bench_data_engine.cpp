#include "app/log_gate.h"
#include "astfile/pcap_writer.h"
#include "engine/data_engine.h"
#include "geo/mercator_projector.h"
#include "plot_datagrams.h"
#include "sensors/radar_sensor_info.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

// What a datagram costs from the moment that it has been read: envelope, walk, source check, tracker, track store. And
// what a recording costs that is played as fast as it can be.

namespace {

class OpenEngine {
public:
    explicit OpenEngine(bool verifySource)
    {
        m_sensor->setSacSic(25, 10);
        m_sensor->setLocation({50.0, 14.0});
        m_config.inputUdpMulticast1 = false;
        m_config.inputUdpPort1 = 0; // any
        m_config.processorAsterixVerifySacSic = verifySource;
        m_engine.init();
        m_engine.openInput(m_config, m_sensor, {}, 1);
    }

    void open(const QFileInfo &recording)
    {
        m_config.inputComm = Config::InputComm::File;
        m_config.inputFileName = recording;
        m_engine.openInput(m_config, m_sensor, {}, 1);
    }

    DataEngine &operator*() { return m_engine; }
    DataEngine *operator->() { return &m_engine; }

private:
    Config m_config;
    QSharedPointer<RadarSensorInfo> m_sensor = QSharedPointer<RadarSensorInfo>::create();
    MercatorProjector m_projector;
    SnapshotSlot<DisplaySnapshot> m_displaySlot;
    SnapshotSlot<VideoBatch> m_videoSlot;
    SnapshotSlot<WeatherProcessor::Picture> m_weatherSlot;
    DataEngine m_engine{&m_projector, &m_displaySlot, &m_videoSlot, &m_weatherSlot};
};

// Arguments: plots per datagram, aircraft, whether the plots say whose they are.
void routePlots(benchmark::State &state)
{
    OpenEngine engine(true);
    const int plots = static_cast<int>(state.range(0));
    const QList<QByteArray> datagrams = plotDatagrams(static_cast<int>(state.range(1)), plots, state.range(2) != 0);
    qsizetype next = 0;
    std::int64_t octets = 0;
    for (auto _ : state) {
        const QByteArray &datagram = datagrams[next];
        next = next + 1 < datagrams.size() ? next + 1 : 0;
        (*engine).procMessage(datagram);
        octets += datagram.size();
    }
    state.SetItemsProcessed(state.iterations() * plots);
    state.SetBytesProcessed(octets);
}

BENCHMARK(routePlots)
    ->ArgNames({"plots", "aircraft", "identity"})
    ->Args({1, 400, 1})
    ->Args({20, 400, 1})
    ->Args({20, 4000, 1})
    ->Args({20, 400, 0});

// A capture of this many datagrams, a millisecond apart.
bool writeCapture(const QString &fileName, int packets, int plots, int aircraft)
{
    const QList<QByteArray> datagrams = plotDatagrams(aircraft, plots);
    const QDateTime begin({2024, 5, 1}, {12, 0}, Qt::UTC);
    korvane::astfile::PcapWriter writer;
    bool written = writer.open(fileName);
    for (int i = 0; written && i < packets; ++i) {
        written = writer.write(begin.addMSecs(i), {}, {}, datagrams[i % datagrams.size()]);
    }
    return writer.close() && written;
}

// From opening to the end, with everything that the event loop does in between. Arguments: plots per packet, aircraft.
void playRecording(benchmark::State &state)
{
    constexpr int Packets = 100000;
    const QTemporaryDir directory;
    const QFileInfo file(directory.filePath("plots.pcap"));
    if (!writeCapture(file.filePath(), Packets, static_cast<int>(state.range(0)), static_cast<int>(state.range(1)))) {
        state.SkipWithError("The recording cannot be written.");
        return;
    }
    OpenEngine engine(true);
    engine->closeInput();
    engine->setReplaySpeed(ReplaySpeed::Max);
    QEventLoop loop;
    QObject::connect(&*engine, &DataEngine::inputClosed, &loop, &QEventLoop::quit);
    for (auto _ : state) {
        engine.open(file);
        loop.exec();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(engine->messagesReceived()));
}

BENCHMARK(playRecording)
    ->ArgNames({"plots", "aircraft"})
    ->Args({1, 400})
    ->Args({20, 400})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    LogGate::setShownLevel(LogLevel::Info); // as the terminal's is
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
