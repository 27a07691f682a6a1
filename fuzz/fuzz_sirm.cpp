// Decodes its input as a radar message, asks every record everything, and encodes it again.

#include "sirm/alenia_sir_m_radar_decoder.h"
#include "sirm/alenia_sir_m_radar_encoder.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

// What must hold does not depend on assertions being compiled in.
void require(bool condition, const char *what)
{
    if (condition) {
        return;
    }
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

void ask(const AleniaSirMRadarPlotRecord &plot)
{
    require(plot.azimuth() >= 0 && plot.azimuth() < 360 && plot.range() >= 0, "plot is nowhere");
    require(plot.plotType() <= 3 && plot.modeACode() <= 07777, "plot is nothing");
    // What was read sets the same again.
    AleniaSirMRadarPlotRecord again = plot;
    again.setPolar(plot.range(), plot.azimuth());
    again.setPlotType(plot.plotType());
    require(again.octets() == plot.octets(), "plot changes by being set");
}

void ask(const AleniaSirMRadarTrackRecord &track)
{
    require(track.trackType() <= 7 && track.verticalTrend() <= 3 && track.modeACode() <= 07777, "track is nothing");
    require(std::abs(track.modeCHeightMetric()) < 65000, "track is nowhere");
    AleniaSirMRadarTrackRecord again = track;
    again.setPosition(track.x(), track.y());
    again.setTrackEnd(track.trackEnd());
    again.setCoasting(track.coasting());
    if (track.velocityPresent()) {
        again.setVelocity(track.vx(), track.vy(), track.velocityValid());
    }
    if (track.rateOfClimbDescentValid()) {
        again.setRateOfClimbDescent(track.rateOfClimbDescent());
    }
    if (track.modeCHeightValid()) {
        again.setModeCHeight(track.modeCHeightImperial());
    }
    require(again.octets() == track.octets(), "track changes by being set");
}

void ask(const AleniaSirMRadarMessage &message)
{
    if (message.type() != AleniaSirMRadarMessage::Type::Data) {
        return;
    }
    const auto &data = static_cast<const AleniaSirMRadarDataMessage &>(message);
    require(data.sector() < 16, "no such sector");
    for (const AleniaSirMRadarPlotRecord &plot : data.plotRecords()) {
        ask(plot);
    }
    for (const AleniaSirMRadarTrackRecord &track : data.trackRecords()) {
        ask(track);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const AleniaSirMRadarDecoder::Result result = AleniaSirMRadarDecoder::decode(data, size);
    require(result.valid() == (result.error == AleniaSirMRadarDecoder::Error::None), "valid and error disagree");
    require(result.size <= size && result.errorOffset <= size, "message is longer than its octets");
    if (!result.valid()) {
        return 0;
    }
    ask(*result.message);
    const std::vector<unsigned char> octets = AleniaSirMRadarEncoder::encode(*result.message);
    require(octets.size() == result.size, "encoded message has another size");
    const AleniaSirMRadarDecoder::Result again = AleniaSirMRadarDecoder::decode(octets.data(), octets.size());
    require(again.valid() && AleniaSirMRadarEncoder::encode(*again.message) == octets, "encoded message differs");
    return 0;
}
