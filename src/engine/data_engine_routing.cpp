#include "engine/data_engine.h"
#include "tracking/sensor_info.h"
#include "tracking/tracker.h"

#include <algorithm>
#include <array>

namespace {

// Octets before the data blocks; what they say is not needed.
qsizetype envelopeSize(Config::AsterixFormat format)
{
    switch (format) {
    case Config::AsterixFormat::Hdlc:
        return 2;
    case Config::AsterixFormat::ManagAir:
        return 16;
    case Config::AsterixFormat::Raw:
        break;
    }
    return 0;
}

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
    constexpr std::array categories = {1U, 2U, 10U, 20U, 21U, 34U, 48U, 62U};
    return std::find(categories.begin(), categories.end(), category) != categories.end();
}

} // namespace

void DataEngine::procMessage(const QByteArray &data)
{
    m_meter.countMessage(data.size());
    // ASTERIX is the one message format whose inputs open.
    procAsterixMessage(data);
}

void DataEngine::procAsterixMessage(const QByteArray &data)
{
    const auto *octets = reinterpret_cast<const unsigned char *>(data.constData());
    const auto size = static_cast<std::size_t>(data.size());
    auto offset = static_cast<std::size_t>(envelopeSize(m_config.processorAsterixFormat));
    while (offset < size && decodeBlock(octets + offset, size - offset)) {
        if (m_block.size == 0) {
            Q_EMIT logMessage(LogLevel::Warning,
                tr("Decoded ASTERIX data block reports zero size, the rest of the message is dropped."));
            return;
        }
        offset += m_block.size;
        if (fromConfiguredSensor()) {
            routeBlock();
        }
    }
}

bool DataEngine::decodeBlock(const unsigned char *data, std::size_t length)
{
    if (const _ast_uap_t *uap = configuredUap(m_config.processorAsterixUap)) {
        return ast_datablock_decode(&m_block, data, length, uap);
    }
    return ast_datablock_smart_decode(&m_block, data, length);
}

// False when the check is on and the block's first source identification is another sensor's.
bool DataEngine::fromConfiguredSensor()
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
        Q_EMIT logMessage(LogLevel::Warning,
            tr("ASTERIX data block with SAC/SIC %1/%2 does not match the configured sensor SAC/SIC %3/%4, dropped.")
                .arg(source.sac)
                .arg(source.sic)
                .arg(m_sensor->sac())
                .arg(m_sensor->sic()));
    }
    return false;
}

void DataEngine::routeBlock()
{
    if (isTrackerCategory(m_block.category)) {
        if (m_tracker) {
            m_tracker->procAsterixMessage(m_block);
        }
        return;
    }
    std::array<char, 8> name = {};
    ast_category_to_str(name.data(), name.size(), m_block.category);
    Q_EMIT logMessage(
        LogLevel::Debug, tr("Unsupported ASTERIX catetory received: %1").arg(QString::fromLatin1(name.data())));
}
