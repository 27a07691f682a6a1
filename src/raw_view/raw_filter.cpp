#include "raw_view/raw_filter.h"

namespace {

bool hasFate(const StreamBatch::Record &record, RawFilter::Fate fate)
{
    switch (fate) {
    case RawFilter::Fate::Any:
        return true;
    case RawFilter::Fate::Used:
        return isShown(record.outcome);
    case RawFilter::Fate::Dropped:
        return !isShown(record.outcome);
    case RawFilter::Fate::Malformed:
        break;
    }
    return record.outcome == ReportOutcome::Malformed;
}

} // namespace

// What takes the octets apart comes last.
bool RawFilter::matches(const RawRecord &record) const
{
    const StreamBatch::Record &facts = record.facts;
    if (category && (facts.form != TakenReport::Form::Asterix || facts.category != *category)) {
        return false;
    }
    if (source && (!facts.identified || facts.sac * 256 + facts.sic != *source)) {
        return false;
    }
    return hasFate(facts, fate) && (identity.isEmpty() || identityText(record).contains(identity, Qt::CaseInsensitive));
}
