#include "modes/parity.h"

#include "bits.h"

#include <array>

namespace korvane::modes {

namespace {

constexpr std::uint32_t Generator = 0xFFF409; // without its highest term
constexpr std::size_t MaximumData = 11; // octets before the parity

using Row = std::array<std::uint32_t, 256>;

// What an octet leaves when this many octets of data follow it. With a row for every place the octets of a frame are
// looked up independently of each other.
constexpr std::array<Row, MaximumData> makeTable()
{
    std::array<Row, MaximumData> table{};
    for (std::uint32_t octet = 0; octet < 256; ++octet) {
        std::uint32_t remainder = octet << 16;
        for (int i = 0; i < 8; ++i) {
            remainder = (remainder << 1 & 0xFFFFFF) ^ (remainder & 0x800000 ? Generator : 0);
        }
        table[0][octet] = remainder;
    }
    for (std::size_t place = 1; place < MaximumData; ++place) {
        for (std::size_t octet = 0; octet < 256; ++octet) {
            const std::uint32_t before = table[place - 1][octet];
            table[place][octet] = (before << 8 & 0xFFFFFF) ^ table[0][before >> 16];
        }
    }
    return table;
}

constexpr std::array<Row, MaximumData> Table = makeTable();

template <std::size_t Data>
std::uint32_t remainderOf(const unsigned char *frame)
{
    std::uint32_t remainder = load24(frame + Data);
    for (std::size_t i = 0; i < Data; ++i) {
        remainder ^= Table[Data - 1 - i][frame[i]];
    }
    return remainder;
}

} // namespace

std::uint32_t parityRemainder(const unsigned char *frame, std::size_t length)
{
    return length == 14 ? remainderOf<11>(frame) : remainderOf<4>(frame);
}

int faultyBit(std::uint32_t remainder, std::size_t length)
{
    unsigned char frame[14] = {};
    for (std::size_t i = 0; i < 8 * length; ++i) {
        frame[i / 8] = static_cast<unsigned char>(0x80U >> i % 8);
        if (parityRemainder(frame, length) == remainder) {
            return static_cast<int>(i) + 1;
        }
        frame[i / 8] = 0;
    }
    return 0;
}

} // namespace korvane::modes
