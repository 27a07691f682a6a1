#include "engine/message_router.h"

#include "app/log_gate.h"
#include "engine/envelope.h"
#include "engine/pipeline_meter.h"
#include "processors/alert_processor.h"
#include "processors/video_processor.h"
#include "processors/weather_processor.h"
#include "sensors/sensor_info.h"
#include "sirm/alenia_sir_m_radar_decoder.h"
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

bool isTrackerCategory(std::uint32_t category)
{
    constexpr std::array Categories = {1U, 2U, 10U, 20U, 21U, 34U, 48U, 62U};
    return std::find(Categories.begin(), Categories.end(), category) != Categories.end();
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

void MessageRouter::procMessage(const QByteArray &data)
{
    m_meter->countMessage(data.size());
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
    std::size_t offset = envelopeSize(m_config.processorAsterixFormat);
    while (offset < size && decodeBlock(octets + offset, size - offset)) {
        if (m_block.size == 0) {
            Q_EMIT message(LogLevel::Warning,
                tr("Decoded ASTERIX data block reports zero size, the rest of the message is dropped."));
            return;
        }
        offset += m_block.size;
        if (fromConfiguredSensor()) {
            routeBlock();
        }
    }
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
    if (isTrackerCategory(m_block.category)) {
        if (m_consumers.tracker) {
            m_consumers.tracker->procAsterixMessage(m_block);
        }
        return;
    }
    switch (m_block.category) {
    case 4:
        return m_consumers.alerts->procMessage(m_block);
    case 8:
        return m_consumers.weather->procAsterixMessage(m_block);
    case 240:
        return m_consumers.video->procAsterixMessage(m_block);
    default:
        logUnsupportedCategory();
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
    }
    for (ModeSFrame &frame : m_modesFrames) {
        procModeSFrame(frame);
    }
}

// Receivers count from whenever they were switched on; the tracker needs UTC in any case.
void MessageRouter::procModeSFrame(ModeSFrame &frame)
{
    const auto now = static_cast<unsigned long long>(m_clock->nowMs());
    frame.timeStamp = m_config.processorModeSIgnoreTimeStamp ? now : m_receiverClock.toUtc(frame, now);
    m_modesDecoder.decode(ModeSMessage::AnyDownlink, frame, *m_modesMessage);
    if (!m_modesMessage->valid()) {
        debug([] { return tr("Failed to decode Mode-S message."); });
    } else if (m_consumers.tracker) {
        m_consumers.tracker->procModeSMessage(m_modesMessage);
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
        return;
    }
    while (result.valid() && m_consumers.tracker) {
        m_consumers.tracker->procAleniaSirMMessage(QSharedPointer<AleniaSirMRadarMessage>(result.message.release()));
        octets += result.size;
        left -= result.size;
        result = AleniaSirMRadarDecoder::decode(octets, left);
    }
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
