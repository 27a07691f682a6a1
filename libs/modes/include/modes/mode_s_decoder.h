#pragma once

#include "modes/mode_s_encapsulation.h"
#include "modes/mode_s_message.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace korvane::modes {

// Decodes frames one by one. Remembers the addresses that it has heard in frames with a parity of their own (DF 11,
// 17, 18), to tell the good among those whose parity is laid over the address (DF 0, 4, 5, 16, 20, 21, 24).
// For one thread.
class ModeSDecoder {
public:
    ModeSDecoder();

    // Never null. The message is reused by the next call when nobody else holds it any more.
    std::shared_ptr<ModeSMessage> decode(
        ModeSMessage::ModeSMsgType type, const std::shared_ptr<ModeSEncapsulation> &encapsulation);
    // The same into a message of the caller's.
    void decode(ModeSMessage::ModeSMsgType type, const ModeSFrame &frame, ModeSMessage &message);

    // Puts single wrong bits right in DF 11, 17 and 18. Off at first: it lets through a hundred times as many frames of
    // noise, of which one in 16 million passes otherwise.
    void setErrorCorrection(bool isOn) { m_isCorrecting = isOn; }
    // Whether an address in the parity must have been heard recently for the message to be valid. On at first.
    void setAddressCheck(bool isOn) { m_isCheckingAddress = isOn; }

    static constexpr unsigned long long AddressMemory = 60000; // milliseconds

private:
    struct Heard {
        std::uint32_t address = NoAddress;
        unsigned long long time = 0;
    };
    static constexpr std::uint32_t NoAddress = 0xFFFFFFFF;

    void decodeReply(ModeSMessage &message) const;
    void decodeOwnParity(ModeSMessage &message, std::uint32_t remainder);
    bool correct(ModeSMessage &message, std::uint32_t remainder) const;
    void decodeSquitterFrame(ModeSMessage &message) const;
    void confirm(ModeSMessage &message) const;
    static std::size_t bucketOf(std::uint32_t address);
    void remember(std::uint32_t address, unsigned long long time);
    bool isRemembered(std::uint32_t address, unsigned long long time) const;

    bool m_isCorrecting = false;
    bool m_isCheckingAddress = true;
    std::vector<Heard> m_heard; // buckets of a few
    std::shared_ptr<ModeSMessage> m_message;
};

} // namespace korvane::modes
