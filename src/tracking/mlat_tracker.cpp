#include "tracking/mlat_tracker.h"

#include "tracking/report_items.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr qint64 DownlinkLifeSpan = 4000; // milliseconds that a value from a Mode S register stays valid
constexpr double FeetPerLevel = 100.0;
constexpr double ReportPeriod = 1.0; // seconds
constexpr int CertainContradictions = 10; // more of them than jitter of the levels would give

Track::State stateOf(const _ast_datarecord_020_t &record)
{
    const auto &status = record.i170;
    if (!status.present) {
        return Track::Confirmed;
    }
    if (status.cnf) {
        return Track::Tentative;
    }
    if (status.cst) {
        return Track::Coasting;
    }
    return status.tre ? Track::Terminated : Track::Confirmed;
}

std::optional<int> levelOf(const _ast_datarecord_020_t &record)
{
    const double feet = record.i090.flightLevel * FeetPerLevel;
    return record.i090.present ? std::optional(static_cast<int>(std::lround(feet))) : std::nullopt;
}

// As these systems send it: 0 is a climb, unlike in other categories.
Track::VerticalTrend trendOf(unsigned int value)
{
    constexpr Track::VerticalTrend Trends[] = {
        Track::TrendClimbing, Track::TrendDescending, Track::TrendLevel, Track::TrendUnknown};
    return Trends[value & 3];
}

} // namespace

MlatTracker::MlatTracker(const QSharedPointer<MlatSensorInfo> &sensor, const QSharedPointer<TrackManager> &trackManager,
    Projector *projector, QObject *parent)
    : SystemTracker(sensor->location(), trackManager, projector, parent)
{
}

void MlatTracker::procAsterixMessage(const _ast_datablock_t &block)
{
    if (!block.valid) {
        return;
    }
    if (block.category != 20) {
        refuse(block);
        return;
    }
    takeEach<_ast_datarecord_020_t>(block, ast_datarecord_020_disassemble, [this](auto &record) {
        applyOptions(record.i041, record.i042);
        return procCat020Message(record);
    });
}

Tracker::Taken MlatTracker::procCat020Message(const _ast_datarecord_020_t &record)
{
    const auto now = trackManager().now();
    const auto plane = planePosition(record.i041, record.i042);
    const auto place = reportedPlace(record.i041, plane);
    if (plane && !record.i020.tst) {
        addPlot(*plane, Track::Mlat, now);
    }
    const auto identity = identityOf(record);
    if (!identity.usable()) {
        debug([] {
            return tr("MLAT Tracker: CAT020 message has neither valid track number (I020/161) nor valid Mode-S address "
                      "(I020/220), ignore.");
        });
        return takenAsPlot(place, record.i020.tst);
    }
    const auto track = associate(identity, now);
    if (!track) {
        return notNumbered(identity, place);
    }
    placeReported(*track, record.i010, record.i041, record.i042, plane);
    takeReport(*track, record, now);
    return takenBy(*track, identity, place);
}

Tracker::Identity MlatTracker::identityOf(const _ast_datarecord_020_t &record)
{
    Identity identity;
    if (record.i161.present) {
        identity.number = record.i161.trackNumber;
    }
    if (record.i220.present) {
        identity.address = record.i220.address;
    }
    identity.reportPeriod = ReportPeriod;
    return identity;
}

void MlatTracker::takeReport(Track &track, const _ast_datarecord_020_t &record, const QDateTime &now)
{
    track.setType(Track::Mlat);
    track.setState(stateOf(record));
    if (record.i245.present) {
        reports::setCallsign(track, record.i245.text);
    }
    reports::setModeA(track, record.i070);
    track.setSpi(record.i020.spi || (record.i230.present && reports::isSpi(record.i230.stat)));
    const bool levelKnown = track.levelValid();
    const int previousLevel = track.level();
    reports::setLevel(track, levelOf(record));
    reports::setSelectedAltitude(track, reports::selectedAltitude(record.i250), now, DownlinkLifeSpan);
    reports::setVerticalRate(track, reports::verticalRate(record.i250), now, DownlinkLifeSpan);
    if (record.i170.present) {
        track.setVerticalTrend(trendOf(record.i170.cdm));
        if (levelKnown && track.levelValid()) {
            compareTrend(track, track.level() - previousLevel, record.i010);
        }
    }
    reports::setVelocityFromComponents(track, record.i202.present, record.i202.vx, record.i202.vy);
    track.recordHistory(now);
}

// A source that counts its trends in another order shows climbing targets as descending, and the reverse.
void MlatTracker::compareTrend(const Track &track, int levelChange, const _ast_sacsic_t &code)
{
    const auto trend = track.verticalTrend();
    const bool hasDirection = trend == Track::TrendClimbing || trend == Track::TrendDescending;
    Source &sender = source(code);
    if (levelChange == 0 || !hasDirection || sender.warnedOfTrends) {
        return;
    }
    if ((trend == Track::TrendClimbing) == (levelChange > 0)) {
        sender.contradictions = std::max(0, sender.contradictions - 1);
        return;
    }
    sender.contradictedFeet = (sender.contradictions == 0 ? 0 : sender.contradictedFeet) + std::abs(levelChange);
    if (++sender.contradictions < CertainContradictions) {
        return;
    }
    sender.warnedOfTrends = true;
    Q_EMIT message(LogLevel::Warning,
        tr("MLAT Tracker: the vertical trends (I020/170) of SAC/SIC %1/%2 contradict its levels, which changed the "
           "other "
           "way by %3 ft; the trends shown may be wrong.")
            .arg(code.sac)
            .arg(code.sic)
            .arg(sender.contradictedFeet));
}
