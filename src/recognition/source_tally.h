#pragma once

#include "recognition/period_meter.h"
#include "recognition/position_sample.h"
#include "recognition/report_facts.h"

#include <map>
#include <string_view>

// Counts what one source of ASTERIX data sends.
class SourceTally {
public:
    void addRecord(const _ast_datarecord_t &record, int category, std::optional<qint64> timeMs);
    void addUndecodable(int category, qint64 octets);

    // Without the identification, which the owner of this tally knows.
    SourceFindings findings() const;

private:
    struct Category {
        CategoryFindings counts;
        std::map<std::string_view, qint64> editions; // records by edition
    };

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
