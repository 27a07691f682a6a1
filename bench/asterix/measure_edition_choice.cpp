// How often smart decoding finds the edition of a CAT021 block, as a table for docs/asterix.md.
//
//     measure_edition_choice [BLOCKS]          blocks made here, so many a line (default 5000)
//     measure_edition_choice EDITION FILE.ast  the blocks of a file, all of that edition
//
// A block object of its own decodes every block: nothing is remembered from one to the next.

#include "adsb_blocks.h"
#include "edition_choice.h"
#include "random_records.h"

#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <map>

namespace {

struct Tally {
    int named = 0;
    int same = 0;
    int wrong = 0;

    void add(EditionChoice choice)
    {
        named += choice == EditionChoice::Named;
        same += choice == EditionChoice::ReadsTheSame;
        wrong += choice == EditionChoice::Wrong;
    }
    double percent(int count) const { return 100.0 * count / std::max(1, named + same + wrong); }
};

void print(const char *kind, const std::string &edition, int records, const Tally &tally)
{
    std::printf("| %s | %s | %d | %.2f | %.2f | %.2f |\n", kind, edition.c_str(), records, tally.percent(tally.named),
        tally.percent(tally.same), tally.percent(tally.wrong));
}

EditionChoice freshChoice(std::span<const unsigned char> octets, const std::string &edition)
{
    _ast_datablock_t block;
    return choiceFor(octets, edition, block);
}

template <typename Maker>
void measure(const char *kind, const std::string &edition, Maker maker, int blocks)
{
    for (const int records : {1, 2, 3, 5, 10}) {
        Tally tally;
        for (int i = 0; i < blocks; ++i) {
            tally.add(freshChoice(maker.makeBlock(records).block(), edition));
        }
        print(kind, edition, records, tally);
    }
}

int measureFile(const std::string &edition, const char *fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        std::perror(fileName);
        return 1;
    }
    const QByteArray contents = file.readAll();
    const auto *at = reinterpret_cast<const unsigned char *>(contents.data());
    std::span<const unsigned char> left(at, static_cast<std::size_t>(contents.size()));
    std::map<int, Tally> tallies;
    _ast_datablock_t block;
    while (ast_datablock_smart_decode(&block, left.data(), left.size()) && block.size > 0) {
        korvane::asterix::Profile profile;
        profile.select(21, edition);
        const std::span<const unsigned char> octets = left.first(block.size);
        ast_datablock_decode(&block, octets.data(), octets.size(), profile.uap());
        tallies[static_cast<int>(block.records.size())].add(freshChoice(octets, edition));
        left = left.subspan(octets.size());
    }
    for (const auto &[records, tally] : tallies) {
        print("file", edition, records, tally);
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    std::puts(
        "| blocks | edition | records | edition named % | reads the same % | wrong % |\n|---|---|--:|--:|--:|--:|");
    if (argc == 3) {
        return measureFile(argv[1], argv[2]);
    }
    const int blocks = argc > 1 ? std::atoi(argv[1]) : 5000;
    for (const char *edition : {"0.23", "0.26", "2.1", "2.7"}) {
        measure("as stations send them", edition, AdsbBlocks(edition, 1), blocks);
        measure("random", edition, RandomRecords(21, edition, nullptr, 1), blocks);
    }
    return 0;
}
