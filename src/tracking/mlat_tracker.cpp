#include "tracking/mlat_tracker.h"

#include "tracking/report_items.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr qint64 DownlinkLifeSpan = 4000; // milliseconds that a value from a Mode S register stays valid
constexpr double FeetPerLevel = 100.0;
constexpr double ReportPeriod = 1.0; // seconds
constexpr unsigned char TargetReport = 1; // of the message types of category 10
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

Track::State stateOf(const _ast_datarecord_010_t &record)
{
    const auto &status = record.i170;
    if (!status.present) {
        return Track::Confirmed;
    }
    if (status.cnf) {
        return Track::Tentative;
    }
    if (status.cst != 0) {
        return Track::Coasting;
    }
    return status.tre ? Track::Terminated : Track::Confirmed;
}

const _ast_item_mode3a_t &modeAOf(const _ast_datarecord_020_t &record)
{
    return record.i070;
}

const _ast_item_mode3a_t &modeAOf(const _ast_datarecord_010_t &record)
{
    return record.i060;
}

bool isSpi(const _ast_datarecord_020_t &record)
{
    return record.i020.spi || (record.i230.present && reports::isSpi(record.i230.stat));
}

bool isSpi(const _ast_datarecord_010_t &record)
{
    return record.i020.spi;
}

std::optional<int> levelOf(const _ast_datarecord_010_t &record)
{
    constexpr int FeetPerQuarterLevel = 25;
    return record.i090.present ? std::optional(record.i090.level * FeetPerQuarterLevel) : std::nullopt;
}

// The items by which a report names its track.
QString missingItems(const _ast_datarecord_020_t &)
{
    return MlatTracker::tr("MLAT Tracker: CAT020 message has neither valid track number (I020/161) nor valid Mode-S "
                           "address (I020/220), ignore.");
}

QString missingItems(const _ast_datarecord_010_t &)
{
    return MlatTracker::tr("MLAT Tracker: CAT010 message has neither valid track number (I010/161) nor valid Mode-S "
                           "address (I010/220), ignore.");
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
    if (block.category == 20) {
        takeEach<_ast_datarecord_020_t>(block, ast_datarecord_020_disassemble, [this](auto &record) {
            applyOptions(record.i041, record.i042);
            return procTargetReport(record);
        });
    } else if (block.category == 10) {
        takeEach<_ast_datarecord_010_t>(block, ast_datarecord_010_disassemble, [this](auto &record) {
            applyOptions(record.i041, record.i042);
            return procCat010Message(record);
        });
    } else {
        refuse(block);
    }
}

// Beside target reports there are messages about the system itself.
Tracker::Taken MlatTracker::procCat010Message(const _ast_datarecord_010_t &record)
{
    if (record.i000.present && record.i000.type != TargetReport) {
        return {ReportOutcome::SourceStatus};
    }
    return procTargetReport(record);
}

template <typename Record>
Tracker::Taken MlatTracker::procTargetReport(const Record &record)
{
    const auto now = trackManager().now();
    const auto plane = planePosition(record.i041, record.i042);
    const auto place = reportedPlace(record.i041, plane);
    if (plane && !record.i020.tst) {
        addPlot(*plane, Track::Mlat, now);
    }
    const auto identity = identityOf(record);
    if (!identity.usable()) {
        debug([&record] { return missingItems(record); });
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

template <typename Record>
Tracker::Identity MlatTracker::identityOf(const Record &record)
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

template <typename Record>
void MlatTracker::takeReport(Track &track, const Record &record, const QDateTime &now)
{
    track.setType(Track::Mlat);
    track.setState(stateOf(record));
    if (record.i245.present) {
        reports::setCallsign(track, record.i245.text);
    }
    reports::setModeA(track, modeAOf(record));
    track.setSpi(isSpi(record));
    const std::optional<int> previousLevel = track.levelValid() ? std::optional(track.level()) : std::nullopt;
    reports::setLevel(track, levelOf(record));
    reports::setSelectedAltitude(track, reports::selectedAltitude(record.i250), now, DownlinkLifeSpan);
    reports::setVerticalRate(track, reports::verticalRate(record.i250), now, DownlinkLifeSpan);
    takeTrend(track, record, previousLevel);
    reports::setVelocityFromComponents(track, record.i202.present, record.i202.vx, record.i202.vy);
    track.recordHistory(now);
}

void MlatTracker::takeTrend(Track &track, const _ast_datarecord_020_t &record, std::optional<int> previousLevel)
{
    if (!record.i170.present) {
        return;
    }
    track.setVerticalTrend(trendOf(record.i170.cdm));
    if (previousLevel && track.levelValid()) {
        compareTrend(track, track.level() - *previousLevel, record.i010);
    }
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
