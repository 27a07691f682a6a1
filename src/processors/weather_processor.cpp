#include "processors/weather_processor.h"

#include "asterix/asterix.h"

#include <QTime>

#include <cmath>
#include <utility>

namespace {

enum MessageType : std::uint8_t { PolarVectors = 1, StartOfPicture = 254, EndOfPicture = 255 };

QString timeText(double timeOfDay)
{
    if (timeOfDay < 0.0) {
        return QStringLiteral("N/A");
    }
    const auto milliseconds = static_cast<int>(std::lround(timeOfDay * 1000.0));
    return QTime(0, 0).addMSecs(milliseconds).toString(QStringLiteral("hh:mm:ss.zzz"));
}

} // namespace

WeatherProcessor::WeatherProcessor(QObject *parent) : QObject(parent) { }

void WeatherProcessor::procAsterixMessage(const _ast_datablock_t &block)
{
    if (!block.valid || block.category != 8) {
        return;
    }
    for (const _ast_datarecord_t &generic : block.records) {
        _ast_datarecord_008_t record;
        ast_datarecord_008_disassemble(&record, generic);
        const ReportOutcome outcome = record.valid ? procCat008Record(record) : ReportOutcome::Malformed;
        if (m_ledger) {
            m_ledger->takeRecord(block.category, generic, outcome);
        }
    }
}

ReportOutcome WeatherProcessor::procCat008Record(const _ast_datarecord_008_t &record)
{
    switch (record.i000.type) {
    case StartOfPicture:
        return procStartOfPicture(record);
    case PolarVectors:
        return procPolarVectors(record);
    case EndOfPicture:
        return procEndOfPicture(record);
    default:
        debug([&] { return tr("Weather Processor: Unsupported CAT008 message type: %1").arg(record.i000.type); });
        return ReportOutcome::NoReader;
    }
}

void WeatherProcessor::reset()
{
    m_inPicture = false;
    m_scaleKnown = false;
    m_scale = 0;
    m_timeOfDay = -1.0;
    m_vectors.clear();
}

ReportOutcome WeatherProcessor::procStartOfPicture(const _ast_datarecord_008_t &record)
{
    if (m_inPicture) {
        warn(tr("Weather Processor: Incomplete weather picture discarded by new SOP."));
    }
    m_inPicture = true;
    m_vectors.clear();
    m_timeOfDay = record.i090.present ? record.i090.value * record.i090.lsb : -1.0;
    if (record.i100.present) {
        m_scale = record.i100.scalingFactor;
        m_scaleKnown = true;
    }
    debug([&] {
        return tr("Weather Processor: SOP received (time of day: %1, scale factor: %2).")
            .arg(timeText(m_timeOfDay), m_scaleKnown ? QString::number(m_scale) : QStringLiteral("N/A"));
    });
    return ReportOutcome::Weather;
}

ReportOutcome WeatherProcessor::judgePolarVectors(const _ast_datarecord_008_t &record)
{
    if (!m_inPicture) {
        debug([] { return tr("Weather Processor: Polar vectors received without SOP, record dropped."); });
        return ReportOutcome::Incomplete;
    }
    if (!record.i020.present || !record.i034.present || record.i034.count == 0) {
        debug([] { return tr("Weather Processor: Polar vector record incomplete, record dropped."); });
        return ReportOutcome::Incomplete;
    }
    if (record.i020.systemCoordinates) {
        warn(tr("Weather Processor: Weather vectors in system coordinates are not supported, record dropped."));
        return ReportOutcome::Unsupported;
    }
    if (record.i020.test || record.i020.error) {
        debug([] { return tr("Weather Processor: Test or error polar vector, record dropped."); });
        return ReportOutcome::TestTarget;
    }
    if (!m_scaleKnown) {
        warn(tr("Weather Processor: No scaling factor received, weather vectors dropped."));
        return ReportOutcome::Incomplete;
    }
    return ReportOutcome::Weather;
}

ReportOutcome WeatherProcessor::procPolarVectors(const _ast_datarecord_008_t &record)
{
    if (const ReportOutcome outcome = judgePolarVectors(record); outcome != ReportOutcome::Weather) {
        return outcome;
    }
    const double unit = std::ldexp(1.0, m_scale - 7);
    for (int i = 0; i < record.i034.count; ++i) {
        const _ast_weather_polar_vector_t &vector = record.i034.vectors[i];
        m_vectors.append({record.i020.intensity, vector.startRange * unit, vector.endRange * unit, vector.azimuth});
    }
    debug([&] {
        return tr("Weather Processor: %1 polar vector(s) received (intensity %2, total %3).")
            .arg(record.i034.count)
            .arg(record.i020.intensity)
            .arg(m_vectors.size());
    });
    return ReportOutcome::Weather;
}

ReportOutcome WeatherProcessor::procEndOfPicture(const _ast_datarecord_008_t &record)
{
    if (!m_inPicture) {
        return ReportOutcome::Incomplete;
    }
    const int announced = record.i120.count;
    if (!record.i120.present) {
        debug([&] {
            return tr("Weather Processor: EOP received, weather picture: %1 vector(s).").arg(m_vectors.size());
        });
    } else {
        const bool complete = m_vectors.size() == announced;
        if (!complete) {
            warn(tr("Weather Processor: Incomplete weather picture: %1 of %2 vectors received.")
                     .arg(m_vectors.size())
                     .arg(announced));
        }
        debug([&] {
            return tr("Weather Processor: EOP received, weather picture %1: %2 of %3 vector(s).")
                .arg(complete ? tr("complete") : tr("incomplete"))
                .arg(m_vectors.size())
                .arg(announced);
        });
    }
    m_inPicture = false;
    const Picture picture{m_timeOfDay, std::exchange(m_vectors, {})};
    if (!picture.vectors.isEmpty()) {
        Q_EMIT pictureReady(picture);
    }
    return ReportOutcome::Weather;
}
