#pragma once

#include "modes/comm_b.h"
#include "modes/extended_squitter.h"
#include "modes/mode_s_frame.h"

#include <cstdint>
#include <optional>

namespace korvane::modes {

// One decoded downlink message.
class ModeSMessage {
public:
    // Which messages a caller wants: others come back not valid.
    enum ModeSMsgType {
        AnyDownlink = 0,
        ExtendedSquitter = 1, // DF 17 and 18
    };

    enum class Fault {
        None,
        NotDecoded,
        NotModeS, // a Mode A/C reply
        Length, // the frame's length is not that of its downlink format
        DownlinkFormat, // one that is reserved or not decoded here
        MessageType, // not of the type asked for
        Parity, // DF 11, 17, 18
        UnknownAddress, // the address in the parity belongs to no aircraft heard recently
    };

    enum class AddressKind {
        Icao, // the 24-bit aircraft address
        Other, // anonymous, ground vehicle, TIS-B track file
    };

    // Whether decoding succeeded. Everything below has a meaning for valid messages alone.
    bool valid() const { return m_fault == Fault::None; }
    Fault fault() const { return m_fault; }

    const ModeSFrame &frame() const { return m_frame; }
    unsigned long long timeStamp() const { return m_frame.timeStamp; } // milliseconds
    int downlinkFormat() const { return m_downlinkFormat; } // 24 for all of 24 to 31
    std::uint32_t icaoAddr() const { return m_address; }
    AddressKind addressKind() const { return m_addressKind; }
    // The frame's parity proves the address, or an aircraft with it was heard recently.
    bool isAddressConfirmed() const { return m_isAddressConfirmed; }
    // The bit that was put right, 1 to 112, or 0.
    int correctedBit() const { return m_correctedBit; }
    // DF 11: identifier of the interrogator, 0 for squitters.
    int interrogator() const { return m_interrogator; }
    // DF 4, 5, 20, 21: flight status. DF 11, 17: capability. DF 18: control field. DF 0, 16: 1 on the ground.
    // DF 24: number of the segment.
    int status() const { return m_status; }
    // Told by DF 0, 4, 5, 16, 20, 21 and by the capability of DF 11 and 17.
    std::optional<bool> isOnGround() const { return m_isOnGround; }

    // DF 0, 4, 16, 20: feet, barometric.
    std::optional<int> altitude() const { return m_altitude; }
    // DF 5, 21: the binary value of the four octal digits.
    std::optional<std::uint16_t> squawk() const { return m_squawk; }

    // DF 17, 18: 0 to 31; -1 in others.
    int typeCode() const { return m_typeCode; }
    const SquitterContent &content() const { return m_content; }

    // The 56-bit field of a long frame in the low bits.
    std::uint64_t messageField() const { return m_messageField; }
    // DF 20, 21: the registers that the field can be.
    RegisterCandidates registers() const;
    // DF 16: the advisory, where it carries one.
    std::optional<ResolutionAdvisory> coordination() const;

private:
    friend class ModeSDecoder;

    void reset(const ModeSFrame &frame);

    ModeSFrame m_frame;
    std::uint64_t m_messageField = 0;
    std::uint32_t m_address = 0;
    Fault m_fault = Fault::NotDecoded;
    AddressKind m_addressKind = AddressKind::Icao;
    std::int8_t m_downlinkFormat = -1;
    std::int8_t m_typeCode = -1;
    std::uint8_t m_status = 0;
    std::uint8_t m_interrogator = 0;
    std::uint8_t m_correctedBit = 0;
    bool m_isAddressConfirmed = false;
    std::optional<bool> m_isOnGround;
    std::optional<int> m_altitude;
    std::optional<std::uint16_t> m_squawk;
    SquitterContent m_content;
};

} // namespace korvane::modes
