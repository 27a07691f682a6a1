#include "modes/mode_s_message.h"

#include "advisory.h"
#include "bits.h"

namespace korvane::modes {

// Field by field: assigning a whole new message copies the largest of the contents too.
void ModeSMessage::reset(const ModeSFrame &frame)
{
    m_frame = frame;
    m_messageField = 0;
    m_address = 0;
    m_fault = Fault::NotDecoded;
    m_addressKind = AddressKind::Icao;
    m_downlinkFormat = -1;
    m_typeCode = -1;
    m_status = 0;
    m_interrogator = 0;
    m_correctedBit = 0;
    m_isAddressConfirmed = false;
    m_isOnGround.reset();
    m_altitude.reset();
    m_squawk.reset();
    m_content.emplace<std::monostate>();
}

RegisterCandidates ModeSMessage::registers() const
{
    const bool isCommB = m_downlinkFormat == 20 || m_downlinkFormat == 21;
    return isCommB ? inferRegisters(m_messageField, m_altitude) : RegisterCandidates();
}

std::optional<ResolutionAdvisory> ModeSMessage::coordination() const
{
    if (m_downlinkFormat != 16 || bits(m_messageField, 1, 8) != 0x30) {
        return std::nullopt;
    }
    return decodeAdvisory(m_messageField);
}

} // namespace korvane::modes
