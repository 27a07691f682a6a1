#include "vyx-asterix/encode_command.h"

#include "asterix/json_encoder.h"
#include "vyx-asterix/input_file.h"

int runEncode(const CommandLine &command, const TextSink &out, const LineSink &err)
{
    std::string text;
    std::string error;
    if (!readWholeFile(command.fileName, text, error)) {
        err(error);
        return 1;
    }
    bool isGood = true;
    korvane::asterix::JsonEncoder encoder([&](std::span<const unsigned char> block) {
        isGood = out({reinterpret_cast<const char *>(block.data()), block.size()}) && isGood;
    });
    for (const auto &[category, edition] : command.editions) {
        encoder.select(category, edition);
    }
    std::size_t number = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        const std::string_view line = std::string_view(text).substr(start, end - start);
        ++number;
        start = end + 1;
        if (line.find_first_not_of(" \t\r") == std::string_view::npos) {
            continue;
        }
        if (!encoder.addLine(line)) {
            isGood = false;
            err(command.fileName + ": line " + std::to_string(number) + ": " + encoder.lastError());
        }
    }
    encoder.finish();
    return isGood ? 0 : 1;
}
