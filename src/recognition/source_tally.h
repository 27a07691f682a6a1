#pragma once

#include "asterix/edition_fit.h"
#include "recognition/period_meter.h"
#include "recognition/position_sample.h"
#include "recognition/report_facts.h"

#include <map>
#include <span>
#include <string_view>
#include <vector>

// Counts what one source of ASTERIX data sends.
class SourceTally {
public:
    void addRecord(const _ast_datarecord_t &record, int category, std::optional<qint64> timeMs);
    // Every block of the category, decodable or not.
    void addBlock(int category) { ++m_categories[category].counts.blocks; }
    void addUndecodable(const _ast_datablock_t &block);
    // Enough blocks have been looked at when this turns false.
    bool wantsJudgement(int category) const;
    // Of one block: empty for a category without a table.
    void addJudgement(int category, std::span<const korvane::asterix::EditionFit> fits);

    // Without the identification, which the owner of this tally knows.
    SourceFindings findings() const;

private:
    struct Category {
        CategoryFindings counts;
        std::map<std::string_view, qint64> editions; // records by edition
        std::vector<EditionFindings> judged; // in the order of the library
        qint64 surfaceTracks = 0; // of category 10, those of which a multilateration tracker makes a track
    };

    static void reportEditions(const Category &tally, CategoryFindings *category);
    static bool isMultilateration(const Category &tally);
    void addTarget(CategoryFindings &counts, const ReportFacts &facts, std::optional<qint64> timeMs);
    void addSiteFrom(const ReportFacts::Wgs84 &place, const ReportFacts::Offset &offset);
    void addAntenna(const ReportFacts &facts, std::optional<qint64> timeMs);
    void reportPeriod(SourceFindings *findings) const;
    void reportSite(SourceFindings *findings) const;

    std::map<int, Category> m_categories;
    PeriodMeter m_turnMarks;
    PeriodMeter m_trackUpdates;
    std::optional<double> m_statedPeriod; // seconds
    std::optional<ReportFacts::Wgs84> m_statedSite;
    PositionSample m_places;
    PositionSample m_sites; // as follow from reports with positions of two kinds
    bool m_primary = false;
    bool m_secondary = false;
    bool m_modeS = false;
};
