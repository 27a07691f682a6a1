#include "recognition/stream_analyser.h"

#include "recognition/asterix_hypothesis.h"
#include "recognition/mode_s_hypothesis.h"
#include "recognition/sir_m_hypothesis.h"

#include <algorithm>
#include <initializer_list>
#include <map>

using korvane::modes::ModeSEncapsulation;

namespace {

constexpr qint64 SortingPeriod = 128 * 1024; // octets
constexpr qint64 HopelessShare = 8; // what explains less than this part of the best one is unlikely
// Of much that is no surveillance data a few octets look as if they were.
constexpr qint64 ChanceShare = 1000;

// That much of a message is not explained by chance.
constexpr qint64 ConvincingShare = 2;
// A single message may be explained by chance, or be a message of another port.
constexpr qint64 FewestAdmixed = 2;
constexpr qsizetype ShownOctets = 16;

} // namespace

// A way in which the stream may be meant, and how it does against the others.
struct StreamAnalyser::Candidate {
    std::unique_ptr<StreamHypothesis> hypothesis;
    bool isUnlikely = false; // asked only where no likely one has an answer
    qint64 ofMessage = 0; // octets of the newest message that it explained
    std::map<const StreamHypothesis *, qint64> winsOver; // messages that it explains, and the other nothing of

    template <typename Hypothesis, typename Format>
    static void addTo(std::vector<Candidate> &candidates, std::initializer_list<Format> formats)
    {
        for (const Format format : formats) {
            candidates.emplace_back().hypothesis = std::make_unique<Hypothesis>(format);
        }
    }

    void add(std::span<const unsigned char> message, std::optional<qint64> timeMs)
    {
        const qint64 before = hypothesis->explained();
        hypothesis->add(message, timeMs);
        ofMessage = hypothesis->explained() - before;
    }

    qint64 messagesWonOver(const StreamHypothesis *other) const
    {
        const auto found = winsOver.find(other);
        return found == winsOver.end() ? 0 : found->second;
    }
};

StreamAnalyser::StreamAnalyser() : m_nextSorting(SortingPeriod)
{
    using Asterix = Config::AsterixFormat;
    using SirM = Config::AleniaSirMFormat;
    Candidate::addTo<AsterixHypothesis>(m_candidates, {Asterix::Raw, Asterix::Hdlc, Asterix::ManagAir});
    Candidate::addTo<ModeSHypothesis>(m_candidates,
        {ModeSEncapsulation::Beast, ModeSEncapsulation::Avr, ModeSEncapsulation::Raw, ModeSEncapsulation::RawRssi});
    Candidate::addTo<SirMHypothesis>(m_candidates, {SirM::Raw, SirM::Hdlc, SirM::ManagAir});
}

StreamAnalyser::~StreamAnalyser() = default;

void StreamAnalyser::add(const QByteArray &message, const QDateTime &time)
{
    if (m_counts.messages++ == 0) {
        m_counts.beginning = message.left(ShownOctets);
    }
    m_counts.octets += message.size();
    std::optional<qint64> timeMs;
    if (time.isValid()) {
        timeMs = time.toMSecsSinceEpoch();
        m_counts.first = m_counts.first.isValid() ? std::min(m_counts.first, time) : time;
        m_counts.last = m_counts.last.isValid() ? std::max(m_counts.last, time) : time;
    }
    const std::span octets(
        reinterpret_cast<const unsigned char *>(message.constData()), static_cast<std::size_t>(message.size()));
    askCandidates(octets, timeMs);
    compare(message.size());
    if (m_counts.octets >= m_nextSorting) {
        m_nextSorting = m_counts.octets + SortingPeriod;
        sortOutUnlikely();
    }
}

// The unlikely ones cost as much time as the others: they are asked where those have nothing to say.
void StreamAnalyser::askCandidates(std::span<const unsigned char> message, std::optional<qint64> timeMs)
{
    bool isExplained = false;
    for (Candidate &candidate : m_candidates) {
        candidate.ofMessage = 0;
        if (!candidate.isUnlikely) {
            candidate.add(message, timeMs);
            isExplained = isExplained || candidate.ofMessage > 0;
        }
    }
    for (Candidate &candidate : m_candidates) {
        if (candidate.isUnlikely && !isExplained) {
            candidate.add(message, timeMs);
        }
    }
}

// Notes who explains the newest message, and who has nothing to say of it.
void StreamAnalyser::compare(qint64 octets)
{
    const auto winner = std::max_element(m_candidates.begin(), m_candidates.end(),
        [](const Candidate &a, const Candidate &b) { return a.ofMessage < b.ofMessage; });
    if (winner->ofMessage == 0 || winner->ofMessage * ConvincingShare < octets) {
        return;
    }
    for (const Candidate &other : m_candidates) {
        if (other.ofMessage == 0) {
            ++winner->winsOver[other.hypothesis.get()];
        }
    }
}

std::size_t StreamAnalyser::best() const
{
    const auto found = std::max_element(m_candidates.begin(), m_candidates.end(),
        [](const Candidate &a, const Candidate &b) { return a.hypothesis->explained() < b.hypothesis->explained(); });
    return static_cast<std::size_t>(found - m_candidates.begin()); // the first of equals
}

void StreamAnalyser::sortOutUnlikely()
{
    const qint64 most = m_candidates[best()].hypothesis->explained();
    for (Candidate &candidate : m_candidates) {
        candidate.isUnlikely = candidate.hypothesis->explained() < most / HopelessShare;
    }
}

void StreamAnalyser::reportAdmixtures(StreamFindings *findings) const
{
    const StreamHypothesis *likeliest = m_candidates[best()].hypothesis.get();
    for (const Candidate &candidate : m_candidates) {
        if (const qint64 messages = candidate.messagesWonOver(likeliest); messages >= FewestAdmixed) {
            findings->admixtures.append({candidate.hypothesis->format(), messages});
        }
    }
    std::stable_sort(findings->admixtures.begin(), findings->admixtures.end(),
        [](const Admixture &a, const Admixture &b) { return a.messages > b.messages; });
}

StreamFindings StreamAnalyser::findings() const
{
    StreamFindings findings = m_counts;
    const StreamHypothesis &likeliest = *m_candidates[best()].hypothesis;
    if (likeliest.explained() > 0 && likeliest.explained() >= findings.octets / ChanceShare) {
        likeliest.report(&findings);
        reportAdmixtures(&findings);
    } else {
        findings.undecodableOctets = findings.octets;
    }
    return findings;
}
