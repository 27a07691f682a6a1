// How long the database takes to load, and how many addresses a second are looked up.

#include "airdb/air_db_builder.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <QBuffer>
#include <QFile>

namespace {

using namespace korvane::airdb;

QByteArray builtIn()
{
    QFile file(AIRDB_FILE);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The built-in database with so many aircraft.
QByteArray withAircraft(int aircraft)
{
    QByteArray text = "address,registration,type,operator\n";
    for (int i = 0; i < aircraft; ++i) {
        char row[64];
        std::snprintf(row, sizeof row, "%06X,V-%06d,A%d,Airline %d\n", 0x400000 + 7 * i, i, 300 + i % 50, i % 900);
        text += row;
    }
    QBuffer csv(&text);
    csv.open(QIODevice::ReadOnly);
    LibAirDB database;
    database.loadFromData(builtIn());
    AirDBBuilder builder(database);
    builder.importAircraft(csv);
    return builder.toData();
}

void load(benchmark::State &state)
{
    const QByteArray octets = withAircraft(static_cast<int>(state.range(0)));
    LibAirDB database;
    for (auto _ : state) {
        benchmark::DoNotOptimize(database.loadFromData(octets));
    }
    state.counters["octets"] = static_cast<double>(octets.size());
}

// Addresses all over the range, so that pages and blocks of every kind are asked for.
void lookUpCountry(benchmark::State &state)
{
    LibAirDB database;
    database.loadFromData(withAircraft(static_cast<int>(state.range(0))));
    quint32 address = 1;
    for (auto _ : state) {
        address = (address * 1664525 + 1013904223) & ICAOAddr::Last;
        const ICAOAddrInfo info = database.getICAOAddrDict().getICAOAddrInfo(ICAOAddr(address));
        benchmark::DoNotOptimize(&info.country());
    }
    state.counters["addresses/s"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

void lookUpAircraft(benchmark::State &state)
{
    const auto aircraft = static_cast<quint32>(state.range(0));
    LibAirDB database;
    database.loadFromData(withAircraft(static_cast<int>(aircraft)));
    quint32 number = 1;
    for (auto _ : state) {
        number = (number * 1664525 + 1013904223) % aircraft;
        const ICAOAddrInfo info = database.getICAOAddrDict().getICAOAddrInfo(ICAOAddr(0x400000 + 7 * number));
        benchmark::DoNotOptimize(info.aircraft());
    }
    state.counters["addresses/s"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

BENCHMARK(load)->Arg(0)->Arg(500000)->Unit(benchmark::kMillisecond);
BENCHMARK(lookUpCountry)->Arg(0);
BENCHMARK(lookUpAircraft)->Arg(1000)->Arg(500000);

} // namespace

BENCHMARK_MAIN();
