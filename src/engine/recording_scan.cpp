#include "engine/recording_scan.h"

using korvane::astfile::RecFile;
using korvane::astfile::RecordingIndex;

namespace {

struct Result {
    RecordingIndex index;
    QString error;
};

Result scan(const QString &fileName, const BackgroundPass::Token &token)
{
    Result result;
    const RecFile::Format format =
        RecFile::formatOfFile(fileName, &result.error, [&token] { return token.cancelled(); });
    if (format != RecFile::Unknown) {
        const auto progress = [&token](qint64 octetsRead, qint64 octetsTotal) {
            return token.report(octetsRead, octetsTotal);
        };
        result.index = RecordingIndex::build(fileName, format, progress, &result.error);
    }
    return result;
}

} // namespace

RecordingScan::RecordingScan(QObject *parent) : QObject(parent)
{
    connect(&m_pass, &BackgroundPass::progressed, this, &RecordingScan::progressed);
}

void RecordingScan::start(const QString &fileName)
{
    m_pass.start([fileName](const BackgroundPass::Token &token) { return scan(fileName, token); },
        [this](const Result &result) { Q_EMIT finished(result.index, result.error); });
}
