#pragma once

#include "health/source_judgement.h"

#include <tuple>

// A source and how it does.
struct SourceHealth {
    SourceStatistics statistics;
    SourceJudgement judgement;

    // What makes it this source and no other; in this order they are listed.
    auto identity() const
    {
        const SourceStatistics &s = statistics;
        return std::tuple(s.form, !s.identified, s.sac, s.sic, s.category, s.endpoint, s.edition);
    }
    bool isSameAs(const SourceHealth &other) const { return identity() == other.identity(); }
};
