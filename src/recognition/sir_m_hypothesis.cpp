#include "recognition/sir_m_hypothesis.h"

#include "engine/envelope.h"
#include "sirm/alenia_sir_m_radar_decoder.h"

#include <algorithm>

void SirMHypothesis::add(std::span<const unsigned char> message, std::optional<qint64> timeMs)
{
    auto left = message.subspan(std::min(message.size(), envelopeSize(m_format)));
    auto result = AleniaSirMRadarDecoder::decode(left.data(), left.size());
    m_undecodable += result.valid() ? 0 : static_cast<qint64>(left.size());
    while (result.valid()) {
        m_counts.radarId = m_explained == 0 ? result.message->radarId() : m_counts.radarId;
        m_explained += static_cast<qint64>(result.size);
        addMessage(*result.message, timeMs);
        left = left.subspan(result.size);
        result = AleniaSirMRadarDecoder::decode(left.data(), left.size());
    }
}

void SirMHypothesis::addMessage(const AleniaSirMRadarMessage &message, std::optional<qint64> timeMs)
{
    std::optional<int> mark;
    if (const auto *marker = dynamic_cast<const AleniaSirMRadarNorthMarkerMessage *>(&message)) {
        ++m_counts.northMarkers;
        mark = 0;
        if (marker->rotationPeriod() > 0) {
            m_counts.rotationPeriod = marker->rotationPeriod() / 1000.0;
        }
    } else if (const auto *data = dynamic_cast<const AleniaSirMRadarDataMessage *>(&message)) {
        m_counts.plots += static_cast<qint64>(data->plotRecords().size());
        m_counts.tracks += static_cast<qint64>(data->trackRecords().size());
        mark = data->sectorValid() ? std::optional(1 + static_cast<int>(data->sector())) : std::nullopt;
    }
    if (mark && timeMs) {
        m_turnMarks.note(*mark, *timeMs);
    }
}

void SirMHypothesis::report(StreamFindings *findings) const
{
    findings->kind = Config::ProcessorType::AleniaSirM;
    findings->aleniaSirMFormat = m_format;
    findings->undecodableOctets = m_undecodable;
    findings->sirM = m_counts;
    if (findings->sirM.rotationPeriod <= 0.0) {
        findings->sirM.rotationPeriod = m_turnMarks.period().value_or(0.0);
    }
}
