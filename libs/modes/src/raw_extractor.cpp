#include "extractors.h"

#include "downlink_format.h"
#include "modes/parity.h"

#include <algorithm>

namespace korvane::modes {

namespace {

// Nothing marks where a frame begins. What proves one is a parity of its own; others are taken on trust where they
// follow a frame, or as the first of a row.
class RawExtractor {
public:
    RawExtractor(std::string_view data, bool hasLevel)
        : m_data(reinterpret_cast<const unsigned char *>(data.data())), m_size(data.size()), m_extra(hasLevel ? 1 : 0)
    {
    }

    std::size_t extract(std::vector<ModeSFrame> &frames)
    {
        std::size_t offset = 0;
        bool isInStep = true;
        while (offset < m_size) {
            const Look look = lookAt(offset);
            if (look == Look::Incomplete) {
                break;
            }
            isInStep = look == Look::Proven || (isInStep ? isLikely(look, offset) : isRow(offset));
            if (isInStep) {
                append(offset, frames);
            }
            offset += isInStep ? stride(offset) : 1;
        }
        return offset;
    }

private:
    enum class Look { Nothing, Incomplete, Failed, Trusted, Proven };
    static constexpr int RowLength = 4;

    std::size_t stride(std::size_t offset) const { return downlinkFormatOf(m_data[offset]).length + m_extra; }

    Look lookAt(std::size_t offset) const
    {
        const DownlinkFormat format = downlinkFormatOf(m_data[offset]);
        if (format.parity == ParityKind::Unknown) {
            return Look::Nothing;
        }
        if (m_size - offset < format.length + m_extra) {
            return Look::Incomplete;
        }
        if (format.parity == ParityKind::Address) {
            return Look::Trusted;
        }
        const std::uint32_t remainder = parityRemainder(m_data + offset, format.length);
        const std::uint32_t allowed = format.parity == ParityKind::Interrogator ? InterrogatorMask : 0;
        return (remainder & ~allowed) == 0 ? Look::Proven : Look::Failed;
    }

    // Where a frame is due: a reply that nothing speaks against, or a frame with wrong bits, which keeps its length, so
    // that the next begins behind it.
    bool isLikely(Look look, std::size_t offset) const
    {
        const std::size_t next = offset + stride(offset);
        if (look == Look::Failed) {
            return next == m_size || lookAt(next) > Look::Failed;
        }
        if (look != Look::Trusted) {
            return false;
        }
        for (std::size_t inside = offset + 1; inside < next; ++inside) {
            if (lookAt(inside) == Look::Proven) {
                return false;
            }
        }
        return true;
    }

    bool isRow(std::size_t offset) const
    {
        for (int i = 0; i < RowLength; ++i) {
            if (offset >= m_size || lookAt(offset) < Look::Trusted) {
                return false;
            }
            offset += stride(offset);
        }
        return true;
    }

    void append(std::size_t offset, std::vector<ModeSFrame> &frames) const
    {
        ModeSFrame &frame = frames.emplace_back();
        frame.length = downlinkFormatOf(m_data[offset]).length;
        std::copy_n(m_data + offset, frame.length, frame.octets);
        if (m_extra) {
            frame.signalLevel = m_data[offset + frame.length];
        }
    }

    const unsigned char *m_data;
    std::size_t m_size;
    std::size_t m_extra;
};

} // namespace

std::size_t extractRaw(std::string_view data, std::vector<ModeSFrame> &frames)
{
    return RawExtractor(data, false).extract(frames);
}

std::size_t extractRawRssi(std::string_view data, std::vector<ModeSFrame> &frames)
{
    return RawExtractor(data, true).extract(frames);
}

} // namespace korvane::modes
