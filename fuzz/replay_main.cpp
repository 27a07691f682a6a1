// Runs a fuzzer without libFuzzer: over the files given, and over mutations of them.
//     fuzz_NAME [--mutate N] [--seed S] FILE|FOLDER...

#include "mutator.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size);

namespace {

Octets readFile(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return Octets(std::istreambuf_iterator<char>(file), {});
}

std::vector<std::filesystem::path> filesOf(const std::filesystem::path &path)
{
    std::vector<std::filesystem::path> files;
    if (!std::filesystem::is_directory(path)) {
        return {path};
    }
    for (const auto &entry : std::filesystem::directory_iterator(path)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end()); // the order of a folder is not the same everywhere
    return files;
}

// A copy of exactly the input's size, so that a sanitizer sees a read of the octet after it.
void run(const Octets &octets)
{
    const std::unique_ptr<unsigned char[]> exact(new unsigned char[octets.size()]);
    std::copy(octets.begin(), octets.end(), exact.get());
    LLVMFuzzerTestOneInput(exact.get(), octets.size());
}

} // namespace

int main(int argc, char *argv[])
{
    unsigned long long mutations = 0;
    unsigned long long seed = 1;
    std::vector<Octets> corpus;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument == "--mutate" && i + 1 < argc) {
            mutations = std::strtoull(argv[++i], nullptr, 10);
        } else if (argument == "--seed" && i + 1 < argc) {
            seed = std::strtoull(argv[++i], nullptr, 10);
        } else {
            for (const std::filesystem::path &file : filesOf(argument)) {
                corpus.push_back(readFile(file));
            }
        }
    }
    if (corpus.empty()) {
        std::fprintf(stderr, "no corpus: %s [--mutate N] [--seed S] FILE|FOLDER...\n", argv[0]);
        return 2;
    }
    for (const Octets &octets : corpus) {
        run(octets);
    }
    Mutator mutator(corpus, seed);
    for (unsigned long long i = 0; i < mutations; ++i) {
        run(mutator.next());
    }
    std::printf("%zu files, %llu mutations\n", corpus.size(), mutations);
    return 0;
}
