#include "modes/mode_s_decoder.h"

using namespace korvane::modes;

int main()
{
    std::string buffer = "*8D4840D6202CC371C32CE0576098;";
    const auto frames = ModeSEncapsulation::extract(buffer, ModeSEncapsulation::Avr);
    ModeSDecoder decoder;
    return frames.size() == 1 && decoder.decode(ModeSMessage::AnyDownlink, frames.front())->valid() ? 0 : 1;
}
