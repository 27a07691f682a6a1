#include "recognition/source_tally.h"

#include "asterix/profile.h"
#include "geo/wgs84.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <tuple>

namespace {

// The one category of which several editions are about.
constexpr int CategoryOfEditions = 21;

// The one category that sensors of two kinds send.
constexpr int SurfaceCategory = 10;

// Within them a flat map and a round Earth are near enough to each other to tell where the source's origin is.
constexpr double FarthestForSite = 60000.0; // metres
constexpr double LargestSiteSpread = 1000.0; // metres

// Of a category; enough to tell editions apart, and no burden on long recordings.
constexpr qint64 MostJudgedBlocks = 5000;

QString textOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

void SourceTally::addRecord(const _ast_datarecord_t &record, int category, std::optional<qint64> timeMs)
{
    Category &tally = m_categories[category];
    ++tally.counts.records;
    ++tally.editions[korvane::asterix::editionOf(record)];
    if (const auto callsign = ast_datarecord_get_callsign(record); std::strchr(callsign.text, ' ')) {
        ++tally.counts.oddIdentifications;
        tally.counts.oddIdentification = QString::fromLatin1(callsign.text);
    }
    const ReportFacts facts = ReportFacts::of(category, record);
    if (facts.isTarget) {
        addTarget(tally.counts, facts, timeMs);
        tally.counts.trackable += facts.trackable(sensorTypeOf(category));
        tally.surfaceTracks += category == SurfaceCategory && facts.trackable(MlatSensor);
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

void SourceTally::addUndecodable(const _ast_datablock_t &block)
{
    CategoryFindings &counts = m_categories[static_cast<int>(block.category)].counts;
    counts.undecodableOctets += block.size;
    ++counts.undecodableBlocks;
    counts.hasTable = block.error != korvane::asterix::Error::UnknownCategory;
    if (counts.fault.isEmpty()) {
        counts.fault = QString::fromLatin1(korvane::asterix::errorText(block.error));
        counts.faultOffset = block.errorOffset;
    }
}

bool SourceTally::wantsJudgement(int category) const
{
    const auto tally = m_categories.find(category);
    return tally == m_categories.end() || tally->second.counts.judgedBlocks < MostJudgedBlocks;
}

void SourceTally::addJudgement(int category, std::span<const korvane::asterix::EditionFit> fits)
{
    Category &tally = m_categories[category];
    ++tally.counts.judgedBlocks;
    tally.judged.resize(fits.size());
    const auto whole = std::count_if(fits.begin(), fits.end(), [](const auto &fit) { return fit.isWhole; });
    for (std::size_t i = 0; i < fits.size(); ++i) {
        EditionFindings &edition = tally.judged[i];
        if (edition.edition.isEmpty()) {
            edition.edition = textOf(fits[i].edition);
        }
        edition.wholeBlocks += fits[i].isWhole;
        edition.onlyBlocks += fits[i].isWhole && whole == 1;
        edition.records += fits[i].isWhole ? fits[i].records : 0;
        edition.oddRecords += fits[i].isWhole ? fits[i].oddRecords : 0;
    }
}

// The one that decoded most of the records is the best; then those that read the most.
void SourceTally::reportEditions(const Category &tally, CategoryFindings *category)
{
    const auto most = std::max_element(
        tally.editions.begin(), tally.editions.end(), [](const auto &a, const auto &b) { return a.second < b.second; });
    if (most != tally.editions.end()) {
        category->edition = textOf(most->first);
        category->editionRecords = most->second;
    }
    category->editions = QList<EditionFindings>(tally.judged.begin(), tally.judged.end());
    const auto worth = [category](const EditionFindings &edition) {
        return std::tuple(edition.edition == category->edition, edition.wholeBlocks, -edition.oddRecords);
    };
    std::stable_sort(category->editions.begin(), category->editions.end(),
        [worth](const EditionFindings &a, const EditionFindings &b) { return worth(a) > worth(b); });
}

// Radars measure in polar coordinates. Where these are few beside other positions, the reports are of receivers that
// hear transponders, or of both kinds, and more of them is seen so.
bool SourceTally::isMultilateration(const Category &tally)
{
    return tally.surfaceTracks > 2 * tally.counts.trackable;
}

SourceFindings SourceTally::findings() const
{
    SourceFindings findings;
    for (const auto &[number, tally] : m_categories) {
        CategoryFindings category = tally.counts;
        category.category = number;
        category.editionChosen = number == CategoryOfEditions;
        category.multilateration = isMultilateration(tally);
        category.trackable = category.multilateration ? tally.surfaceTracks : category.trackable;
        reportEditions(tally, &category);
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
