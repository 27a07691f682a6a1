#pragma once

#include "modes/cpr.h"
#include "modes/mode_s_encapsulation.h"
#include "modes/mode_s_frame.h"

#include <cstdint>
#include <string>

namespace korvane::modes {

// Frames with their parity, for tests and traffic generators. Addresses are 24 bits; time stamps are the caller's to
// set.

// DF 17. set: 'A' to 'D'; category: 0 to 7; the call sign is cut at eight characters, what is no character becomes
// blank.
ModeSFrame encodeIdentification(std::uint32_t address, char set, unsigned category, const std::string &callsign);
// altitude: feet, in steps of 25, -1000 to 50175.
ModeSFrame encodeAirbornePosition(std::uint32_t address, const LatLon &position, int altitude, bool isOdd);
// groundSpeed: knots, 0 to 199; track: degrees.
ModeSFrame encodeSurfacePosition(
    std::uint32_t address, const LatLon &position, double groundSpeed, double track, bool isOdd);
// Knots, degrees, feet per minute (in steps of 64). The supersonic subtype is chosen by the speed.
ModeSFrame encodeVelocity(std::uint32_t address, double groundSpeed, double track, int verticalRate);
// squawk: binary value of the octal digits; emergency: 0 to 7.
ModeSFrame encodeEmergency(std::uint32_t address, std::uint16_t squawk, unsigned emergency);
// DF 17 with any message field (the low 56 bits of me).
ModeSFrame encodeSquitter(std::uint32_t address, std::uint64_t me);

ModeSFrame encodeAllCall(std::uint32_t address, unsigned capability = 5, unsigned interrogator = 0); // DF 11
ModeSFrame encodeAltitudeReply(std::uint32_t address, int altitude, unsigned flightStatus = 0); // DF 4
ModeSFrame encodeIdentityReply(std::uint32_t address, std::uint16_t squawk, unsigned flightStatus = 0); // DF 5
// DF 20 and 21 with a register (the low 56 bits of mb).
ModeSFrame encodeCommBAltitude(std::uint32_t address, int altitude, std::uint64_t mb, unsigned flightStatus = 0);
ModeSFrame encodeCommBIdentity(
    std::uint32_t address, std::uint16_t squawk, std::uint64_t mb, unsigned flightStatus = 0);

// Puts the parity into the last three octets of a frame, with the address or the interrogator laid over it unless the
// downlink format has a parity of its own.
void setParity(ModeSFrame &frame, std::uint32_t overlay);

// Appends a frame in an encapsulation. Avr: with time stamp where the frame has one.
void appendEncapsulated(std::string &out, const ModeSFrame &frame, ModeSEncapsulation::Format format);

} // namespace korvane::modes
