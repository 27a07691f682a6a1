#include "assessment/sensor_assessor.h"

#include "asterix/reference_values.h"
#include "engine/envelope.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr std::size_t MostRadars = 64;
constexpr double SettleInterval = 10.0; // seconds
// A target that turns flies an arc of which a straight line cuts off some metres in this time.
constexpr double LongestAdsbGap = 5.0; // seconds
constexpr double LongestSystemGap = 13.0;
constexpr double MetresPerFoot = 0.3048;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(SensorAssessor)
};

std::optional<double> heightOf(const _ast_datarecord_t &record)
{
    const _ast_altitude_t geometric = ast_datarecord_get_geometricaltitude(record);
    const _ast_altitude_t level = ast_datarecord_get_flightlevel(record);
    if (geometric.present || level.present) {
        return (geometric.present ? geometric.altitude : level.altitude) * MetresPerFoot;
    }
    return std::nullopt;
}

} // namespace

QString SensorReport::title() const
{
    const QString id = QStringLiteral("%1/%2").arg(sac).arg(sic);
    return name.isEmpty() ? Text::tr("Radar %1").arg(id) : QStringLiteral("%1 (%2)").arg(name, id);
}

SensorAssessor::SensorAssessor(const Options &options)
    : m_options(options), m_adsb(LongestAdsbGap,
                              [this](auto &waiting, quint64 target, auto &before, auto &after) {
                                  match(ReferenceKind::Adsb, waiting, target, before, after);
                              }),
      m_systemTracks(LongestSystemGap, [this](auto &waiting, quint64 target, auto &before, auto &after) {
          match(ReferenceKind::SystemTracks, waiting, target, before, after);
      })
{
}

void SensorAssessor::add(std::span<const unsigned char> message, const QDateTime &arrival)
{
    std::optional<double> seconds;
    if (arrival.isValid()) {
        seconds = static_cast<double>(arrival.toMSecsSinceEpoch()) / 1000.0;
    }
    auto left = message.subspan(std::min(message.size(), envelopeSize(m_options.format)));
    while (!left.empty() && ast_datablock_smart_decode(&m_block, left.data(), left.size()) && m_block.size > 0) {
        left = left.subspan(m_block.size);
        if (m_block.valid) {
            addBlock(seconds);
        }
    }
}

void SensorAssessor::addBlock(std::optional<double> arrival)
{
    for (const _ast_datarecord_t &record : m_block.records) {
        ++m_records;
        addRecord(static_cast<int>(m_block.category), record, arrival);
    }
    if (m_axis.now() - m_settled > SettleInterval || m_axis.now() < m_settled) {
        settle();
    }
}

void SensorAssessor::addRecord(int category, const _ast_datarecord_t &record, std::optional<double> arrival)
{
    const _ast_sacsic_t source = ast_datarecord_get_sacsic(record);
    const auto id = static_cast<Id>(source.sac * 256 + source.sic);
    switch (category) {
    case 1:
    case 2:
    case 34:
    case 48:
        addRadarRecord(category, record, arrival, id);
        break;
    case 21:
    case 62:
        addReference(category, record, arrival);
        break;
    default:
        break;
    }
}

std::optional<double> SensorAssessor::timeOf(const _ast_datarecord_t &record, std::optional<double> arrival)
{
    const _ast_time_of_day_t time = ast_datarecord_get_positiontime(record);
    if (time.present) {
        return m_axis.place(time.seconds, arrival, time.period);
    }
    return arrival ? std::optional(m_axis.placeArrival(*arrival)) : std::nullopt;
}

void SensorAssessor::addRadarRecord(int category, const _ast_datarecord_t &record, std::optional<double> arrival, Id id)
{
    RadarAssessor *radar = radarOf(id);
    const std::optional<double> time = radar ? timeOf(record, arrival) : std::nullopt;
    if (!time) {
        return;
    }
    const bool isService = category == 2 || category == 34;
    if (arrival && ast_datarecord_get_positiontime(record).present) {
        radar->addDelay(isService, m_axis.placeArrival(*arrival) - *time);
    }
    if (isService) {
        radar->addService(category, record, *time);
        return;
    }
    std::optional<RadarPlot> plot = RadarPlot::of(category, record);
    if (!plot) {
        return;
    }
    plot->time = *time;
    if (radar->addPlot(*plot)) {
        m_adsb.await({id, *plot});
        m_systemTracks.await({id, *plot});
    }
}

void SensorAssessor::addReference(int category, const _ast_datarecord_t &record, std::optional<double> arrival)
{
    const _ast_item_wgs84_t place = ast_datarecord_get_wgs84coord(record);
    const _ast_item_address_t address = ast_datarecord_get_icaoaddr(record);
    const std::optional<double> time = place.present ? timeOf(record, arrival) : std::nullopt;
    if (!time) {
        return;
    }
    ReferenceTracks::Report report;
    report.point = {*time, place.latitude, place.longitude, heightOf(record)};
    report.address = address.present ? std::optional(address.address) : std::nullopt;
    if (category == 62) {
        _ast_datarecord_062_t typed;
        ast_datarecord_062_disassemble(&typed, record);
        if (!typed.i040.present || typed.i080.cst) {
            return; // without measurement, what it says is a prediction
        }
        report.key = static_cast<quint64>(typed.i010.sac) << 24 | static_cast<quint64>(typed.i010.sic) << 16
            | typed.i040.trackNumber;
        report.squawk = typed.i060.present ? std::optional<unsigned>(typed.i060.code) : std::nullopt;
        m_systemTracks.add(report);
    } else if (report.address && !ast_datarecord_021_get_testbit(record)) {
        const _ast_item_mode3a_t code = ast_datarecord_021_get_squawk(record);
        report.key = *report.address;
        report.squawk = code.present ? std::optional<unsigned>(code.code) : std::nullopt;
        m_adsb.add(report);
    }
    ++m_references;
}

RadarAssessor *SensorAssessor::radarOf(Id id)
{
    const auto known = m_radars.find(id);
    if (known != m_radars.end()) {
        return &known->second;
    }
    const auto wanted = std::find_if(m_options.radars.begin(), m_options.radars.end(),
        [id](const Radar &radar) { return radar.sac * 256 + radar.sic == id; });
    const bool isWanted = wanted != m_options.radars.end();
    if (m_radars.size() >= MostRadars || (m_options.onlyThose && !isWanted)) {
        return nullptr;
    }
    RadarAssessor &added = m_radars[id];
    if (isWanted) {
        added.setName(wanted->name);
    }
    if (isWanted && wanted->site.isValid()) {
        added.setSite(wanted->site);
    }
    return &added;
}

void SensorAssessor::match(ReferenceKind kind, const ReferenceTracks::Waiting &waiting, quint64 target,
    const ReferencePoint &before, const ReferencePoint &after)
{
    const auto radar = m_radars.find(static_cast<Id>(waiting.radar));
    if (radar != m_radars.end()) {
        radar->second.addMatch(kind, target, waiting.plot, before, after);
    }
}

void SensorAssessor::settle()
{
    m_settled = m_axis.now();
    m_adsb.prune(m_settled);
    m_systemTracks.prune(m_settled);
    for (auto &[id, radar] : m_radars) {
        radar.settle(m_settled);
    }
}

AssessmentReport SensorAssessor::report() const
{
    AssessmentReport report;
    report.first = m_axis.origin();
    report.duration = m_axis.end();
    report.records = m_records;
    report.references = m_references;
    for (const auto &[id, radar] : m_radars) {
        SensorReport sensor = radar.report();
        sensor.sac = static_cast<quint8>(id / 256);
        sensor.sic = static_cast<quint8>(id % 256);
        sensor.trouble = troubleOf(sensor, m_references);
        report.sensors += sensor;
    }
    return report;
}

QString SensorAssessor::troubleOf(const SensorReport &report, qint64 references)
{
    const bool isSolved =
        std::any_of(report.biases.begin(), report.biases.end(), [](const BiasReport &bias) { return bias.solved; });
    if (isSolved) {
        return {};
    }
    if (report.plots == 0) {
        return Text::tr("It sends no plots.");
    }
    if (references == 0) {
        return Text::tr(
            "There is nothing to compare it with: the data hold neither ADS-B reports (CAT021) nor system tracks "
            "(CAT062).");
    }
    if (!report.isSite()) {
        return Text::tr("Where the radar stands is not known: it is neither given nor sent in I034/120.");
    }
    return report.biases.isEmpty()
        ? Text::tr("None of its plots could be matched with the reference by address or Mode 3/A code.")
        : Text::tr("Too few plots could be matched with the reference, or they lie in too few directions.");
}
