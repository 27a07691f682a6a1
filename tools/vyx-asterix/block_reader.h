#pragma once

#include "asterix/profile.h"
#include "vyx-asterix/command_line.h"
#include "vyx-asterix/input_file.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

// Splits messages into data blocks, chooses their editions and decides what is a fault, what is passed over and where
// to go on.
class BlockReader {
public:
    struct Block {
        const _ast_datablock_t &decoded; // its records up to the fault, where there is one
        const InputMessage &message;
        std::uint64_t number = 0; // from 1, through the whole file
    };
    using BlockHandler = std::function<void(const Block &)>;
    using LineHandler = std::function<void(const std::string &line)>;

    // The command's file name begins each line, its editions are those to decode with. CAT021, which exists in editions
    // that differ and do not say so, is decoded in the edition that each source's blocks suggest where none is named.
    BlockReader(const CommandLine &command, BlockHandler onBlock, LineHandler onLine);

    void read(const InputMessage &message);
    // Lines on the editions that were chosen by contents, and on what was passed over in the order of categories.
    void reportAtEnd();

    // Malformed blocks so far.
    std::uint64_t faults() const { return m_faults; }

private:
    bool decode(const unsigned char *data, std::size_t length);
    bool isTrailer(const InputMessage &message, std::size_t offset) const;
    void deliver(const InputMessage &message);
    void fault(const InputMessage &message, std::size_t offset);

    std::string m_fileName;
    korvane::asterix::Profile m_profile;
    bool m_isChoosingEdition = true;
    BlockHandler m_onBlock;
    LineHandler m_onLine;
    _ast_datablock_t m_block;
    std::uint64_t m_number = 0;
    std::uint64_t m_faults = 0;
    std::uint64_t m_trailers = 0;
    std::map<std::uint32_t, std::uint64_t> m_unknown; // blocks by category
    std::map<std::string_view, std::uint64_t> m_chosen; // blocks by edition
};
