#include "asterix/edition_fit.h"

#include "asterix/profile.h"
#include "layout.h"
#include "plausibility.h"
#include "walker.h"

#include <algorithm>

namespace korvane::asterix {

struct EditionJudge::Candidate {
    const CategoryTable *table;
    std::vector<Plausibility> checks; // one a UAP, in the order of the table's

    explicit Candidate(const CategoryTable *of) : table(of)
    {
        for (const auto &uap : table->uaps) {
            checks.emplace_back(*uap);
        }
    }

    bool isOdd(const _ast_datarecord_t &record) const
    {
        const auto uap = std::find_if(table->uaps.begin(), table->uaps.end(),
            [&record](const auto &candidate) { return candidate.get() == record.uap; });
        if (uap == table->uaps.end()) {
            return false;
        }
        const Oddness odd = checks[static_cast<std::size_t>(uap - table->uaps.begin())].oddness(record);
        return odd.form > 0 || odd.outOfRange > 0;
    }
};

EditionJudge::EditionJudge() = default;
EditionJudge::~EditionJudge() = default;

const std::vector<EditionJudge::Candidate> &EditionJudge::candidatesFor(int category)
{
    const auto [place, isNew] = m_candidates.try_emplace(category);
    if (isNew) {
        for (const EditionName &name : editions()) {
            if (name.category == category) {
                place->second.emplace_back(findTable(category, name.edition.c_str()));
            }
        }
    }
    return place->second;
}

EditionFit EditionJudge::judge(const Candidate &candidate, const unsigned char *data)
{
    decodeRecords(m_block, data, *candidate.table);
    EditionFit fit;
    fit.edition = candidate.table->edition();
    fit.isWhole = m_block.valid;
    fit.records = static_cast<unsigned>(m_block.records.size());
    fit.oddRecords = static_cast<unsigned>(std::count_if(m_block.records.begin(), m_block.records.end(),
        [&candidate](const _ast_datarecord_t &record) { return candidate.isOdd(record); }));
    return fit;
}

std::span<const EditionFit> EditionJudge::judge(const unsigned char *data, std::size_t size)
{
    m_fits.clear();
    m_block.category = data[0];
    m_block.size = static_cast<std::uint32_t>(size);
    for (const Candidate &candidate : candidatesFor(data[0])) {
        m_fits.push_back(judge(candidate, data));
    }
    return m_fits;
}

} // namespace korvane::asterix
