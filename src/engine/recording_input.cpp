#include "engine/recording_input.h"

#include "astfile/file_reader.h"
#include "astfile/rec_file.h"

#include <QFileInfo>

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

RecordingInput::RecordingInput(const QString &fileName, const ReplaySettings *settings, ReplayClock clock,
    std::function<bool()> cancelled, std::unique_ptr<MessageRouter> router, QObject *parent)
    : Input(std::move(router), parent), m_fileName(fileName), m_settings(settings), m_clock(std::move(clock)),
      m_cancelled(std::move(cancelled))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &RecordingInput::playPacket);
}

RecordingInput::~RecordingInput() = default;

Input::Opening RecordingInput::open()
{
    const Opening opening = openFile();
    return opening == Opening::Failed && m_cancelled() ? Opening::GivenUp : opening;
}

Input::Opening RecordingInput::openFile()
{
    Q_EMIT message(LogLevel::Info, tr("Open recording file: %1").arg(m_fileName));
    QString reason;
    const RecFile::Format format = formatOfFile(&reason);
    if (format == RecFile::Unknown) {
        Q_EMIT message(LogLevel::Critical, tr("Recording file format is not supported."));
        reportFault(reason);
        return Opening::Failed;
    }
    m_reader = FileReader::create(format, &reason);
    if (!m_reader) {
        Q_EMIT message(LogLevel::Critical, tr("Failed to crate recording file reader."));
        reportFault(reason);
        return Opening::Failed;
    }
    m_reader->setCancel(m_cancelled);
    m_stampedBySources = format == RecFile::RawAsterix;
    // Opening a pipe would wait for somebody to write into it.
    const QFileInfo file(m_fileName);
    const bool isOther = file.exists() && !file.isFile();
    if (isOther || !m_reader->open(m_fileName, format)) {
        if (!m_cancelled()) {
            Q_EMIT message(LogLevel::Warning, tr("Failed to open recording file: %1").arg(m_fileName));
            reportFault(isOther ? tr("%1 is no file.").arg(m_fileName) : m_reader->lastError());
        }
        return Opening::Failed;
    }
    m_reader->setIndex(m_settings->index);
    return startReplay();
}

// The contents tell; where they do not, the reader for the name finds out what is wrong with them.
RecFile::Format RecordingInput::formatOfFile(QString *reason) const
{
    const RecFile::Format format = RecFile::formatOfFile(m_fileName, reason, m_cancelled);
    return format != RecFile::Unknown ? format : RecFile::formatFromFileName(m_fileName);
}

Input::Opening RecordingInput::startReplay()
{
    const bool reset = m_reader->reset();
    if (reset) {
        m_reader->read(&m_packet);
    }
    if (m_cancelled()) {
        return Opening::GivenUp;
    }
    if (!reset) {
        reportFault(m_reader->lastError());
        return Opening::Failed;
    }
    if (m_packet.kind == DataPacket::Error) {
        reportReadError(tr("The recording cannot be read."));
        return Opening::Failed;
    }
    if (m_settings->start.isValid() && m_packet.kind == DataPacket::Data && !seekStart()) {
        return Opening::Failed;
    }
    logStart();
    if (m_packet.timeStamp.isValid()) {
        m_clock.begin(m_packet.timeStamp);
    }
    m_sinceUpdate.start();
    schedule(0);
    return Opening::Opened;
}

bool RecordingInput::seekStart()
{
    Q_EMIT message(LogLevel::Info, tr("Replay start time: %1").arg(timeText(m_settings->start)));
    Q_EMIT message(LogLevel::Info, tr("Seeking replay start time."));
    if (!m_packet.timeStamp.isValid()) {
        reportFault(tr("The recording contains no timestamp, its start time cannot be sought."));
        return false;
    }
    if (!m_reader->seek(m_settings->start)) {
        if (!m_cancelled()) {
            reportFault(tr("The recording cannot be read up to the replay start time: %1").arg(m_reader->lastError()));
        }
        return false;
    }
    m_reader->read(&m_packet);
    return true;
}

void RecordingInput::logStart()
{
    if (m_packet.kind != DataPacket::Data) {
        return; // nothing to play: the end is reported in its turn
    }
    Q_EMIT message(LogLevel::Info,
        m_packet.timeStamp.isValid() ? tr("Replay start from %1").arg(timeText(m_packet.timeStamp))
                                     : tr("Recording file contains no timestamp, replay from the beginning."));
}

void RecordingInput::schedule(qint64 delayMs)
{
    m_timer.setTimerType(delayMs >= CoarseDelayMs ? Qt::CoarseTimer : Qt::PreciseTimer);
    m_timer.start(static_cast<int>(std::min<qint64>(delayMs, std::numeric_limits<int>::max())));
}

// One packet per turn of the event loop, so that close, pause and speed requests come in between.
void RecordingInput::playPacket()
{
    if (m_paused) {
        schedule(PausePollMs);
        return;
    }
    if (m_packet.kind == DataPacket::Data) {
        reachPacketTime();
        router().procMessage(m_packet.data);
    }
    if (m_packet.kind == DataPacket::Data && m_reader) {
        reportProgress();
    }
    if (!m_reader) {
        return; // closed by what the packet led to
    }
    const QDateTime previousTime = m_packet.timeStamp;
    m_reader->read(&m_packet);
    if (!m_cancelled()) {
        scheduleNext(previousTime);
    }
}

void RecordingInput::reachPacketTime()
{
    m_sinceUpdate.start();
    if (!m_packet.timeStamp.isValid()) {
        return;
    }
    if (!m_clock.hasBegun()) {
        m_clock.begin(m_packet.timeStamp);
        Q_EMIT restarted();
    }
    m_clock.reach(m_packet.timeStamp);
}

void RecordingInput::reportProgress()
{
    if (!m_progressTimer.isValid() || m_progressTimer.elapsed() >= ProgressPeriodMs) {
        m_progressTimer.start();
        Q_EMIT progressed(m_packet.timeStamp);
    }
}

void RecordingInput::scheduleNext(const QDateTime &previousTime)
{
    switch (m_packet.kind) {
    case DataPacket::Data:
        schedule(ReplaySpeed::delay(recordedDelay(previousTime), m_settings->speed));
        return;
    case DataPacket::Error:
        reportReadError(tr("Error occured when reading recording file."));
        Q_EMIT ended();
        return;
    case DataPacket::End:
        break;
    }
    if (m_settings->autoRewind) {
        rewind();
        return;
    }
    Q_EMIT message(LogLevel::Info, tr("Reach end of recording file."));
    Q_EMIT ended();
}

// Sources' clocks differ: from one's time back and forth to another's would be waited for again and again.
qint64 RecordingInput::recordedDelay(const QDateTime &previousTime) const
{
    if (!previousTime.isValid() || !m_packet.timeStamp.isValid()) {
        return 0;
    }
    return m_stampedBySources ? m_clock.untilStamp(m_packet.timeStamp) : previousTime.msecsTo(m_packet.timeStamp);
}

void RecordingInput::rewind()
{
    Q_EMIT message(LogLevel::Info, tr("Reach end of recording file, restarting replay."));
    const Opening opening = startReplay();
    if (opening == Opening::GivenUp) {
        return;
    }
    if (opening == Opening::Opened && m_packet.kind == DataPacket::Data) {
        Q_EMIT restarted();
        return;
    }
    // Empty, or nothing at or after the start time: rewinding again would go round and round.
    if (opening == Opening::Opened) {
        Q_EMIT message(LogLevel::Warning, tr("Recording file contains no replayable data."));
    }
    Q_EMIT ended();
}

void RecordingInput::reportReadError(const QString &summary)
{
    Q_EMIT message(LogLevel::Warning, summary);
    reportFault(tr("%1 (at octet %2)").arg(m_packet.error, QString::number(m_packet.offset)));
}

void RecordingInput::setPaused(bool paused)
{
    updateClock();
    Input::setPaused(paused);
    m_sinceUpdate.start();
}

void RecordingInput::updateClock()
{
    if (m_paused || !m_clock.hasBegun() || m_packet.kind != DataPacket::Data || !m_packet.timeStamp.isValid()) {
        return;
    }
    m_clock.runOn(m_sinceUpdate.restart(), m_settings->speed, m_packet.timeStamp);
}

void RecordingInput::close()
{
    m_timer.stop();
    m_reader.reset();
}
