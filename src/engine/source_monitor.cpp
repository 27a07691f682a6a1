#include "engine/source_monitor.h"

#include "asterix/asterix.h"
#include "asterix/profile.h"
#include "asterix/report_time.h"
#include "sirm/alenia_sir_m_radar_message.h"

#include <algorithm>
#include <numeric>
#include <tuple>
#include <utility>

namespace {

constexpr qint64 ExamplePeriodMs = 1000;
constexpr int RegularBuckets = 2;
constexpr int MostAdmissions = 100; // a second
constexpr int EditionBits = 16;
constexpr double SirMSector = 22.5; // degrees
constexpr double DaySeconds = 86400.0;

quint64 editionHash(std::string_view edition)
{
    quint64 hash = 0;
    for (const char c : edition) {
        hash = hash * 131 + static_cast<unsigned char>(c);
    }
    return hash & ((1U << EditionBits) - 1);
}

std::string_view editionOf(const TakenReport &report)
{
    return report.record ? korvane::asterix::editionOf(*report.record) : std::string_view();
}

// The source that a block names which could not be decoded.
_ast_sacsic_t sourceOfBlock(const unsigned char *octets, quint32 size)
{
    constexpr quint32 Header = 3;
    quint32 at = Header;
    while (at < size && (octets[at] & 1)) {
        ++at;
    }
    const bool sent = at + 2 < size && (octets[Header] & 0x80);
    return sent ? _ast_sacsic_t{true, octets[at + 1], octets[at + 2]} : _ast_sacsic_t{};
}

// Of the antenna's time, where the record has one.
double secondsOf(const TakenReport &report, qint64 nowMs)
{
    const auto time = ast_datarecord_get_timeofday(*report.record);
    return time.present ? time.seconds : static_cast<double>(nowMs % 86400000) / 1000.0;
}

template <typename Record>
void cross(AntennaMeter &antenna, const Record &record, double seconds)
{
    constexpr int NorthMarker = 1;
    if (record.i000.type == NorthMarker) {
        antenna.crossNorth(seconds);
    } else if (record.i020.present) {
        antenna.crossSector(record.i020.azimuth, seconds);
    }
}

void measureSirM(AntennaMeter &antenna, const AleniaSirMRadarMessage &message, qint64 nowMs)
{
    const double seconds =
        message.timeOfDayValid() ? message.timeOfDay() / 1000.0 : static_cast<double>(nowMs % 86400000) / 1000.0;
    if (message.type() == AleniaSirMRadarMessage::Type::NorthMarker) {
        antenna.crossNorth(seconds);
    } else if (const auto &data = static_cast<const AleniaSirMRadarDataMessage &>(message); data.sectorValid()) {
        antenna.crossSector(data.sector() * SirMSector, seconds);
    }
}

void addCounts(SourceStatistics &sum, const SourceStatistics &values)
{
    sum.datagrams += values.datagrams;
    sum.blocks += values.blocks;
    sum.octets += values.octets;
    for (std::size_t i = 0; i < sum.outcomes.size(); ++i) {
        sum.outcomes[i] += values.outcomes[i];
    }
}

bool isBefore(const SourceStatistics &a, const SourceStatistics &b)
{
    return std::tuple(a.endpoint, a.form, a.category, a.identified, a.sac, a.sic, a.edition)
        < std::tuple(b.endpoint, b.form, b.category, b.identified, b.sac, b.sic, b.edition);
}

} // namespace

quint64 SourceMonitor::Key::packed() const
{
    return (static_cast<quint64>(form) << 40 | quint64{endpoint} << 32 | quint64{identified} << 24
               | quint64{category} << 16 | quint64{sac} << 8 | sic)
        << EditionBits;
}

void SourceMonitor::restart(double reportPeriod)
{
    m_reportPeriod = reportPeriod;
    m_totals = {};
    m_keys.clear();
    m_sources.clear();
    m_others = {};
    forgetLast();
    m_nowMs = m_clock ? m_clock->nowMs() : 0;
    setSecond(m_nowMs / 1000);
}

void SourceMonitor::setSecond(qint64 second)
{
    m_second = second;
    m_bucket = second / SourceStatistics::BucketSeconds;
}

void SourceMonitor::advance()
{
    m_nowMs = m_clock->nowMs();
    const qint64 passed = m_nowMs / 1000 - m_second;
    if (passed > 0) {
        endSecond(passed);
    } else if (passed < 0) {
        // Another time has begun: a recording's.
        std::for_each(m_sources.begin(), m_sources.end(), [](const auto &source) { source->forgetTime(); });
        setSecond(m_second + passed);
    }
}

// What was counted belongs to the first of the seconds that have passed; in the others nothing came.
void SourceMonitor::endSecond(qint64 passed)
{
    m_admissions = 0;
    for (const auto &source : m_sources) {
        const quint64 records = source->records();
        source->seconds[indexOf(m_second)] =
            static_cast<quint32>(records - std::exchange(source->countedRecords, records));
        for (qint64 i = 1; i <= std::min<qint64>(passed, Seconds - 1); ++i) {
            source->seconds[indexOf(m_second + i)] = 0;
        }
    }
    setSecond(m_second + passed);
}

// All that is done once a block is done with the first of its records that has the outcome. Each message of the antenna
// and each radial is looked at.
void SourceMonitor::take(const TakenReport &report)
{
    Source &source = sourceOf(report);
    const auto outcome = static_cast<std::size_t>(report.fate.outcome);
    ++source.values.outcomes[outcome];
    if (source.lastBlock != m_block) {
        beginIn(source, report);
    }
    if (m_nowMs >= source.nextExampleMs[outcome]) {
        keepExample(source, report);
    }
    if (report.fate.outcome == ReportOutcome::SourceStatus || report.category == VideoCategory) {
        measure(source, report);
    } else {
        source.lookedAt[outcome] = m_block;
    }
}

SourceMonitor::Source &SourceMonitor::sourceOf(const TakenReport &report)
{
    return report.record && isAsLast(*report.record) ? *m_last : findSource(report);
}

SourceMonitor::Source &SourceMonitor::findSource(const TakenReport &report)
{
    forgetLast();
    Source &source = find(report, keyOf(report).packed());
    if (report.record && report.record->itemOffsets[0] != 0) {
        m_last = &source;
        m_lastUap = report.record->uap;
        m_lastCode = codeAt(report.record->data + report.record->itemOffsets[0]);
    }
    return source;
}

SourceMonitor::Key SourceMonitor::keyOf(const TakenReport &report) const
{
    Key key{report.form, report.category, static_cast<quint8>(m_endpoint)};
    _ast_sacsic_t code;
    if (report.record) {
        code = sourceIn(*report.record);
    } else if (report.sirM) {
        code = {true, 0, static_cast<quint8>(report.sirM->radarId())};
    } else if (report.form == TakenReport::Form::Asterix && report.category != 0) {
        code = sourceOfBlock(report.octets, report.size);
    }
    key.identified = code.present;
    key.sac = code.sac;
    key.sic = code.sic;
    return key;
}

// What could not be decoded is of the edition that the source sends otherwise.
SourceMonitor::Source &SourceMonitor::find(const TakenReport &report, quint64 key)
{
    const std::string_view edition = editionOf(report);
    const quint64 wanted = key | editionHash(edition);
    const auto found = std::find_if(m_keys.begin(), m_keys.end(), [&](quint64 candidate) {
        return candidate == wanted || (edition.empty() && candidate >> EditionBits == key >> EditionBits);
    });
    if (found != m_keys.end()) {
        return *m_sources[static_cast<std::size_t>(found - m_keys.begin())];
    }
    Source *source = makeRoom();
    if (!source) {
        return m_others;
    }
    m_keys.push_back(wanted);
    const Key named = keyOf(report);
    source->values.form = named.form;
    source->values.identified = named.identified;
    source->values.sac = named.sac;
    source->values.sic = named.sic;
    source->values.category = named.category;
    source->values.endpoint = named.endpoint;
    source->values.edition = QByteArray(edition.data(), static_cast<qsizetype>(edition.size()));
    source->values.firstArrivalMs = m_nowMs;
    return *source;
}

// A further source, the last one, whose key is to follow. Where the table is full, one that was heard by chance has to
// go: the one with the fewest records, of these the one that has been silent for longest. Null where there is none, and
// when too many have gone already for the time that it takes.
SourceMonitor::Source *SourceMonitor::makeRoom()
{
    if (m_sources.size() < InputStatistics::MaximumSources) {
        return m_sources.emplace_back(std::make_unique<Source>()).get();
    }
    ++m_totals.otherSources;
    if (++m_admissions > MostAdmissions) {
        return nullptr;
    }
    std::size_t victim = m_sources.size();
    for (std::size_t i = 0; i < m_sources.size(); ++i) {
        const auto weight = [](const Source &source) {
            return std::pair(source.records(), source.values.lastArrivalMs);
        };
        if (!m_sources[i]->isRegular(m_bucket)
            && (victim == m_sources.size() || weight(*m_sources[i]) < weight(*m_sources[victim]))) {
            victim = i;
        }
    }
    if (victim == m_sources.size()) {
        return nullptr;
    }
    addCounts(m_others.values, m_sources[victim]->values);
    std::swap(m_sources[victim], m_sources.back());
    std::swap(m_keys[victim], m_keys.back());
    m_keys.pop_back();
    *m_sources.back() = {};
    return m_sources.back().get();
}

quint64 SourceMonitor::Source::records() const
{
    return std::accumulate(values.outcomes.begin(), values.outcomes.end(), quint64{0});
}

// Heard in more than one stretch of ten seconds, and not so long ago.
bool SourceMonitor::Source::isRegular(qint64 bucket) const
{
    return buckets >= RegularBuckets && bucket - lastBucket <= SourceStatistics::HistoryBuckets;
}

quint32 SourceMonitor::Source::recordsIn(qint64 firstSecond, qint64 span) const
{
    quint32 records = 0;
    for (qint64 second = firstSecond; second < firstSecond + span; ++second) {
        records += seconds[indexOf(second)];
    }
    return records;
}

void SourceMonitor::Source::forgetTime()
{
    seconds.fill(0);
    countedRecords = records();
    lastBucket = 0;
    nextExampleMs.fill(0);
    delay = {};
}

// Once a block and source.
void SourceMonitor::beginIn(Source &source, const TakenReport &report)
{
    source.lastBlock = m_block;
    ++source.values.blocks;
    source.values.octets += std::exchange(m_blockOctets, 0);
    source.values.lastArrivalMs = m_nowMs;
    source.buckets += std::exchange(source.lastBucket, m_bucket) != m_bucket ? 1 : 0;
    if (source.lastMessage != m_totals.messages) {
        source.lastMessage = m_totals.messages;
        ++source.values.datagrams;
    }
    if (source.delay.isDue(m_nowMs) && report.record) {
        if (const auto time = ast_datarecord_get_timeofday(*report.record); time.present) {
            source.delay.add(m_clock->nowMs(), time.seconds, time.period);
        }
    } else if (report.sirM) {
        if (report.sirM->timeOfDayValid() && source.delay.isDue(m_nowMs)) {
            source.delay.add(m_clock->nowMs(), report.sirM->timeOfDay() / 1000.0, DaySeconds);
        }
        measureSirM(source.antenna, *report.sirM, m_clock->nowMs());
    }
}

void SourceMonitor::measure(Source &source, const TakenReport &report) const
{
    if (report.record && report.fate.outcome == ReportOutcome::SourceStatus) {
        measureAntenna(source, report);
    } else if (report.record) {
        measureVideo(source, report);
    }
}

void SourceMonitor::measureAntenna(Source &source, const TakenReport &report) const
{
    const double seconds = secondsOf(report, m_clock->nowMs());
    if (report.category == 2) {
        _ast_datarecord_002_t record;
        ast_datarecord_002_disassemble(&record, *report.record);
        cross(source.antenna, record, seconds);
    } else if (report.category == 34) {
        _ast_datarecord_034_t record;
        ast_datarecord_034_disassemble(&record, *report.record);
        cross(source.antenna, record, seconds);
    }
}

void SourceMonitor::measureVideo(Source &source, const TakenReport &report)
{
    constexpr quint32 MostMissing = 10000; // beyond it the count has begun anew, or is another sender's
    _ast_datarecord_240_t record;
    ast_datarecord_240_disassemble(&record, *report.record);
    const quint32 sequence = record.i020.present ? record.i020.sequence : 0;
    const quint32 missing = sequence - source.videoSequence - 1;
    if (sequence != 0 && source.videoSequence != 0 && missing < MostMissing) {
        source.values.missingMessages += missing;
    }
    source.videoSequence = sequence;
}

void SourceMonitor::keepExample(Source &source, const TakenReport &report) const
{
    const auto outcome = static_cast<std::size_t>(report.fate.outcome);
    source.nextExampleMs[outcome] = m_nowMs + ExamplePeriodMs;
    ReportExample &example = source.values.examples[outcome];
    const qsizetype kept = std::min<qsizetype>(report.size, ReportExample::LargestSize);
    example.octets = QByteArray(reinterpret_cast<const char *>(report.octets), kept);
    example.size = report.size;
    example.timeMs = m_nowMs;
    example.fault = QString::fromLatin1(report.fault);
    example.faultOffset = report.faultOffset;
}

InputStatistics SourceMonitor::statistics() const
{
    InputStatistics statistics = m_totals;
    statistics.timeMs = m_nowMs;
    statistics.others = m_others.values;
    statistics.others.records = m_others.records();
    statistics.sources.reserve(static_cast<qsizetype>(m_sources.size()));
    for (const auto &source : m_sources) {
        SourceStatistics &values = statistics.sources.emplaceBack(source->values);
        values.records = source->records();
        values.delay = source->delay.statistics();
        values.antenna = source->antenna.statistics();
        addRates(values, *source);
    }
    for (SourceStatistics &values : statistics.sources) {
        values.expectedInterval = expectedInterval(values);
    }
    std::sort(statistics.sources.begin(), statistics.sources.end(), isBefore);
    return statistics;
}

// Seconds that have not ended count for nothing.
void SourceMonitor::addRates(SourceStatistics &values, const Source &source) const
{
    const qint64 heard = std::max<qint64>(1, m_second - values.firstArrivalMs / 1000);
    const auto rate = [&](qint64 span) {
        return static_cast<double>(source.recordsIn(m_second - span, span))
            / static_cast<double>(std::min(span, heard));
    };
    values.rate10 = rate(10);
    values.rate60 = rate(60);
    constexpr qint64 BucketSeconds = SourceStatistics::BucketSeconds;
    qint64 second = (m_second / BucketSeconds - SourceStatistics::HistoryBuckets) * BucketSeconds;
    for (quint32 &bucket : values.history) {
        bucket = source.recordsIn(second, BucketSeconds);
        second += BucketSeconds;
    }
}

// What a radar sends of targets, weather and video comes with the turns of the antenna that others of its messages
// measure.
double SourceMonitor::expectedInterval(const SourceStatistics &values) const
{
    if (values.antenna.period > 0.0) {
        return values.antenna.period;
    }
    const bool isRadar = values.category == 1 || values.category == 48 || values.category == 240;
    for (const auto &other : m_sources) {
        const SourceStatistics &service = other->values;
        const bool isSame =
            service.endpoint == values.endpoint && service.sac == values.sac && service.sic == values.sic;
        const bool tells = service.category == 2 || service.category == 34;
        if (isRadar && isSame && tells) {
            if (const double period = other->antenna.statistics().period; period > 0.0) {
                return period;
            }
        }
    }
    const bool isSensors = values.category != 4 && values.category != 8 && values.category != 240;
    return isSensors && values.outcome(ReportOutcome::NoReader) < values.records ? m_reportPeriod : 0.0;
}
