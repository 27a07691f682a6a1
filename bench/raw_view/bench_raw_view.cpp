#include "app/log_gate.h"
#include "engine/data_engine.h"
#include "engine/engine_host.h"
#include "plot_datagrams.h"
#include "raw_view/raw_view_window.h"
#include "sensors/radar_sensor_info.h"

#include <QApplication>

#include <benchmark/benchmark.h>

// What the raw view costs: the engine for copying what it receives, the window for listing and painting it.

namespace {

constexpr int PlotsPerDatagram = 20;
constexpr int Aircraft = 400;

// An engine on this thread with an input to which datagrams are given by hand.
class OpenHost {
public:
    OpenHost()
    {
        qputenv("VYXDISPLAY_NO_DATA_THREAD", "1");
        m_host = std::make_unique<EngineHost>();
        m_host->start();
        Config config;
        config.inputUdpMulticast1 = false;
        config.inputUdpPort1 = 0; // any
        const auto sensor = QSharedPointer<RadarSensorInfo>::create();
        sensor->setLocation({50.0, 14.0});
        m_host->openInput(config, sensor, {}, 1);
        QCoreApplication::processEvents();
    }

    EngineHost *get() { return m_host.get(); }
    void receive()
    {
        m_host->engine()->procMessage(m_datagrams[m_next]);
        m_next = m_next + 1 < m_datagrams.size() ? m_next + 1 : 0;
    }

private:
    std::unique_ptr<EngineHost> m_host;
    const QList<QByteArray> m_datagrams = plotDatagrams(Aircraft, PlotsPerDatagram);
    qsizetype m_next = 0;
};

// The engine's part, by plot; argument: whether a tap is open.
void routePlots(benchmark::State &state)
{
    OpenHost host;
    const auto tap = std::make_shared<StreamTap>(StreamTap::Content::Records);
    if (state.range(0)) {
        host.get()->engine()->openTap(tap);
    }
    for (auto _ : state) {
        host.receive();
    }
    state.SetItemsProcessed(state.iterations() * PlotsPerDatagram);
}

// The window's part of a tenth of a second at so many records a second, painting included.
void showRecords(benchmark::State &state)
{
    OpenHost host;
    RawViewWindow window(host.get());
    window.show();
    QCoreApplication::processEvents();
    for (auto _ : state) {
        state.PauseTiming();
        for (int i = 0; i < state.range(0) / 10 / PlotsPerDatagram; ++i) {
            host.receive();
        }
        host.get()->engine()->publishSnapshot();
        state.ResumeTiming();
        window.pull();
        QCoreApplication::processEvents();
    }
    state.counters["held"] = static_cast<double>(window.model().held());
}

BENCHMARK(routePlots)->ArgName("open")->Arg(0)->Arg(1);
BENCHMARK(showRecords)->ArgName("rate")->Arg(5000)->Arg(20000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    LogGate::setShownLevel(LogLevel::Info);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
