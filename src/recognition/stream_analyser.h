#pragma once

#include "recognition/stream_findings.h"

#include <QByteArray>
#include <QDateTime>

#include <memory>
#include <optional>
#include <span>
#include <vector>

// Finds out what a stream of messages holds, of which nothing is known: a recording's, or those that arrive on a
// socket. Reads nothing by itself. For one thread.
class StreamAnalyser {
public:
    StreamAnalyser();
    ~StreamAnalyser();
    StreamAnalyser(const StreamAnalyser &) = delete;
    StreamAnalyser &operator=(const StreamAnalyser &) = delete;

    // A datagram, a piece of a serial line's octets, a recorded message: with its envelope, as it came. Time UTC, or
    // invalid; without times no periods are found.
    void add(const QByteArray &message, const QDateTime &time);

    // Octets of all messages so far.
    qint64 octets() const { return m_counts.octets; }

    StreamFindings findings() const;

private:
    struct Candidate;

    // Index.
    std::size_t best() const;
    void askCandidates(std::span<const unsigned char> message, std::optional<qint64> timeMs);
    void compare(qint64 octets);
    void sortOutUnlikely();
    void reportAdmixtures(StreamFindings *findings) const;

    std::vector<Candidate> m_candidates;
    StreamFindings m_counts; // what does not depend on the kind of data
    qint64 m_nextSorting = 0; // octets
};
