#include "assessment/recording_assessment.h"

#include "astfile/file_reader.h"
#include "recognition/recording_analysis.h"

#include <QCoreApplication>
#include <QFileInfo>

using korvane::astfile::DataPacket;
using korvane::astfile::FileReader;

namespace {

constexpr qint64 MessagesBetweenReports = 512;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(RecordingAssessment)
};

std::span<const unsigned char> octetsOf(const QByteArray &data)
{
    return {reinterpret_cast<const unsigned char *>(data.constData()), static_cast<std::size_t>(data.size())};
}

void readAll(
    FileReader &reader, SensorAssessor &assessor, const AssessmentProgress &progress, RecordingAssessment *result)
{
    DataPacket packet;
    qint64 messages = 0;
    for (reader.read(&packet); packet.kind == DataPacket::Data && !result->cancelled; reader.read(&packet)) {
        assessor.add(octetsOf(packet.data), packet.timeStamp);
        const bool isReportDue = ++messages % MessagesBetweenReports == 0;
        result->cancelled = isReportDue && progress && !progress(reader.octetsRead(), reader.octetsTotal());
    }
    if (packet.kind == DataPacket::Error && !result->cancelled) {
        result->damage = Text::tr("%1 (at octet %2)").arg(packet.error).arg(packet.offset);
    }
}

} // namespace

RecordingAssessment assessRecording(
    const QString &fileName, const SensorAssessor::Options &options, const AssessmentProgress &progress)
{
    RecordingAssessment result;
    result.fileName = fileName;
    const auto isCancelled = [&](qint64 read, qint64 total) {
        result.cancelled = result.cancelled || (progress && !progress(read, total));
        return result.cancelled;
    };
    const RecordingFindings findings =
        analyseRecording(fileName, [&](qint64, qint64 total) { return !isCancelled(0, total); });
    result.fault = result.cancelled ? QString() : findings.fault;
    if (!result.fault.isEmpty() || result.cancelled) {
        return result;
    }
    if (findings.stream.kind != Config::ProcessorType::Asterix) {
        result.fault = Text::tr("It holds no ASTERIX data.");
        return result;
    }
    SensorAssessor::Options found = options;
    found.format = findings.stream.asterixFormat;
    const auto assessor = std::make_unique<SensorAssessor>(found);
    const auto reader = FileReader::create(findings.format);
    if (!reader->open(fileName, findings.format)) {
        result.fault = reader->lastError();
        return result;
    }
    readAll(*reader, *assessor, progress, &result);
    result.report = assessor->report();
    result.report.source = QFileInfo(fileName).fileName();
    return result;
}
