#include "recognition/stream_analyser.h"

#include "recognition/asterix_hypothesis.h"
#include "recognition/mode_s_hypothesis.h"
#include "recognition/sir_m_hypothesis.h"

#include <algorithm>

using korvane::modes::ModeSEncapsulation;

namespace {

constexpr qint64 DropPeriod = 128 * 1024; // octets
constexpr qint64 HopelessShare = 8; // a hypothesis that explains less than this part of the best one is given up
// Of much that is no surveillance data a few octets look as if they were.
constexpr qint64 ChanceShare = 1000;

bool explainsLess(const std::unique_ptr<StreamHypothesis> &a, const std::unique_ptr<StreamHypothesis> &b)
{
    return a->explained() < b->explained();
}

} // namespace

StreamAnalyser::StreamAnalyser() : m_nextDrop(DropPeriod)
{
    for (const auto format :
        {Config::AsterixFormat::Raw, Config::AsterixFormat::Hdlc, Config::AsterixFormat::ManagAir}) {
        m_hypotheses.push_back(std::make_unique<AsterixHypothesis>(format));
    }
    for (const auto format :
        {ModeSEncapsulation::Beast, ModeSEncapsulation::Avr, ModeSEncapsulation::Raw, ModeSEncapsulation::RawRssi}) {
        m_hypotheses.push_back(std::make_unique<ModeSHypothesis>(format));
    }
    for (const auto format :
        {Config::AleniaSirMFormat::Raw, Config::AleniaSirMFormat::Hdlc, Config::AleniaSirMFormat::ManagAir}) {
        m_hypotheses.push_back(std::make_unique<SirMHypothesis>(format));
    }
}

StreamAnalyser::~StreamAnalyser() = default;

void StreamAnalyser::add(const QByteArray &message, const QDateTime &time)
{
    ++m_counts.messages;
    m_counts.octets += message.size();
    std::optional<qint64> timeMs;
    if (time.isValid()) {
        timeMs = time.toMSecsSinceEpoch();
        m_counts.first = m_counts.first.isValid() ? std::min(m_counts.first, time) : time;
        m_counts.last = m_counts.last.isValid() ? std::max(m_counts.last, time) : time;
    }
    const std::span octets(
        reinterpret_cast<const unsigned char *>(message.constData()), static_cast<std::size_t>(message.size()));
    for (const auto &hypothesis : m_hypotheses) {
        hypothesis->add(octets, timeMs);
    }
    if (m_counts.octets >= m_nextDrop) {
        m_nextDrop = m_counts.octets + DropPeriod;
        dropUnlikely();
    }
}

const StreamHypothesis *StreamAnalyser::best() const
{
    return std::max_element(m_hypotheses.begin(), m_hypotheses.end(), explainsLess)->get(); // the first of equals
}

void StreamAnalyser::dropUnlikely()
{
    const qint64 most = best()->explained();
    std::erase_if(m_hypotheses, [most](const std::unique_ptr<StreamHypothesis> &hypothesis) {
        return hypothesis->explained() < most / HopelessShare;
    });
}

StreamFindings StreamAnalyser::findings() const
{
    StreamFindings findings = m_counts;
    const StreamHypothesis *likeliest = best();
    if (likeliest->explained() > 0 && likeliest->explained() >= findings.octets / ChanceShare) {
        likeliest->report(&findings);
    } else {
        findings.undecodableOctets = findings.octets;
    }
    return findings;
}
