#pragma once

#include <cstddef>
#include <cstdint>

// Where every field of every message stands: the one table of offsets. Words are big-endian.
namespace sirm_layout {

struct Field {
    std::size_t offset; // of the word, from the start of the message or record
    unsigned octets; // of the word: 1, 2 or 4
    unsigned shift; // of the field's least significant bit in the word
    unsigned bits;
    bool isSigned = false;
    double lsb = 1;
};

namespace header {
inline constexpr std::size_t Size = 8;
inline constexpr Field Type{0, 1, 0, 8};
inline constexpr Field RadarId{1, 1, 0, 8};
inline constexpr Field Length{2, 2, 0, 16}; // of the whole message, in octets
inline constexpr Field TimeOfDay{4, 4, 0, 32}; // milliseconds
} // namespace header

namespace north_marker {
inline constexpr std::size_t Size = 12;
inline constexpr Field NorthNotSynchronized{8, 2, 15, 1};
inline constexpr Field ClockNotSynchronized{8, 2, 14, 1};
inline constexpr Field RotationPeriod{10, 2, 0, 16}; // milliseconds
} // namespace north_marker

namespace data {
inline constexpr std::size_t Size = 12; // then the plot records, then the track records
inline constexpr Field SectorValid{8, 2, 15, 1};
inline constexpr Field Sector{8, 2, 0, 4};
inline constexpr Field PlotCount{10, 1, 0, 8};
inline constexpr Field TrackCount{11, 1, 0, 8};
} // namespace data

namespace plot {
inline constexpr std::size_t Size = 12;
inline constexpr Field ModeACodeValid{0, 2, 6, 1};
inline constexpr Field ModeCHeightValid{0, 2, 7, 1};
inline constexpr Field Type{0, 2, 1, 2};
inline constexpr Field Range{2, 2, 0, 16, false, 1.0 / 128}; // kilometres
inline constexpr Field Azimuth{4, 2, 0, 16, false, 360.0 / 65536}; // degrees
inline constexpr Field ModeACode{6, 2, 0, 12};
inline constexpr Field ModeCHeight{8, 2, 0, 16, true, 6.25}; // feet; the word at 10 is spare
} // namespace plot

namespace track {
inline constexpr std::size_t Size = 24;
inline constexpr Field TrackNumber{0, 2, 0, 16};
inline constexpr Field Coasting{2, 2, 0, 1};
inline constexpr Field Type{2, 2, 1, 3};
inline constexpr Field VerticalTrend{2, 2, 4, 2};
inline constexpr Field ModeACodeValid{2, 2, 6, 1};
inline constexpr Field ModeCHeightValid{2, 2, 7, 1};
inline constexpr Field RateOfClimbDescentValid{2, 2, 8, 1};
inline constexpr Field VelocityPresent{2, 2, 9, 1};
inline constexpr Field VelocityValid{2, 2, 10, 1};
inline constexpr Field X{4, 4, 0, 32, true, 1.0 / 1024}; // kilometres
inline constexpr Field Y{8, 4, 0, 32, true, 1.0 / 1024}; // kilometres
inline constexpr Field Vx{12, 2, 0, 16, true, 1.0 / 8}; // metres per second
inline constexpr Field Vy{14, 2, 0, 16, true, 1.0 / 8}; // metres per second
inline constexpr Field ModeACode{16, 2, 0, 12};
inline constexpr Field ModeCHeight{18, 2, 0, 16, true, 6.25}; // feet
inline constexpr Field RateOfClimbDescent{20, 2, 0, 16, true, 1.0 / 64}; // metres per second
inline constexpr Field TrackEnd{22, 2, 15, 1};
} // namespace track

// The field's bits as they stand. The octets reach to the end of its word.
std::uint32_t bitsOf(const unsigned char *octets, const Field &field);
void setBits(unsigned char *octets, const Field &field, std::uint32_t value);

// The field's value in its unit. Setting rounds to the nearest step, halves away from zero, and holds the value at the
// ends of the field's range; not a number is taken as 0.
double valueOf(const unsigned char *octets, const Field &field);
void setValue(unsigned char *octets, const Field &field, double value);

} // namespace sirm_layout
