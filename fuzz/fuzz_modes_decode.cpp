// Decodes and tracks its input, a Beast stream, and looks into everything that a message holds.

#include "modes/adsb_tracker.h"
#include "modes/mode_s_decoder.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

using namespace korvane::modes;

void require(bool condition, const char *what)
{
    if (condition) {
        return;
    }
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

bool isDirection(const std::optional<double> &value)
{
    return !value || (*value >= 0 && *value < 360);
}

void checkRegisters(const ModeSMessage &message)
{
    const std::uint64_t mb = message.messageField();
    const RegisterCandidates candidates = message.registers();
    require(candidates.count <= candidates.registers.size(), "more candidates than registers");
    if (const auto turn = decodeBds50(mb)) {
        require(isDirection(turn->trueTrack), "track of a register is no direction");
    }
    if (const auto speed = decodeBds60(mb)) {
        require(isDirection(speed->magneticHeading), "heading of a register is no direction");
    }
}

void checkMessage(const ModeSMessage &message)
{
    require(message.icaoAddr() <= 0xFFFFFF, "address of more than 24 bits");
    if (const auto altitude = message.altitude()) {
        require(*altitude >= -1200 && *altitude <= 126700, "altitude that no code has");
    }
    if (const auto squawk = message.squawk()) {
        require(*squawk <= 07777, "squawk of more than four digits");
    }
    if (const auto *const velocity = std::get_if<AirborneVelocity>(&message.content())) {
        require(isDirection(velocity->track) && isDirection(velocity->heading), "velocity has no direction");
        require(!velocity->groundSpeed || std::isfinite(*velocity->groundSpeed), "speed is no number");
    }
    message.coordination();
    checkRegisters(message);
}

void checkTarget(const ADSBTarget &target)
{
    if (!target.positionValid()) {
        return;
    }
    require(std::abs(target.latitude()) <= 90, "latitude is not on Earth");
    require(target.longitude() >= -180 && target.longitude() < 180, "longitude is not on Earth");
}

void run(const std::vector<ModeSFrame> &frames, bool isLenient)
{
    ModeSDecoder decoder;
    decoder.setErrorCorrection(isLenient);
    decoder.setAddressCheck(!isLenient);
    ADSBTracker tracker;
    tracker.setAltituteBaroChecking(isLenient, 4, 150);
    if (isLenient) {
        tracker.setReferencePosition(52, 4);
    }
    ModeSMessage message;
    for (const ModeSFrame &frame : frames) {
        decoder.decode(isLenient ? ModeSMessage::AnyDownlink : ModeSMessage::ExtendedSquitter, frame, message);
        if (message.valid()) {
            checkMessage(message);
        }
        if (const auto target = tracker.procModeSMsg(message)) {
            checkTarget(*target);
        }
    }
    tracker.killTargets(1000);
}

// Contents that no parity guards, so that what lies behind it is reached by any octets.
void decodeContents(const ModeSFrame &frame)
{
    std::uint64_t field = 0;
    for (int i = 4; i < 11; ++i) {
        field = field << 8 | frame.octets[i];
    }
    decodeSquitter(field);
    decodeCoarsePosition(field);
    inferRegisters(field, static_cast<int>(frame.octets[2]) * 1000);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    std::vector<ModeSFrame> frames;
    const std::string_view stream(reinterpret_cast<const char *>(data), size);
    ModeSEncapsulation::extractAll(stream, ModeSEncapsulation::Beast, frames);
    for (const ModeSFrame &frame : frames) {
        decodeContents(frame);
    }
    run(frames, false);
    run(frames, true);
    return 0;
}
