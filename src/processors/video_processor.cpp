#include "processors/video_processor.h"

#include "asterix/asterix.h"

#include <QDeadlineTimer>

#include <algorithm>

namespace {

constexpr qsizetype AmplitudeCapacity = 65536; // cells
constexpr std::uint8_t EightBitCells = 4; // resolution code
constexpr qint64 LogPeriodMs = 1000;

// Keys of the log limiter beside the library's error numbers.
constexpr int UnsupportedVideo = 1000;
constexpr int BufferExceeded = 1001;

double timeOfDay(const _ast_datarecord_240_t &record)
{
    const auto &time = record.i140;
    return time.present ? time.hours * 3600 + time.minutes * 60 + time.seconds + time.milliseconds / 1000.0 : -1.0;
}

QList<unsigned char> lowOctets(const QList<unsigned int> &cells, quint32 count)
{
    QList<unsigned char> octets(count);
    std::transform(cells.cbegin(), cells.cbegin() + count, octets.begin(),
        [](unsigned int cell) { return static_cast<unsigned char>(cell); });
    return octets;
}

} // namespace

VideoProcessor::VideoProcessor(QObject *parent)
    : QObject(parent), m_amplitudes(AmplitudeCapacity),
      m_monotonicClock([] { return QDeadlineTimer::current().deadline(); })
{
}

void VideoProcessor::procAsterixMessage(const _ast_datablock_t &block)
{
    if (!block.valid || block.category != 240) {
        return;
    }
    for (const _ast_datarecord_t &record : block.records) {
        const ReportOutcome outcome = procCat240Record(record);
        if (m_ledger) {
            m_ledger->takeRecord(block.category, record, outcome);
        }
    }
}

ReportOutcome VideoProcessor::procCat240Record(const _ast_datarecord_t &generic)
{
    _ast_datarecord_240_t record;
    ast_datarecord_240_disassemble(&record, generic);
    if (!record.valid) {
        return ReportOutcome::Malformed;
    }
    if (record.i048.present && (record.i048.compressed || record.i048.resolution != EightBitCells)) {
        warn(
            UnsupportedVideo, tr("Video Processor: Unsupported video resolution or compressed video, record dropped."));
        return ReportOutcome::Unsupported;
    }
    _ast_video_vector_t vector{};
    const int error = ast_datarecord_240_get_vector(
        &vector, m_amplitudes.data(), static_cast<std::size_t>(m_amplitudes.size()), generic);
    if (error != AST_VIDEO_OK) {
        return procVectorError(error, vector.cellCount);
    }
    const _ast_sacsic_t source = ast_datarecord_240_get_sacsic(generic);
    Q_EMIT radialReady(
        {source.sac, source.sic, timeOfDay(record), vector.startAzimuth, vector.endAzimuth, vector.cellSize,
            vector.startCell, vector.cellCount, vector.videoMode, lowOctets(m_amplitudes, vector.cellCount)});
    return ReportOutcome::Video;
}

// Summaries have no vector.
ReportOutcome VideoProcessor::procVectorError(int error, quint32 cellCount)
{
    if (error == AST_VIDEO_NO_VECTOR) {
        return ReportOutcome::NoReader;
    }
    if (error == AST_VIDEO_BUFFER_TOO_SMALL) {
        m_amplitudes.resize(cellCount);
        warn(BufferExceeded,
            tr("Video Processor: Video vector exceeds the amplitude buffer (%1 cells), record dropped.")
                .arg(cellCount));
        return ReportOutcome::Unsupported;
    }
    warn(error, tr("Video Processor: Video vector error %1, record dropped.").arg(error));
    return ReportOutcome::Incomplete;
}

void VideoProcessor::warn(int key, const QString &text)
{
    if (allowLog(key)) {
        Q_EMIT message(LogLevel::Warning, text);
    }
}

bool VideoProcessor::allowLog(int key)
{
    const qint64 now = m_monotonicClock();
    const auto last = m_lastLogged.constFind(key);
    if (last != m_lastLogged.cend() && now - *last < LogPeriodMs) {
        return false;
    }
    m_lastLogged[key] = now;
    return true;
}
