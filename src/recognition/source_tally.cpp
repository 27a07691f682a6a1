#include "recognition/source_tally.h"

#include "asterix/profile.h"
#include "geo/wgs84.h"

#include <algorithm>
#include <cmath>

namespace {

// The one category of which several editions are about.
constexpr int CategoryOfEditions = 21;

// Within them a flat map and a round Earth are near enough to each other to tell where the source's origin is.
constexpr double FarthestForSite = 60000.0; // metres
constexpr double LargestSiteSpread = 1000.0; // metres

} // namespace

void SourceTally::addRecord(const _ast_datarecord_t &record, int category, std::optional<qint64> timeMs)
{
    Category &tally = m_categories[category];
    ++tally.counts.records;
    ++tally.editions[korvane::asterix::editionOf(record)];
    const ReportFacts facts = ReportFacts::of(category, record);
    if (facts.isTarget) {
        addTarget(tally.counts, facts, timeMs);
        tally.counts.trackable += facts.trackable(category);
    } else {
        addAntenna(facts, timeMs);
    }
}

void SourceTally::addTarget(CategoryFindings &counts, const ReportFacts &facts, std::optional<qint64> timeMs)
{
    counts.trackNumbers += facts.trackNumber.has_value();
    counts.addresses += facts.address;
    counts.polarPositions += facts.polar;
    counts.cartesianPositions += facts.cartesian;
    counts.wgs84Positions += facts.wgs84.has_value();
    m_primary = m_primary || facts.primary;
    m_secondary = m_secondary || facts.secondary;
    m_modeS = m_modeS || facts.modeS;
    if (facts.trackNumber && timeMs) {
        m_trackUpdates.note(*facts.trackNumber, *timeMs);
    }
    if (facts.wgs84) {
        m_places.add(facts.wgs84->latitude, facts.wgs84->longitude);
    }
    if (facts.wgs84 && facts.offset) {
        addSiteFrom(*facts.wgs84, *facts.offset);
    }
}

void SourceTally::addSiteFrom(const ReportFacts::Wgs84 &place, const ReportFacts::Offset &offset)
{
    const double distance = std::hypot(offset.east, offset.north);
    if (distance <= FarthestForSite) {
        const double back = wgs84::degrees(std::atan2(-offset.east, -offset.north));
        const auto site = GeoCoordinate(place.latitude, place.longitude).atDistanceAndAzimuth(distance, back);
        m_sites.add(site.latitude(), site.longitude());
    }
}

void SourceTally::addAntenna(const ReportFacts &facts, std::optional<qint64> timeMs)
{
    if (facts.turnMark && timeMs) {
        m_turnMarks.note(*facts.turnMark, *timeMs);
    }
    m_statedPeriod = facts.rotationPeriod ? facts.rotationPeriod : m_statedPeriod;
    m_statedSite = facts.site ? facts.site : m_statedSite;
}

void SourceTally::addUndecodable(int category, qint64 octets)
{
    m_categories[category].counts.undecodableOctets += octets;
}

SourceFindings SourceTally::findings() const
{
    SourceFindings findings;
    for (const auto &[number, tally] : m_categories) {
        CategoryFindings category = tally.counts;
        category.category = number;
        category.editionChosen = number == CategoryOfEditions;
        const auto most = std::max_element(tally.editions.begin(), tally.editions.end(),
            [](const auto &a, const auto &b) { return a.second < b.second; });
        if (most != tally.editions.end()) {
            category.edition = QString::fromUtf8(most->first.data(), static_cast<qsizetype>(most->first.size()));
            category.editionRecords = most->second;
        }
        findings.categories += category;
    }
    std::stable_partition(findings.categories.begin(), findings.categories.end(),
        [](const CategoryFindings &category) { return category.reportsTargets(); });
    findings.area = m_places.area();
    findings.primary = m_primary;
    findings.secondary = m_secondary;
    findings.modeS = m_modeS;
    reportPeriod(&findings);
    reportSite(&findings);
    return findings;
}

void SourceTally::reportPeriod(SourceFindings *findings) const
{
    using Basis = SourceFindings::PeriodBasis;
    const std::pair<std::optional<double>, Basis> candidates[] = {{m_statedPeriod, Basis::Reported},
        {m_turnMarks.period(), Basis::SectorsAndMarkers}, {m_trackUpdates.period(), Basis::TrackUpdates}};
    for (const auto &[period, basis] : candidates) {
        if (period) {
            findings->rotationPeriod = *period;
            findings->periodBasis = basis;
            return;
        }
    }
}

void SourceTally::reportSite(SourceFindings *findings) const
{
    const PositionArea derived = m_sites.area();
    if (m_statedSite) {
        findings->site = GeoCoordinate(m_statedSite->latitude, m_statedSite->longitude);
    } else if (derived.positions > 0 && derived.radius <= LargestSiteSpread) {
        findings->site = derived.center;
    }
}
