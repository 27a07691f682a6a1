#include "disassemble.h"

#include "icao_text.h"

namespace korvane::asterix {

void textOfCallsign(char *text, std::uint64_t bits)
{
    int length = 0;
    for (int i = 0; i < 8; ++i) {
        text[i] = IcaoAlphabet[bits >> (42 - 6 * i) & 63];
        if (text[i] != ' ') {
            length = i + 1;
        }
    }
    text[length] = '\0';
}

void readAscii(char *text, const unsigned char *at, int count)
{
    int length = 0;
    for (int i = 0; i < count; ++i) {
        text[i] = static_cast<char>(at[i]);
        if (text[i] != ' ' && text[i] != '\0') {
            length = i + 1;
        }
    }
    text[length] = '\0';
}

} // namespace korvane::asterix
