#include "astfile/file_reader.h"
#include "astfile/rec_file.h"
#include "engine/data_engine.h"

#include <algorithm>
#include <limits>

using korvane::astfile::DataPacket;
using korvane::astfile::FileReader;
using korvane::astfile::RecFile;

namespace {

constexpr int PausePollMs = 100;
constexpr qint64 ProgressPeriodMs = 200;
constexpr qint64 CoarseDelayMs = 2000;

QString timeText(const QDateTime &time)
{
    return time.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

} // namespace

bool DataEngine::openInputFile()
{
    const QString fileName = m_config.inputFileName.filePath();
    Q_EMIT logMessage(LogLevel::Info, tr("Open recording file: %1").arg(fileName));
    const RecFile::Format format = RecFile::formatFromFileName(fileName);
    if (format == RecFile::Unknown) {
        Q_EMIT logMessage(LogLevel::Critical, tr("Recording file format is not supported."));
        return false;
    }
    QString reason;
    m_fileReader = FileReader::create(format, &reason);
    if (!m_fileReader) {
        Q_EMIT logMessage(LogLevel::Critical, tr("Failed to crate recording file reader."));
        Q_EMIT logMessage(LogLevel::Warning, reason);
        return false;
    }
    if (!m_fileReader->open(fileName, format)) {
        Q_EMIT logMessage(LogLevel::Warning, tr("Failed to open recording file: %1").arg(fileName));
        Q_EMIT logMessage(LogLevel::Warning, m_fileReader->lastError());
    } else {
        m_fileReader->setIndex(m_recordingIndex);
        if (startInputFileReplay()) {
            return true;
        }
    }
    m_fileReader.reset();
    return false;
}

bool DataEngine::startInputFileReplay()
{
    if (!m_fileReader->reset()) {
        Q_EMIT logMessage(LogLevel::Warning, m_fileReader->lastError());
        return false;
    }
    m_fileReader->read(&m_packet);
    if (m_packet.kind == DataPacket::Error) {
        logReadError(tr("The recording cannot be read."));
        return false;
    }
    if (m_replayStart.isValid() && m_packet.kind == DataPacket::Data && !seekReplayStart()) {
        return false;
    }
    logReplayStart();
    scheduleReplay(0);
    return true;
}

bool DataEngine::seekReplayStart()
{
    Q_EMIT logMessage(LogLevel::Info, tr("Replay start time: %1").arg(timeText(m_replayStart)));
    Q_EMIT logMessage(LogLevel::Info, tr("Seeking replay start time."));
    if (!m_packet.timeStamp.isValid()) {
        Q_EMIT logMessage(
            LogLevel::Warning, tr("The recording contains no timestamp, its start time cannot be sought."));
        return false;
    }
    if (!m_fileReader->seek(m_replayStart)) {
        Q_EMIT logMessage(LogLevel::Warning,
            tr("The recording cannot be read up to the replay start time: %1").arg(m_fileReader->lastError()));
        return false;
    }
    m_fileReader->read(&m_packet);
    return true;
}

void DataEngine::logReplayStart()
{
    if (m_packet.kind != DataPacket::Data) {
        return; // nothing to play: the end is reported in its turn
    }
    Q_EMIT logMessage(LogLevel::Info,
        m_packet.timeStamp.isValid() ? tr("Replay start from %1").arg(timeText(m_packet.timeStamp))
                                     : tr("Recording file contains no timestamp, replay from the beginning."));
}

void DataEngine::scheduleReplay(qint64 delayMs)
{
    m_replayTimer.setTimerType(delayMs >= CoarseDelayMs ? Qt::CoarseTimer : Qt::PreciseTimer);
    m_replayTimer.start(static_cast<int>(std::min<qint64>(delayMs, std::numeric_limits<int>::max())));
}

// One packet per turn of the event loop, so that close, pause and speed requests come in between.
void DataEngine::procInputFile()
{
    if (!m_inputOpen) {
        return;
    }
    if (m_inputPaused) {
        scheduleReplay(PausePollMs);
        return;
    }
    if (m_packet.kind == DataPacket::Data) {
        procMessage(m_packet.data);
        reportProgress();
    }
    if (!m_inputOpen) {
        return; // closed by what the packet led to
    }
    if (!m_fileReader) {
        Q_EMIT logMessage(LogLevel::Warning, tr("Error occured when reading from recording file."));
        closeInput();
        return;
    }
    const QDateTime previousTime = m_packet.timeStamp;
    m_fileReader->read(&m_packet);
    scheduleNextPacket(previousTime);
}

void DataEngine::reportProgress()
{
    if (!m_progressTimer.isValid() || m_progressTimer.elapsed() >= ProgressPeriodMs) {
        m_progressTimer.start();
        Q_EMIT replayProgress(m_packet.timeStamp);
    }
}

void DataEngine::scheduleNextPacket(const QDateTime &previousTime)
{
    switch (m_packet.kind) {
    case DataPacket::Data: {
        const bool timed = previousTime.isValid() && m_packet.timeStamp.isValid();
        const qint64 recordedMs = timed ? previousTime.msecsTo(m_packet.timeStamp) : 0;
        scheduleReplay(ReplaySpeed::delay(recordedMs, m_replaySpeed));
        return;
    }
    case DataPacket::Error:
        logReadError(tr("Error occured when reading recording file."));
        closeInput();
        return;
    case DataPacket::End:
        break;
    }
    if (m_config.inputFileAutoRewind) {
        rewindInputFile();
        return;
    }
    Q_EMIT logMessage(LogLevel::Info, tr("Reach end of recording file."));
    closeInput();
}

void DataEngine::rewindInputFile()
{
    Q_EMIT logMessage(LogLevel::Info, tr("Reach end of recording file, restarting replay."));
    const bool started = startInputFileReplay();
    if (started && m_packet.kind == DataPacket::Data) {
        return;
    }
    // Empty, or nothing at or after the start time: rewinding again would go round and round.
    if (started) {
        Q_EMIT logMessage(LogLevel::Warning, tr("Recording file contains no replayable data."));
    }
    closeInput();
}

void DataEngine::logReadError(const QString &summary)
{
    Q_EMIT logMessage(LogLevel::Warning, summary);
    Q_EMIT logMessage(LogLevel::Warning, tr("%1 (at octet %2)").arg(m_packet.error, QString::number(m_packet.offset)));
}

void DataEngine::closeInputFile()
{
    m_replayTimer.stop();
    m_fileReader.reset();
}
