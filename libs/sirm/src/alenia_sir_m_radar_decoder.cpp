#include "sirm/alenia_sir_m_radar_decoder.h"

#include "layout.h"

using namespace sirm_layout;

namespace {

using Error = AleniaSirMRadarDecoder::Error;
using Result = AleniaSirMRadarDecoder::Result;
using Type = AleniaSirMRadarMessage::Type;

Result failure(Error error, std::size_t offset)
{
    Result result;
    result.error = error;
    result.errorOffset = offset;
    return result;
}

// 0 for types that there are not.
std::size_t fixedSize(std::uint32_t type)
{
    switch (static_cast<Type>(type)) {
    case Type::NorthMarker:
        return north_marker::Size;
    case Type::Data:
        return data::Size;
    }
    return 0;
}

Error findHeaderFault(const unsigned char *octets, std::size_t length, std::size_t &offset)
{
    offset = length;
    if (length < header::Size) {
        return Error::HeaderTruncated;
    }
    const std::size_t size = bitsOf(octets, header::Length);
    const std::size_t fixed = fixedSize(bitsOf(octets, header::Type));
    offset = fixed == 0 ? header::Type.offset : header::Length.offset;
    if (fixed == 0) {
        return Error::UnknownType;
    }
    if (size < fixed) {
        return Error::LengthTooShort;
    }
    return size > length ? Error::MessageTruncated : Error::None;
}

std::unique_ptr<AleniaSirMRadarMessage> decodeNorthMarker(const unsigned char *octets)
{
    auto message = std::make_unique<AleniaSirMRadarNorthMarkerMessage>();
    message->setFixedOctets(octets);
    return message;
}

std::unique_ptr<AleniaSirMRadarMessage> decodeData(const unsigned char *octets)
{
    auto message = std::make_unique<AleniaSirMRadarDataMessage>();
    const std::size_t plots = bitsOf(octets, data::PlotCount);
    const std::size_t tracks = bitsOf(octets, data::TrackCount);
    message->setFixedOctets(octets);
    message->reserve(plots, tracks);
    const unsigned char *const plotOctets = octets + data::Size;
    for (std::size_t i = 0; i < plots; ++i) {
        message->addPlotRecord(AleniaSirMRadarPlotRecord::fromOctets(plotOctets + i * plot::Size));
    }
    const unsigned char *const trackOctets = plotOctets + plots * plot::Size;
    for (std::size_t i = 0; i < tracks; ++i) {
        message->addTrackRecord(AleniaSirMRadarTrackRecord::fromOctets(trackOctets + i * track::Size));
    }
    return message;
}

std::size_t sizeFromRecordCounts(const unsigned char *octets)
{
    return data::Size + bitsOf(octets, data::PlotCount) * plot::Size + bitsOf(octets, data::TrackCount) * track::Size;
}

} // namespace

AleniaSirMRadarDecoder::Result AleniaSirMRadarDecoder::decode(const unsigned char *octets, std::size_t length)
{
    std::size_t offset = 0;
    if (const Error error = findHeaderFault(octets, length, offset); error != Error::None) {
        return failure(error, offset);
    }
    const bool isData = static_cast<Type>(bitsOf(octets, header::Type)) == Type::Data;
    Result result;
    result.size = bitsOf(octets, header::Length);
    if (result.size != (isData ? sizeFromRecordCounts(octets) : north_marker::Size)) {
        return failure(Error::LengthMismatch, header::Length.offset);
    }
    result.message = isData ? decodeData(octets) : decodeNorthMarker(octets);
    return result;
}

const char *AleniaSirMRadarDecoder::errorText(Error error)
{
    switch (error) {
    case Error::None:
        return "no error";
    case Error::HeaderTruncated:
        return "message header is cut short";
    case Error::UnknownType:
        return "unknown message type";
    case Error::LengthTooShort:
        return "length leaves no room for the message";
    case Error::MessageTruncated:
        return "message runs past the end of the data";
    case Error::LengthMismatch:
        return "length does not fit the number of records";
    }
    return "unknown error";
}
