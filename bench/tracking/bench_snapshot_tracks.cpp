#include "asterix/encoder.h"
#include "geo/mercator_projector.h"
#include "tracking/radar_tracker.h"

#include <benchmark/benchmark.h>

#include <vector>

// The tracks' two costs: a report from its decoded block to the store, and the copy of the store for the display.

namespace {

using Block = std::vector<unsigned char>;

// A Mode S report as radars send it, with position, codes, call sign, velocity and two registers.
Block report(korvane::asterix::BlockEncoder &encoder, int number, int scan)
{
    static constexpr std::array<unsigned char, 7> Vertical{0xc6, 0x58, 0, 0, 0, 0, 0}; // 20,000 ft selected
    static constexpr std::array<unsigned char, 7> Speed{0, 0, 0, 0, 0x20, 0xa0, 0}; // climbing
    encoder.beginBlock();
    encoder.beginRecord();
    encoder.set("010/SAC", 25);
    encoder.set("140", scan * 4.0);
    encoder.set("020/TYP", 5);
    encoder.set("040/RHO", 10.0 + number % 200 + scan * 0.5);
    encoder.set("040/THETA", number * 0.087890625 * 7 - 360.0 * (number * 7 / 4096));
    encoder.set("070/MODE3A", number % 4096);
    encoder.set("090/FL", number % 400);
    encoder.set("220", 0x3c0000 + number);
    encoder.setText("240", "VYX" + std::to_string(number));
    for (const auto &[code, octets] : {std::pair{4, Vertical}, std::pair{6, Speed}}) {
        encoder.addRepetition("250");
        encoder.setExplicit("250/MBDATA", octets);
        encoder.set("250/BDS1", code);
    }
    encoder.set("161/TRN", number);
    encoder.set("200/GSP", 0.125);
    encoder.set("200/HDG", number % 360);
    encoder.set("170/CNF", 0);
    encoder.endRecord();
    const auto block = encoder.block();
    return {block.begin(), block.end()};
}

// A radar and its picture, filled by so many scans of so many aircraft.
class Scene {
public:
    Scene(int aircraft, int scans)
    {
        const auto sensor = QSharedPointer<RadarSensorInfo>::create();
        sensor->setLocation({50.0, 8.0});
        sensor->setRotationPeriod(4.0);
        m_tracker = Tracker::create(sensor, m_manager, &m_projector);
        korvane::asterix::BlockEncoder encoder(48);
        for (int number = 1; number <= aircraft; ++number) {
            m_blocks.push_back(report(encoder, number, 0));
        }
        for (int scan = 0; scan < scans; ++scan) {
            for (const auto &block : m_blocks) {
                receive(block);
            }
        }
    }

    void receive(const Block &octets)
    {
        ast_datablock_decode(&m_block, octets.data(), octets.size(), AST_UAP_STANDARD);
        m_tracker->procAsterixMessage(m_block);
    }

    TrackManager &manager() { return *m_manager; }
    const std::vector<Block> &blocks() const { return m_blocks; }

private:
    MercatorProjector m_projector;
    QSharedPointer<TrackManager> m_manager = QSharedPointer<TrackManager>::create();
    QSharedPointer<Tracker> m_tracker;
    _ast_datablock_t m_block;
    std::vector<Block> m_blocks;
};

// Arguments: trail dots. The store numbers 4,096 tracks by itself; the rest is put beside them.
void snapshotOf5000Tracks(benchmark::State &state)
{
    constexpr unsigned int Wanted = 5000;
    Scene scene(4000, 25);
    const auto tracks = scene.manager().allTracks();
    for (unsigned int number = 4001; number <= Wanted; ++number) {
        const auto copy = QSharedPointer<Track>::create(number);
        copy->setModeSCallsign(QStringLiteral("VYX%1").arg(number));
        copy->setIcaoAddr(0x3c0000 + number);
        for (const auto &element : tracks.at(number % 4000)->history()) {
            copy->setGeoCoordinate(element.geoCoordinate());
            copy->setCarCoordinate(element.carCoordinate());
            copy->recordHistory();
        }
        scene.manager().registerTrack(copy);
    }
    for (auto _ : state) {
        const auto snapshot = scene.manager().snapshotTracks(static_cast<int>(state.range(0)));
        if (snapshot.size() != Wanted) {
            state.SkipWithError("tracks are missing");
        }
        benchmark::DoNotOptimize(snapshot.constData());
    }
}
BENCHMARK(snapshotOf5000Tracks)->ArgName("trailDots")->Arg(0)->Arg(20)->Unit(benchmark::kMillisecond);

// One datagram: decode the block and update its track. Aircraft in turn, as an antenna meets them.
void radarReport(benchmark::State &state)
{
    Scene scene(static_cast<int>(state.range(0)), 2);
    std::size_t next = 0;
    for (auto _ : state) {
        scene.receive(scene.blocks()[next]);
        next = next + 1 == scene.blocks().size() ? 0 : next + 1;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(radarReport)->ArgName("aircraft")->Arg(200)->Arg(4000);

} // namespace

// The track manager's timer wants an application on its thread.