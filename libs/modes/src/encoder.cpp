#include "modes/encoder.h"

#include "downlink_format.h"
#include "modes/codes.h"
#include "modes/parity.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace korvane::modes {

namespace {

constexpr unsigned char Escape = 0x1A;
constexpr unsigned AirborneCapability = 5;

// Puts a message field together, first part first.
class FieldMaker {
public:
    FieldMaker &add(std::uint64_t value, int count)
    {
        m_field = m_field << count | (value & ((1ULL << count) - 1));
        return *this;
    }
    FieldMaker &add(const CprPosition &report)
    {
        return add(report.isOdd ? 1 : 0, 1).add(report.latitude, 17).add(report.longitude, 17);
    }

    std::uint64_t field() const { return m_field; }

private:
    std::uint64_t m_field = 0;
};

void storeOctets(unsigned char *octets, std::uint64_t value, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        octets[i] = static_cast<unsigned char>(value >> 8 * (count - 1 - i));
    }
}

unsigned movementOf(double speed)
{
    if (speed < 0.125) {
        return 1;
    }
    if (speed < 1) {
        return 2 + static_cast<unsigned>(std::lround((speed - 0.125) / 0.125));
    }
    if (speed < 2) {
        return 9 + static_cast<unsigned>(std::lround((speed - 1) / 0.25));
    }
    if (speed < 15) {
        return 13 + static_cast<unsigned>(std::lround((speed - 2) / 0.5));
    }
    if (speed < 70) {
        return 39 + static_cast<unsigned>(std::lround(speed - 15));
    }
    if (speed < 100) {
        return 94 + static_cast<unsigned>(std::lround((speed - 70) / 2));
    }
    return speed < 175 ? 109 + static_cast<unsigned>(std::lround((speed - 100) / 5)) : 124;
}

// A frame of one of the surveillance reply formats, its code in the last 13 bits of the first four octets.
ModeSFrame makeReply(unsigned format, std::uint32_t address, unsigned flightStatus, unsigned code, std::uint64_t mb)
{
    ModeSFrame frame;
    frame.length = downlinkFormatOf(static_cast<unsigned char>(format << 3)).length;
    storeOctets(frame.octets, format << 27 | (flightStatus & 7) << 24 | code, 4);
    if (frame.length == 14) {
        storeOctets(frame.octets + 4, mb, 7);
    }
    setParity(frame, address);
    return frame;
}

void appendDigits(std::string &out, const unsigned char *octets, std::size_t count)
{
    constexpr const char *Digits = "0123456789ABCDEF";
    for (std::size_t i = 0; i < count; ++i) {
        out += Digits[octets[i] >> 4];
        out += Digits[octets[i] & 15];
    }
}

void appendAvr(std::string &out, const ModeSFrame &frame)
{
    unsigned char head[7];
    storeOctets(head, frame.ticks, 6);
    head[6] = frame.signalLevel;
    const bool hasTicks = frame.ticks != ModeSFrame::NoTicks;
    out += !hasTicks ? '*' : frame.signalLevel ? '<' : '@';
    if (hasTicks) {
        appendDigits(out, head, frame.signalLevel ? 7 : 6);
    }
    appendDigits(out, frame.octets, frame.length);
    out += ";\n";
}

void appendEscaped(std::string &out, const unsigned char *octets, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        out.append(octets[i] == Escape ? 2 : 1, static_cast<char>(octets[i]));
    }
}

void appendBeast(std::string &out, const ModeSFrame &frame)
{
    unsigned char head[7];
    storeOctets(head, frame.ticks == ModeSFrame::NoTicks ? 0 : frame.ticks, 6);
    head[6] = frame.signalLevel;
    out += static_cast<char>(Escape);
    out += frame.length == 14 ? '3' : frame.length == 7 ? '2' : '1';
    appendEscaped(out, head, sizeof head);
    appendEscaped(out, frame.octets, frame.length);
}

} // namespace

ModeSFrame encodeSquitter(std::uint32_t address, std::uint64_t me)
{
    ModeSFrame frame;
    frame.length = 14;
    frame.octets[0] = 17 << 3 | AirborneCapability;
    storeOctets(frame.octets + 1, address, 3);
    storeOctets(frame.octets + 4, me, 7);
    setParity(frame, address);
    return frame;
}

ModeSFrame encodeIdentification(std::uint32_t address, char set, unsigned category, const std::string &callsign)
{
    const auto typeCode = static_cast<unsigned>('A' + 4 - std::clamp(set, 'A', 'D'));
    FieldMaker me;
    me.add(typeCode, 5).add(category, 3).add(codeFromCallsign(callsign.c_str()), 48);
    return encodeSquitter(address, me.field());
}

ModeSFrame encodeAirbornePosition(std::uint32_t address, const LatLon &position, int altitude, bool isOdd)
{
    const unsigned code = codeFromAltitude(altitude);
    FieldMaker me;
    me.add(11, 5).add(0, 3).add((code & 0x1F80) >> 1 | (code & 0x3F), 12).add(0, 1);
    me.add(encodeCpr(position, isOdd, false));
    return encodeSquitter(address, me.field());
}

ModeSFrame encodeSurfacePosition(
    std::uint32_t address, const LatLon &position, double groundSpeed, double track, bool isOdd)
{
    FieldMaker me;
    me.add(7, 5).add(movementOf(groundSpeed), 7).add(1, 1);
    me.add(static_cast<std::uint64_t>(std::llround(track * 128 / 360)), 7).add(0, 1);
    me.add(encodeCpr(position, isOdd, true));
    return encodeSquitter(address, me.field());
}

ModeSFrame encodeVelocity(std::uint32_t address, double groundSpeed, double track, int verticalRate)
{
    const double angle = track * std::numbers::pi / 180;
    const double east = groundSpeed * std::sin(angle);
    const double north = groundSpeed * std::cos(angle);
    const int scale = std::max(std::abs(east), std::abs(north)) > 1022 ? 4 : 1;
    const auto addComponent = [scale](FieldMaker &me, double speed) {
        const auto steps = std::min(1 + std::llround(std::abs(speed) / scale), 1023LL);
        me.add(speed < 0 ? 1 : 0, 1).add(static_cast<std::uint64_t>(steps), 10);
    };
    const auto rate = static_cast<std::uint64_t>(std::min(1 + std::lround(std::abs(verticalRate) / 64.0), 511L));
    FieldMaker me;
    me.add(19, 5).add(scale == 4 ? 2 : 1, 3).add(0, 5);
    addComponent(me, east);
    addComponent(me, north);
    me.add(1, 1).add(verticalRate < 0 ? 1 : 0, 1).add(rate, 9).add(0, 10);
    return encodeSquitter(address, me.field());
}

ModeSFrame encodeEmergency(std::uint32_t address, std::uint16_t squawk, unsigned emergency)
{
    FieldMaker me;
    me.add(28, 5).add(1, 3).add(emergency, 3).add(codeFromSquawk(squawk), 13).add(0, 32);
    return encodeSquitter(address, me.field());
}

ModeSFrame encodeAllCall(std::uint32_t address, unsigned capability, unsigned interrogator)
{
    ModeSFrame frame;
    frame.length = 7;
    frame.octets[0] = static_cast<unsigned char>(11 << 3 | (capability & 7));
    storeOctets(frame.octets + 1, address, 3);
    setParity(frame, interrogator & InterrogatorMask);
    return frame;
}

ModeSFrame encodeAltitudeReply(std::uint32_t address, int altitude, unsigned flightStatus)
{
    return makeReply(4, address, flightStatus, codeFromAltitude(altitude), 0);
}

ModeSFrame encodeIdentityReply(std::uint32_t address, std::uint16_t squawk, unsigned flightStatus)
{
    return makeReply(5, address, flightStatus, codeFromSquawk(squawk), 0);
}

ModeSFrame encodeCommBAltitude(std::uint32_t address, int altitude, std::uint64_t mb, unsigned flightStatus)
{
    return makeReply(20, address, flightStatus, codeFromAltitude(altitude), mb);
}

ModeSFrame encodeCommBIdentity(std::uint32_t address, std::uint16_t squawk, std::uint64_t mb, unsigned flightStatus)
{
    return makeReply(21, address, flightStatus, codeFromSquawk(squawk), mb);
}

void setParity(ModeSFrame &frame, std::uint32_t overlay)
{
    const bool isOwn = downlinkFormatOf(frame.octets[0]).parity == ParityKind::Own;
    unsigned char *const parity = frame.octets + frame.length - 3;
    storeOctets(parity, 0, 3);
    storeOctets(parity, parityRemainder(frame.octets, frame.length) ^ (isOwn ? 0 : overlay), 3);
}

void appendEncapsulated(std::string &out, const ModeSFrame &frame, ModeSEncapsulation::Format format)
{
    switch (format) {
    case ModeSEncapsulation::Avr:
        appendAvr(out, frame);
        return;
    case ModeSEncapsulation::Raw:
    case ModeSEncapsulation::RawRssi:
        for (std::size_t i = 0; i < frame.length; ++i) {
            out += static_cast<char>(frame.octets[i]);
        }
        if (format == ModeSEncapsulation::RawRssi) {
            out += static_cast<char>(frame.signalLevel);
        }
        return;
    default:
        appendBeast(out, frame);
    }
}

} // namespace korvane::modes
