#include "engine/message_router.h"

#include "app/log_gate.h"
#include "engine/envelope.h"
#include "engine/pipeline_meter.h"
#include "engine/source_monitor.h"
#include "engine/stream_tap.h"
#include "processors/alert_processor.h"
#include "processors/video_processor.h"
#include "processors/weather_processor.h"
#include "sensors/sensor_info.h"
#include "tracking/tracker.h"

#include <algorithm>
#include <array>

using korvane::modes::ModeSEncapsulation;
using korvane::modes::ModeSFrame;
using korvane::modes::ModeSMessage;

namespace {

// Null: the library chooses.
const _ast_uap_t *configuredUap(int selector)
{
    const std::array profiles = {static_cast<const _ast_uap_t *>(nullptr), AST_UAP_STANDARD, AST_UAP_CAT001_PLOT,
        AST_UAP_ASR10SS, AST_UAP_CAT021_VER023, AST_UAP_CAT021_VER026, AST_UAP_CAT021_VER21, AST_UAP_CAT021_VER27,
        AST_UAP_THALES};
    const auto index = static_cast<std::size_t>(selector);
    return selector >= 0 && index < profiles.size() ? profiles[index] : nullptr;
}

bool hasReader(std::uint32_t category)
{
    switch (category) {
    case 1:
    case 2:
    case 4:
    case 8:
    case 10:
    case 20:
    case 21:
    case 34:
    case 48:
    case 62:
    case 240:
        return true;
    default:
        return false;
    }
}

ReportOutcome outcomeOf(ModeSMessage::Fault fault)
{
    switch (fault) {
    case ModeSMessage::Fault::NotModeS:
        return ReportOutcome::ModeAC;
    case ModeSMessage::Fault::DownlinkFormat:
    case ModeSMessage::Fault::MessageType:
        return ReportOutcome::NoReader;
    case ModeSMessage::Fault::UnknownAddress:
        return ReportOutcome::UnknownAddress;
    default:
        return ReportOutcome::Malformed;
    }
}

} // namespace

MessageRouter::MessageRouter(const Config &config, const QSharedPointer<SensorInfo> &sensor, const Consumers &consumers,
    const SharedClock &clock, PipelineMeter *meter)
    : m_config(config), m_sensor(sensor), m_consumers(consumers), m_clock(clock), m_meter(meter),
      m_uap(configuredUap(config.processorAsterixUap)), m_modesMessage(std::make_shared<ModeSMessage>())
{
}

template <typename MakeText>
void MessageRouter::debug(MakeText makeText)
{
    if (LogGate::isShown(LogLevel::Debug)) {
        Q_EMIT message(LogLevel::Debug, makeText());
    }
}

void MessageRouter::procMessage(const QByteArray &data, int endpoint)
{
    m_meter->countMessage(data.size());
    m_consumers.sources->beginMessage(data.size(), endpoint);
    m_consumers.taps->addMessage(
        {reinterpret_cast<const unsigned char *>(data.constData()), static_cast<std::size_t>(data.size())});
    switch (m_config.processorType) {
    case Config::ProcessorType::Asterix:
        return procAsterixMessage(data);
    case Config::ProcessorType::ModeS:
        return procModeSMessage(data);
    case Config::ProcessorType::AleniaSirM:
        return procAleniaSirMMessage(data);
    }
}

void MessageRouter::procAsterixMessage(const QByteArray &data)
{
    const auto *octets = reinterpret_cast<const unsigned char *>(data.constData());
    const auto size = static_cast<std::size_t>(data.size());
    const std::size_t envelope = envelopeSize(m_config.processorAsterixFormat);
    if (size <= envelope) {
        m_consumers.sources->countUndecodable();
    }
    std::size_t offset = envelope;
    while (offset < size) {
        const unsigned char *const block = octets + offset;
        if (!decodeBlock(block, size - offset)) {
            return dropRest(block, size - offset, offset == envelope);
        }
        if (m_block.size == 0) {
            Q_EMIT message(LogLevel::Warning,
                tr("Decoded ASTERIX data block reports zero size, the rest of the message is dropped."));
            return dropRest(block, size - offset, offset == envelope);
        }
        offset += m_block.size;
        m_consumers.sources->beginBlock(m_block.size);
        procBlock(block);
    }
}

void MessageRouter::procBlock(const unsigned char *octets)
{
    if (!fromConfiguredSensor()) {
        dropBlock(octets, ReportOutcome::OtherSource);
    } else if (m_block.error == korvane::asterix::Error::UnknownCategory || !hasReader(m_block.category)) {
        logUnsupportedCategory();
        dropBlock(octets, ReportOutcome::NoReader);
    } else if (!m_block.valid) {
        dropBlock(octets, ReportOutcome::Malformed);
    } else {
        routeBlock();
    }
}

// What follows the last block and does not look like another one is no fault: check sequences, and what recorders add.
void MessageRouter::dropRest(const unsigned char *octets, std::size_t size, bool isWholeMessage)
{
    constexpr std::size_t BlockHeader = 3;
    if (!isWholeMessage && (size < BlockHeader || !hasReader(octets[0]))) {
        m_consumers.sources->countTrailed();
        return;
    }
    if (isWholeMessage) {
        m_consumers.sources->countUndecodable();
    }
    m_consumers.sources->beginBlock(size);
    dropUndecoded(octets, size, ReportOutcome::Malformed);
}

void MessageRouter::dropBlock(const unsigned char *octets, ReportOutcome outcome)
{
    if (!m_block.valid) {
        dropUndecoded(octets, m_block.size, outcome);
        return;
    }
    for (const _ast_datarecord_t &record : m_block.records) {
        m_consumers.ledger->takeRecord(m_block.category, record, outcome);
    }
}

// The first octet names a category where it is one that is read, or the block is whole.
void MessageRouter::dropUndecoded(const unsigned char *octets, std::size_t size, ReportOutcome outcome)
{
    TakenReport report;
    report.fate.outcome = outcome;
    report.octets = octets;
    report.size = static_cast<quint32>(size);
    if (outcome != ReportOutcome::Malformed || hasReader(octets[0])) {
        report.category = octets[0];
    }
    if (outcome == ReportOutcome::Malformed) {
        report.fault = korvane::asterix::errorText(m_block.error);
        report.faultOffset = m_block.errorOffset;
    }
    m_consumers.ledger->take(report);
}

bool MessageRouter::decodeBlock(const unsigned char *data, std::size_t length)
{
    return m_uap ? ast_datablock_decode(&m_block, data, length, m_uap)
                 : ast_datablock_smart_decode(&m_block, data, length);
}

// False when the check is on and the block's first source identification is another sensor's.
bool MessageRouter::fromConfiguredSensor()
{
    if (!m_config.processorAsterixVerifySacSic || !m_sensor) {
        return true;
    }
    _ast_sacsic_t source;
    for (const _ast_datarecord_t &record : m_block.records) {
        source = ast_datarecord_get_sacsic(record);
        if (source.present) {
            break;
        }
    }
    if (!source.present || (source.sac == m_sensor->sac() && source.sic == m_sensor->sic())) {
        return true;
    }
    const auto key = static_cast<quint16>(source.sac * 256 + source.sic);
    if (!m_mismatchingSources.contains(key)) {
        m_mismatchingSources.insert(key);
        Q_EMIT message(LogLevel::Warning,
            tr("ASTERIX data block with SAC/SIC %1/%2 does not match the configured sensor SAC/SIC %3/%4, dropped.")
                .arg(source.sac)
                .arg(source.sic)
                .arg(m_sensor->sac())
                .arg(m_sensor->sic()));
    }
    return false;
}

void MessageRouter::routeBlock()
{
    switch (m_block.category) {
    case 4:
        return m_consumers.alerts->procMessage(m_block);
    case 8:
        return m_consumers.weather->procAsterixMessage(m_block);
    case 240:
        return m_consumers.video->procAsterixMessage(m_block);
    default:
        if (m_consumers.tracker) {
            return m_consumers.tracker->procAsterixMessage(m_block);
        }
        dropBlock(nullptr, ReportOutcome::WrongSensorKind);
    }
}

void MessageRouter::logUnsupportedCategory()
{
    debug([this] {
        std::array<char, 8> name = {};
        ast_category_to_str(name.data(), name.size(), m_block.category);
        return tr("Unsupported ASTERIX catetory received: %1").arg(QString::fromLatin1(name.data()));
    });
}

// Frames may be spread over messages: what is left over waits for the next one.
void MessageRouter::procModeSMessage(const QByteArray &data)
{
    m_modesBuffer.append(data.constData(), static_cast<std::size_t>(data.size()));
    const std::size_t taken =
        ModeSEncapsulation::extractAll(m_modesBuffer, m_config.processorModeSEncapsulation, m_modesFrames);
    m_modesBuffer.erase(0, taken);
    if (m_modesFrames.empty()) {
        debug([] { return tr("Failed to extract Mode-S encapsulation."); });
        dropUnframed(data, taken);
    }
    for (ModeSFrame &frame : m_modesFrames) {
        procModeSFrame(frame);
    }
}

// Octets in which no frame begins or ends.
void MessageRouter::dropUnframed(const QByteArray &data, std::size_t taken)
{
    if (taken == 0) {
        return; // the beginning of a frame, perhaps
    }
    m_consumers.sources->countUndecodable();
    m_consumers.sources->beginBlock(static_cast<std::size_t>(data.size()));
    TakenReport report;
    report.form = TakenReport::Form::ModeS;
    report.octets = reinterpret_cast<const unsigned char *>(data.constData());
    report.size = static_cast<quint32>(data.size());
    report.fault = "no frame of the encapsulation";
    m_consumers.ledger->take(report);
}

// Receivers count from whenever they were switched on; the tracker needs UTC in any case.
void MessageRouter::procModeSFrame(ModeSFrame &frame)
{
    const auto now = static_cast<unsigned long long>(m_clock->nowMs());
    frame.timeStamp = m_config.processorModeSIgnoreTimeStamp ? now : m_receiverClock.toUtc(frame, now);
    m_modesDecoder.decode(ModeSMessage::AnyDownlink, frame, *m_modesMessage);
    m_consumers.sources->beginBlock(frame.length);
    if (!m_modesMessage->valid()) {
        debug([] { return tr("Failed to decode Mode-S message."); });
        m_consumers.ledger->takeModeS(*m_modesMessage, outcomeOf(m_modesMessage->fault()));
    } else if (m_consumers.tracker) {
        m_consumers.tracker->procModeSMessage(m_modesMessage);
    } else {
        m_consumers.ledger->takeModeS(*m_modesMessage, ReportOutcome::WrongSensorKind);
    }
}

// Datagrams and chunks may hold several messages. What follows the last one, such as the check sequence of a frame, is
// no failure.
void MessageRouter::procAleniaSirMMessage(const QByteArray &data)
{
    const auto envelope =
        std::min(static_cast<qsizetype>(envelopeSize(m_config.processorAleniaSirMFormat)), data.size());
    const auto *octets = reinterpret_cast<const unsigned char *>(data.constData()) + envelope;
    auto left = static_cast<std::size_t>(data.size() - envelope);
    auto result = AleniaSirMRadarDecoder::decode(octets, left);
    if (!result.valid()) {
        logAleniaSirMFailure(data.size() - envelope);
        dropAleniaSirM(octets, left, result);
        return;
    }
    while (result.valid()) {
        m_consumers.sources->beginBlock(result.size);
        const QSharedPointer<AleniaSirMRadarMessage> decoded(result.message.release());
        if (m_consumers.tracker) {
            m_consumers.tracker->procAleniaSirMMessage(decoded);
        } else {
            m_consumers.ledger->takeSirM(*decoded, ReportOutcome::WrongSensorKind);
        }
        octets += result.size;
        left -= result.size;
        result = AleniaSirMRadarDecoder::decode(octets, left);
    }
    if (left > 0) {
        m_consumers.sources->countTrailed();
    }
}

void MessageRouter::dropAleniaSirM(
    const unsigned char *octets, std::size_t size, const AleniaSirMRadarDecoder::Result &result)
{
    m_consumers.sources->countUndecodable();
    m_consumers.sources->beginBlock(size);
    TakenReport report;
    report.form = TakenReport::Form::AleniaSirM;
    report.octets = octets;
    report.size = static_cast<quint32>(size);
    report.fault = AleniaSirMRadarDecoder::errorText(result.error);
    report.faultOffset = static_cast<quint32>(result.errorOffset);
    m_consumers.ledger->take(report);
}

void MessageRouter::logAleniaSirMFailure(qsizetype size)
{
    if (m_aleniaSirMFailureReported) {
        debug([size] { return tr("Failed to decode Alenia SIR-M message (%1 bytes).").arg(size); });
        return;
    }
    m_aleniaSirMFailureReported = true;
    Q_EMIT message(LogLevel::Warning,
        tr("Failed to decode Alenia SIR-M message (%1 bytes), further failures are logged as debug.").arg(size));
}
