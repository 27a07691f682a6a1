#pragma once

#include "traffic/command_line.h"
#include "traffic/udp_sender.h"

#include "astfile/pcap_writer.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>

#include <cstdint>
#include <memory>

// Everything that the command line wants the datagrams written to: a socket, a capture, a file of raw blocks.
class TrafficOutput {
    Q_DECLARE_TR_FUNCTIONS(TrafficOutput)

public:
    // False, with lastError() set, when one of them cannot be opened.
    bool open(const TrafficOptions &options);
    // time: for the capture, UTC. station: its index in the scenario; names the sender in the capture. False when a
    // file cannot be written any more; a datagram that the network refuses is only counted.
    bool write(const QByteArray &datagram, const QDateTime &time, std::size_t station, int portOffset);
    bool close();

    // Null where nothing is sent.
    UdpSender *sender() { return m_sender.get(); }
    void count(std::uint64_t datagrams, std::uint64_t octets, std::uint64_t refused);

    std::uint64_t datagrams() const { return m_datagrams; }
    // "1200 datagrams, 84000 octets", and those refused if there are any.
    QString summary() const;
    std::uint64_t refused() const { return m_refused; }
    QString lastError() const { return m_lastError; }

private:
    bool openPcap(const QString &fileName, const std::optional<UdpDestination> &destination);
    bool openBlocks(const QString &fileName);
    bool fail(const QString &error);

    std::unique_ptr<UdpSender> m_sender;
    std::unique_ptr<korvane::astfile::PcapWriter> m_pcap;
    korvane::astfile::PcapWriter::Endpoint m_pcapDestination;
    std::unique_ptr<QFile> m_blocks;
    std::uint64_t m_datagrams = 0;
    std::uint64_t m_octets = 0;
    std::uint64_t m_refused = 0;
    QString m_lastError;
};
