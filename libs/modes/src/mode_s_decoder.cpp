#include "modes/mode_s_decoder.h"

#include "bits.h"
#include "downlink_format.h"
#include "modes/codes.h"
#include "modes/parity.h"

#include <algorithm>

namespace korvane::modes {

namespace {

constexpr std::size_t BucketSize = 4;
constexpr unsigned BucketBits = 12;

// Bits of the first four octets, numbered from 1.
std::uint32_t headBits(const ModeSFrame &frame, int first, int count)
{
    return load32(frame.octets) >> (33 - first - count) & ((1U << count) - 1);
}

// Whether a rebroadcast squitter has another address than an ICAO one: a bit that each type puts elsewhere.
bool hasOtherAddress(std::uint64_t me)
{
    const std::uint32_t typeCode = bits(me, 1, 5);
    if (typeCode == 0 || (typeCode >= 9 && typeCode <= 18) || (typeCode >= 20 && typeCode <= 22)) {
        return bit(me, 8);
    }
    if (typeCode >= 5 && typeCode <= 8) {
        return bit(me, 21);
    }
    if (typeCode == 19) {
        return bit(me, 9);
    }
    if (typeCode == 29) {
        return bit(me, 51);
    }
    return (typeCode == 28 || typeCode == 31) && bit(me, 56);
}

} // namespace

ModeSDecoder::ModeSDecoder() : m_heard(BucketSize << BucketBits) { }

std::shared_ptr<ModeSMessage> ModeSDecoder::decode(
    ModeSMessage::ModeSMsgType type, const std::shared_ptr<ModeSEncapsulation> &encapsulation)
{
    if (!m_message || m_message.use_count() > 1) {
        m_message = std::make_shared<ModeSMessage>();
    }
    if (encapsulation) {
        decode(type, encapsulation->frame(), *m_message);
    } else {
        *m_message = ModeSMessage();
    }
    return m_message;
}

void ModeSDecoder::decode(ModeSMessage::ModeSMsgType type, const ModeSFrame &frame, ModeSMessage &message)
{
    using Fault = ModeSMessage::Fault;
    const DownlinkFormat format = downlinkFormatOf(frame.octets[0]);
    message.reset(frame);
    message.m_downlinkFormat = static_cast<std::int8_t>(format.number);
    if (frame.length == 2) {
        message.m_fault = Fault::NotModeS;
    } else if (format.parity == ParityKind::Unknown) {
        message.m_fault = Fault::DownlinkFormat;
    } else if (frame.length != format.length) {
        message.m_fault = Fault::Length;
    } else if (type == ModeSMessage::ExtendedSquitter && format.parity != ParityKind::Own) {
        message.m_fault = Fault::MessageType;
    } else {
        message.m_fault = Fault::None;
    }
    if (!message.valid()) {
        return;
    }
    const std::uint32_t remainder = parityRemainder(frame.octets, frame.length);
    if (format.parity != ParityKind::Address) {
        decodeOwnParity(message, remainder);
        return;
    }
    message.m_address = remainder;
    confirm(message);
    if (message.valid()) {
        decodeReply(message);
    }
}

// The address that comes out of a damaged frame is any: only one that was heard otherwise proves the frame.
void ModeSDecoder::confirm(ModeSMessage &message) const
{
    message.m_isAddressConfirmed = isRemembered(message.m_address, message.timeStamp());
    if (!message.m_isAddressConfirmed && m_isCheckingAddress) {
        message.m_fault = ModeSMessage::Fault::UnknownAddress;
    }
}

void ModeSDecoder::decodeReply(ModeSMessage &message) const
{
    const ModeSFrame &frame = message.m_frame;
    const int format = message.m_downlinkFormat;
    if (frame.length == 14) {
        message.m_messageField = load64(frame.octets + 4) >> 8;
    }
    if (format == 24) {
        message.m_status = static_cast<std::uint8_t>(headBits(frame, 5, 4));
        return;
    }
    if (format == 5 || format == 21) {
        message.m_squawk = squawkFromCode(headBits(frame, 20, 13));
    } else {
        message.m_altitude = altitudeFromCode(headBits(frame, 20, 13));
    }
    if (format == 0 || format == 16) {
        message.m_status = static_cast<std::uint8_t>(headBits(frame, 6, 1));
        message.m_isOnGround = message.m_status == 1;
        return;
    }
    message.m_status = static_cast<std::uint8_t>(headBits(frame, 6, 3));
    if (message.m_status < 4) { // above: alert or identification without a word on the ground
        message.m_isOnGround = message.m_status % 2 == 1;
    }
}

void ModeSDecoder::decodeOwnParity(ModeSMessage &message, std::uint32_t remainder)
{
    const bool isAllCall = message.m_downlinkFormat == 11;
    const bool isGood = isAllCall ? (remainder & ~InterrogatorMask) == 0 : remainder == 0;
    if (!isGood && !(m_isCorrecting && correct(message, remainder))) {
        message.m_fault = ModeSMessage::Fault::Parity;
        return;
    }
    message.m_address = load24(message.m_frame.octets + 1);
    message.m_status = static_cast<std::uint8_t>(headBits(message.m_frame, 6, 3));
    if (isAllCall && isGood) {
        message.m_interrogator = static_cast<std::uint8_t>(remainder);
    }
    if (!isAllCall) {
        decodeSquitterFrame(message);
    }
    if (message.m_downlinkFormat != 18 && (message.m_status == 4 || message.m_status == 5)) {
        message.m_isOnGround = message.m_status == 4;
    }
    message.m_isAddressConfirmed = true;
    if (message.m_addressKind == ModeSMessage::AddressKind::Icao && message.m_correctedBit == 0) {
        remember(message.m_address, message.timeStamp());
    }
}

bool ModeSDecoder::correct(ModeSMessage &message, std::uint32_t remainder) const
{
    constexpr int FormatBits = 5; // wrong ones would have made another format of it
    const int position = faultyBit(remainder, message.m_frame.length);
    if (position <= FormatBits) {
        return false;
    }
    message.m_correctedBit = static_cast<std::uint8_t>(position);
    message.m_frame.octets[(position - 1) / 8] ^= static_cast<unsigned char>(0x80 >> (position - 1) % 8);
    return true;
}

void ModeSDecoder::decodeSquitterFrame(ModeSMessage &message) const
{
    enum ControlField { AdsbIcao = 0, AdsbOther = 1, TisbFine = 2, TisbCoarse = 3, TisbOther = 5, Rebroadcast = 6 };
    const std::uint64_t me = load64(message.m_frame.octets + 4) >> 8;
    const int control = message.m_downlinkFormat == 17 ? static_cast<int>(AdsbIcao) : message.m_status;
    bool isOther = control == AdsbOther || control == TisbOther;
    message.m_messageField = me;
    if (control == TisbCoarse) {
        isOther = bit(me, 1);
        message.m_content = decodeCoarsePosition(me);
    } else if (control <= Rebroadcast && control != 4) { // 4: management, 7: reserved
        message.m_typeCode = static_cast<std::int8_t>(bits(me, 1, 5));
        message.m_content = decodeSquitter(me);
        isOther = isOther || ((control == TisbFine || control == Rebroadcast) && hasOtherAddress(me));
    } else {
        isOther = true;
    }
    message.m_addressKind = isOther ? ModeSMessage::AddressKind::Other : ModeSMessage::AddressKind::Icao;
}

std::size_t ModeSDecoder::bucketOf(std::uint32_t address)
{
    return BucketSize * (address * 2654435761U >> (32 - BucketBits));
}

void ModeSDecoder::remember(std::uint32_t address, unsigned long long time)
{
    Heard *const bucket = &m_heard[bucketOf(address)];
    Heard *place = bucket;
    for (Heard *entry = bucket; entry != bucket + BucketSize; ++entry) {
        if (entry->address == address) {
            entry->time = time;
            return;
        }
        const bool isBetter = entry->address == NoAddress || entry->time < place->time;
        if (place->address != NoAddress && isBetter) {
            place = entry;
        }
    }
    *place = {address, time};
}

// Times may go backwards, where a recording starts over.
bool ModeSDecoder::isRemembered(std::uint32_t address, unsigned long long time) const
{
    const Heard *const bucket = &m_heard[bucketOf(address)];
    return std::any_of(bucket, bucket + BucketSize, [=](const Heard &entry) {
        const unsigned long long age = entry.time < time ? time - entry.time : entry.time - time;
        return entry.address == address && age <= AddressMemory;
    });
}

} // namespace korvane::modes
