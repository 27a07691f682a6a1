#include "engine/data_engine.h"
#include "geo/mercator_projector.h"
#include "plot_datagrams.h"
#include "tracking/radar_sensor_info.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

// What a datagram costs from the moment that it has been read: envelope, walk, source check, tracker, track store.

namespace {

class OpenEngine {
public:
    explicit OpenEngine(bool verifySource)
    {
        const auto sensor = QSharedPointer<RadarSensorInfo>::create();
        sensor->setSacSic(25, 10);
        sensor->setLocation({50.0, 14.0});
        Config config;
        config.inputUdpMulticast1 = false;
        config.inputUdpPort1 = 0; // any
        config.processorAsterixVerifySacSic = verifySource;
        m_engine.init();
        m_engine.openInput(config, sensor, {}, 1);
    }

    DataEngine &operator*() { return m_engine; }

private:
    MercatorProjector m_projector;
    SnapshotSlot<DisplaySnapshot> m_displaySlot;
    SnapshotSlot<VideoBatch> m_videoSlot;
    SnapshotSlot<WeatherProcessor::Picture> m_weatherSlot;
    DataEngine m_engine{&m_projector, &m_displaySlot, &m_videoSlot, &m_weatherSlot};
};

// Arguments: plots per datagram, aircraft.
void routePlots(benchmark::State &state)
{
    OpenEngine engine(true);
    const int plots = static_cast<int>(state.range(0));
    const QList<QByteArray> datagrams = plotDatagrams(static_cast<int>(state.range(1)), plots);
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

BENCHMARK(routePlots)->ArgNames({"plots", "aircraft"})->Args({1, 400})->Args({20, 400})->Args({20, 4000});

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
