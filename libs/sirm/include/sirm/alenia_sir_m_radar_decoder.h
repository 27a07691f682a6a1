#pragma once

#include "sirm/alenia_sir_m_radar_message.h"

#include <memory>

// Turns octets into messages. Has no state: any thread, any number of threads.
class AleniaSirMRadarDecoder {
public:
    enum class Error {
        None,
        HeaderTruncated, // fewer octets than a message header
        UnknownType, // the first octet names no message type
        LengthTooShort, // the length field leaves no room for the fixed part of the type
        MessageTruncated, // the length field goes past the octets
        LengthMismatch, // the length field does not fit the numbers of records
    };

    struct Result {
        std::unique_ptr<AleniaSirMRadarMessage> message; // null on error
        Error error = Error::None;
        std::size_t errorOffset = 0; // octet of the field at fault
        std::size_t size = 0; // octets that the message takes up; 0 on error

        bool valid() const { return message != nullptr; }
    };

    // Decodes the one message that the octets begin with; what follows it is left alone (size tells where it starts).
    // Never reads past length, never throws but for want of memory, keeps nothing of them.
    static Result decode(const unsigned char *octets, std::size_t length);

    // A few English words, static.
    static const char *errorText(Error error);
};
