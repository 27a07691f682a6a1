#include "plot_datagrams.h"

#include "asterix/encoder.h"

#include <algorithm>
#include <string>

namespace {

void addPlot(korvane::asterix::BlockEncoder &encoder, int number, bool identity)
{
    encoder.beginRecord();
    encoder.set("010/SAC", 25);
    encoder.set("010/SIC", 10);
    encoder.set("140", 43200.0);
    encoder.set("020/TYP", 5);
    encoder.set("040/RHO", 10.0 + number % 200);
    encoder.set("040/THETA", number % 360);
    encoder.set("070/MODE3A", number % 4096);
    encoder.set("090/FL", number % 400);
    if (identity) {
        encoder.set("220", 0x3c0000 + number);
        encoder.setText("240", "VYX" + std::to_string(number));
        encoder.set("161/TRN", number % 4095 + 1);
        encoder.set("200/GSP", 0.125);
        encoder.set("200/HDG", number % 360);
        encoder.set("170/CNF", 0);
    }
    encoder.endRecord();
}

} // namespace

QList<QByteArray> plotDatagrams(int aircraft, int plotsPerDatagram, bool identity)
{
    korvane::asterix::BlockEncoder encoder(48);
    QList<QByteArray> datagrams;
    for (int first = 0; first < aircraft; first += plotsPerDatagram) {
        encoder.beginBlock();
        for (int number = first; number < std::min(first + plotsPerDatagram, aircraft); ++number) {
            addPlot(encoder, number, identity);
        }
        const auto block = encoder.block();
        datagrams += QByteArray(reinterpret_cast<const char *>(block.data()), static_cast<qsizetype>(block.size()));
    }
    return datagrams;
}
