#pragma once

#include "asterix/asterix.h"
#include "vyx-asterix/input_file.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>

// Splits messages into data blocks and decides what is a fault, what is passed over and where to go on.
class BlockReader {
public:
    struct Block {
        const _ast_datablock_t &decoded; // its records up to the fault, where there is one
        const InputMessage &message;
        std::size_t offset = 0; // of the block in the message
        std::uint64_t number = 0; // from 1, through the whole file
    };
    using BlockHandler = std::function<void(const Block &)>;
    using FaultHandler = std::function<void(const std::string &line)>;

    // fileName begins each line of the fault handler. uap lives at least as long as the reader.
    BlockReader(std::string fileName, const _ast_uap_t *uap, BlockHandler onBlock, FaultHandler onFault);

    void read(const InputMessage &message);
    // Lines on what was passed over, in the order of categories.
    void reportPassedOver();

    // Malformed blocks so far.
    std::uint64_t faults() const { return m_faults; }

private:
    bool isTrailer(const InputMessage &message, std::size_t offset) const;
    void fault(const InputMessage &message, std::size_t offset);

    std::string m_fileName;
    const _ast_uap_t *m_uap;
    BlockHandler m_onBlock;
    FaultHandler m_onFault;
    _ast_datablock_t m_block;
    std::uint64_t m_number = 0;
    std::uint64_t m_faults = 0;
    std::uint64_t m_trailers = 0;
    std::map<std::uint32_t, std::uint64_t> m_unknown; // blocks by category
};
