#include "example/aircraft_positions.h"

#include "modes/adsb_tracker.h"
#include "modes/mode_s_decoder.h"

#include <cstdio>

std::vector<std::string> aircraftPositions(const std::vector<std::string> &received)
{
    using namespace korvane::modes;
    ModeSDecoder decoder;
    ADSBTracker tracker;
    std::string buffer;
    for (const std::string &chunk : received) {
        buffer += chunk; // a frame may end in the next one: extract() leaves its beginning behind
        for (const auto &frame : ModeSEncapsulation::extract(buffer, ModeSEncapsulation::Beast)) {
            tracker.procModeSMsg(decoder.decode(ModeSMessage::AnyDownlink, frame)); // passes over what is not valid
        }
    }
    std::vector<std::string> lines;
    for (const auto &[key, target] : tracker.targets()) {
        char line[80];
        std::snprintf(line, sizeof line, "%06X %s %.3f %.3f %d ft", target->icaoAddr(), target->callsign().c_str(),
            target->latitude(), target->longitude(), target->altitudeBaro());
        if (target->positionValid()) {
            lines.emplace_back(line);
        }
    }
    return lines;
}
