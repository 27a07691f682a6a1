#include "recognition/recording_analysis.h"

#include "astfile/file_reader.h"
#include "recognition/stream_analyser.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

using korvane::astfile::DataPacket;
using korvane::astfile::FileReader;
using korvane::astfile::RecFile;

namespace {

// Long enough for many turns of an antenna, short enough not to be waited for.
constexpr qint64 MostMessageOctets = 16 * 1024 * 1024;
// Of a capture in which there is hardly anything to look at.
constexpr qint64 MostFileOctets = 1024 * 1024 * 1024;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(RecordingAnalysis)
};

// Feeds the beginning of the file to an analyser.
void readMessages(FileReader &reader, RecordingFindings *findings)
{
    StreamAnalyser analyser;
    DataPacket packet;
    reader.read(&packet);
    while (packet.kind == DataPacket::Data && analyser.octets() < MostMessageOctets
        && reader.octetsRead() < MostFileOctets) {
        analyser.add(packet.data, packet.timeStamp);
        reader.read(&packet);
    }
    findings->whole = packet.kind != DataPacket::Data;
    if (packet.kind == DataPacket::Error) {
        const QString error = packet.error.endsWith(u'.') ? packet.error.chopped(1) : packet.error;
        findings->damage = Text::tr("%1 (at octet %2).").arg(error).arg(packet.offset);
    }
    findings->stream = analyser.findings();
}

QString faultOf(const RecordingFindings &findings)
{
    const bool isCapture = findings.format == RecFile::Pcap || findings.format == RecFile::PcapNg;
    if (findings.stream.messages == 0) {
        return !findings.damage.isEmpty() ? findings.damage
            : isCapture                   ? Text::tr("The capture holds no UDP datagrams.")
                                          : Text::tr("It holds no messages.");
    }
    return findings.stream.kind ? QString() : Text::tr("It holds %1.").arg(describe(findings.stream));
}

} // namespace

RecordingFindings analyseRecording(const QString &fileName, const AnalysisProgress &progress)
{
    RecordingFindings findings;
    findings.fileName = fileName;
    bool givenUp = false;
    const auto keepGoing = [&](qint64 octetsRead, qint64 octetsTotal) {
        // What is looked at ends at one of two limits: the nearer one is what there is to do.
        const qint64 toDo = std::min(octetsTotal, MostFileOctets);
        givenUp = givenUp || (progress && !progress(octetsRead, toDo));
        return !givenUp;
    };
    findings.format = RecFile::formatOfFile(fileName, &findings.fault, [&] { return !keepGoing(0, 0); });
    if (findings.format == RecFile::Unknown) {
        return findings;
    }
    const auto reader = FileReader::create(findings.format);
    reader->setCancel([&] { return !keepGoing(reader->octetsRead(), reader->octetsTotal()); });
    if (!reader->open(fileName, findings.format)) {
        findings.fault = reader->lastError();
        return findings;
    }
    readMessages(*reader, &findings);
    findings.fault = faultOf(findings);
    return findings;
}

RecordingAnalysis::RecordingAnalysis(QObject *parent) : QObject(parent)
{
    connect(&m_pass, &BackgroundPass::progressed, this, &RecordingAnalysis::progressed);
}

void RecordingAnalysis::start(const QString &fileName)
{
    const auto work = [fileName](const BackgroundPass::Token &token) {
        return analyseRecording(fileName,
            [&token](qint64 octetsRead, qint64 octetsTotal) { return token.report(octetsRead, octetsTotal); });
    };
    m_pass.start(work, [this](const RecordingFindings &findings) { Q_EMIT finished(findings); });
}
