#include "sample_blocks.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

int main(int argc, char *argv[])
{
    const std::string_view kind = argc == 4 ? argv[1] : "";
    if (kind != "plots" && kind != "tracks") {
        std::fputs("usage: make_sample_blocks plots|tracks RECORDS FILE\n", stderr);
        return 2;
    }
    const auto count = static_cast<std::size_t>(std::strtoull(argv[2], nullptr, 10));
    const SampleBlocks blocks = kind == "plots" ? makePlotBlocks(count) : makeTrackBlocks(count);
    std::FILE *file = std::fopen(argv[3], "wb");
    if (!file || std::fwrite(blocks.octets.data(), 1, blocks.octets.size(), file) != blocks.octets.size()) {
        std::perror(argv[3]);
        return 1;
    }
    std::printf("%zu records, %zu octets\n", blocks.records, blocks.octets.size());
    return std::fclose(file) == 0 ? 0 : 1;
}
