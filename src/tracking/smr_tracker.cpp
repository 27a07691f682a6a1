#include "tracking/smr_tracker.h"

#include "tracking/report_items.h"

#include <cmath>

namespace {

constexpr unsigned char TargetReport = 1; // message type; the others tell of the radar itself

// Others than the radar report targets in the same category.
Track::Type typeOf(const _ast_datarecord_010_t &record)
{
    constexpr Track::Type Types[] = {Track::Mlat, Track::Mlat, Track::Adsb};
    const bool other = record.i020.present && record.i020.typ < std::size(Types);
    return other ? Types[record.i020.typ] : Track::Smr;
}

} // namespace

SmrTracker::SmrTracker(const QSharedPointer<SmrSensorInfo> &sensor, const QSharedPointer<TrackManager> &trackManager,
    Projector *projector, QObject *parent)
    : Tracker(trackManager, projector, parent), m_site(sensor->location())
{
}

void SmrTracker::procAsterixMessage(const _ast_datablock_t &block)
{
    if (!block.valid) {
        return;
    }
    if (block.category != 10) {
        refuse(block);
        return;
    }
    takeEach<_ast_datarecord_010_t>(
        block, ast_datarecord_010_disassemble, [this](const auto &record) { return procCat010Message(record); });
}

Tracker::Taken SmrTracker::procCat010Message(const _ast_datarecord_010_t &record)
{
    const auto now = trackManager().now();
    const auto place = placeOfReport(record);
    if (place && place->valid && !record.i020.tst) {
        addPlot(place->plane, typeOf(record), now);
    }
    if (!record.i161.present) {
        debug([] { return tr("SMR Tracker: CAT010 message has no valid track number (I010/161), ignore."); });
        const bool isTarget = !record.i000.present || record.i000.type == TargetReport;
        return isTarget || place ? takenAsPlot(place, record.i020.tst) : Taken{ReportOutcome::SourceStatus};
    }
    const Identity identity{record.i161.trackNumber, {}, 0.0};
    if (!record.i040.present) {
        return place ? takenAsPlot(place, record.i020.tst) : notPlaced(identity);
    }
    const auto track = findOrCreate(identity.number);
    if (!track) {
        return notNumbered(identity, place);
    }
    track->setType(Track::Smr);
    track->setGround(true);
    track->setSpi(record.i020.spi);
    track->setState(record.i170.present && record.i170.cnf ? Track::Tentative : Track::Confirmed);
    put(*track, *place);
    reports::setVelocity(*track, record.i200);
    track->recordHistory(now);
    return takenBy(*track, identity, place);
}

// The radar's own measurement first, the only one that tracks are made of.
std::optional<Tracker::Place> SmrTracker::placeOfReport(const _ast_datarecord_010_t &record) const
{
    if (record.i040.present) {
        return placeOf(m_site, record.i040.rho, record.i040.theta);
    }
    if (record.i041.present) {
        return placeOf(record.i041.latitude, record.i041.longitude);
    }
    if (record.i042.present) {
        const auto &[present, x, y] = record.i042;
        return placeOf(m_site, std::hypot(x, y), reports::bearingOf(x, y));
    }
    return {};
}
