#include "recognition/mode_s_hypothesis.h"

#include <algorithm>

using korvane::modes::ModeSEncapsulation;
using korvane::modes::ModeSFrame;
using korvane::modes::ModeSMessage;

namespace {

constexpr int ExtendedSquitter = 17;
constexpr int ExtendedSquitterRelayed = 18;
constexpr int ModeAcOctets = 2; // of a reply to a Mode A/C interrogation

} // namespace

void ModeSHypothesis::add(std::span<const unsigned char> message, std::optional<qint64> timeMs)
{
    m_buffer.append(reinterpret_cast<const char *>(message.data()), message.size());
    const std::size_t taken = ModeSEncapsulation::extractAll(m_buffer, m_format, m_frames);
    m_buffer.erase(0, taken);
    auto unclaimed = static_cast<qint64>(taken);
    for (ModeSFrame &frame : m_frames) {
        frame.timeStamp = timeMs ? static_cast<unsigned long long>(*timeMs) : frame.timeStamp;
        unclaimed -= octetsOf(frame);
        addFrame(frame);
    }
    // Text has line ends and stamps of several lengths between its frames.
    m_passedOver += m_format == ModeSEncapsulation::Avr ? 0 : std::max<qint64>(unclaimed, 0);
}

// The least that the frame takes in its encapsulation.
qint64 ModeSHypothesis::octetsOf(const ModeSFrame &frame) const
{
    switch (m_format) {
    case ModeSEncapsulation::Avr:
        return 2 * frame.length + 2;
    case ModeSEncapsulation::Beast:
        return frame.length + 9;
    case ModeSEncapsulation::RawRssi:
        return frame.length + 1;
    case ModeSEncapsulation::Raw:
        break;
    }
    return frame.length;
}

void ModeSHypothesis::addFrame(const ModeSFrame &frame)
{
    if (frame.length == ModeAcOctets) {
        ++m_counts.modeAcReplies;
        m_explained += octetsOf(frame);
        return;
    }
    m_decoder.decode(ModeSMessage::AnyDownlink, frame, m_message);
    if (!m_message.valid()) {
        return;
    }
    m_explained += octetsOf(frame);
    ++m_counts.frames;
    m_counts.squitters +=
        m_message.downlinkFormat() == ExtendedSquitter || m_message.downlinkFormat() == ExtendedSquitterRelayed;
    const auto target = m_tracker.procModeSMsg(m_message);
    if (target && target->positionValid() && target->positionTime() == frame.timeStamp) {
        m_places.add(target->latitude(), target->longitude());
    }
}

void ModeSHypothesis::report(StreamFindings *findings) const
{
    findings->kind = Config::ProcessorType::ModeS;
    findings->modeSEncapsulation = m_format;
    findings->undecodableOctets = m_passedOver;
    findings->modeS = m_counts;
    findings->modeS.aircraft = static_cast<qint64>(m_tracker.targets().size());
    findings->modeS.area = m_places.area();
}
