#include "assessment/radar_assessor.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

constexpr unsigned char NorthMarker = 1;
constexpr unsigned char SectorCrossing = 2;
constexpr double SilentTurns = 1.5; // after which the data, not the targets, were missing

// Nearer than that, or steeper, the differences are those of heights and of the reference's own place.
constexpr double LeastRange = 5000.0; // metres
constexpr double SteepestElevation = 30.0; // degrees

} // namespace

void RadarAssessor::setSite(const GeoCoordinate &site)
{
    m_site = site;
    m_siteIsGiven = true;
    m_antenna.emplace(
        site.latitude(), site.longitude(), site.type() == GeoCoordinate::Coordinate3D ? site.altitude() : 0.0);
}

void RadarAssessor::heard(double time)
{
    const double period = m_rotation.period();
    if (period > 0.0 && time - m_lastHeard > SilentTurns * period) {
        m_chains.noteSilence(time);
    }
    m_lastHeard = std::max(m_lastHeard, time);
}

bool RadarAssessor::addPlot(const RadarPlot &plot)
{
    ++m_plots;
    heard(plot.time);
    if (const auto key = PlotChains::keyOf(plot)) {
        m_rotation.noteTarget(*key, plot.time);
    }
    return m_chains.add(plot, m_rotation.period());
}

void RadarAssessor::addService(int category, const _ast_datarecord_t &record, double time)
{
    ++m_serviceMessages;
    heard(time);
    if (category == 2) {
        _ast_datarecord_002_t typed;
        ast_datarecord_002_disassemble(&typed, record);
        noteAntenna(typed, time);
        return;
    }
    _ast_datarecord_034_t typed;
    ast_datarecord_034_disassemble(&typed, record);
    noteAntenna(typed, time);
    if (!m_siteIsGiven && !m_antenna && typed.i120.present) {
        m_site = GeoCoordinate(typed.i120.latitude, typed.i120.longitude, typed.i120.height);
        m_antenna.emplace(typed.i120.latitude, typed.i120.longitude, typed.i120.height);
    }
}

template <typename Service>
void RadarAssessor::noteAntenna(const Service &record, double time)
{
    if (record.i000.present && record.i000.type == NorthMarker) {
        m_rotation.noteNorth(time);
    } else if (record.i000.present && record.i000.type == SectorCrossing && record.i020.present) {
        m_rotation.noteSector(static_cast<int>(std::lround(record.i020.azimuth)), time);
    }
    if (record.i041.present && record.i041.period > 0.0) {
        m_rotation.noteReported(record.i041.period);
    }
}

// Where the reference sends no height, the radar's own Mode C serves both.
void RadarAssessor::addMatch(ReferenceKind kind, quint64 target, const RadarPlot &plot, const ReferencePoint &before,
    const ReferencePoint &after)
{
    const ReferencePoint now = ReferencePoint::between(before, after, plot.time);
    const bool isHeightKnown = now.height || plot.altitude;
    if (!m_antenna || !isHeightKnown || after.time <= before.time) {
        return;
    }
    const auto sightOf = [&](const ReferencePoint &point) {
        const double height = now.height ? *point.height : *plot.altitude;
        return m_antenna->to(LineOfSight::point(point.latitude, point.longitude, height));
    };
    const LineOfSight::Sight sight = sightOf(now);
    if (sight.range < LeastRange || sight.elevation > SteepestElevation) {
        return;
    }
    const LineOfSight::Sight first = sightOf(before);
    const LineOfSight::Sight second = sightOf(after);
    const double seconds = after.time - before.time;
    BiasEstimator::Pair pair;
    pair.range = static_cast<float>(sight.range);
    pair.rangeRate = static_cast<float>((second.range - first.range) / seconds);
    pair.azimuth = static_cast<float>(sight.azimuth);
    pair.azimuthRate = static_cast<float>(std::remainder(second.azimuth - first.azimuth, 360.0) / seconds);
    pair.rangeError = static_cast<float>(plot.range - sight.range);
    pair.azimuthError = static_cast<float>(std::remainder(plot.azimuth - sight.azimuth, 360.0));
    pair.aircraft = static_cast<quint32>(target ^ target >> 32);
    m_biases[kind].add(pair);
}

void RadarAssessor::settle(double now)
{
    if (const double period = m_rotation.period(); period > 0.0) {
        m_chains.settle(now, period);
    }
}

SensorReport RadarAssessor::report() const
{
    SensorReport report;
    report.name = m_name;
    report.site = m_site;
    report.plots = m_plots;
    report.serviceMessages = m_serviceMessages;
    report.rotation = m_rotation.report();
    report.serviceDelay = m_serviceDelay.report();
    report.plotDelay = m_plotDelay.report();
    report.detection = m_chains.detection();
    report.falsePlots = m_chains.falsePlots(report.rotation.period);
    for (const auto &[kind, estimator] : m_biases) {
        report.biases += estimator.report(kind);
    }
    return report;
}
