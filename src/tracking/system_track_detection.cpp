#include "tracking/system_track_detection.h"

namespace {

constexpr double LongestAge = 15.0; // seconds: a revolution of a slow radar and some more

// Which kinds of sensor have seen the aircraft lately.
struct Seen {
    bool psr = false;
    bool ssr = false;
    bool modeS = false;
    bool adsb = false;
    bool mlat = false;
};

bool isRecent(const _ast_update_age_t &age)
{
    return age.present && age.seconds <= LongestAge;
}

std::optional<Track::Type> typeOf(const Seen &seen)
{
    if (seen.modeS) {
        return seen.psr ? Track::ModeSPsr : Track::ModeS;
    }
    if (seen.ssr) {
        return seen.psr ? Track::PsrSsr : Track::Ssr;
    }
    if (seen.mlat) {
        return Track::Mlat;
    }
    if (seen.adsb) {
        return Track::Adsb;
    }
    return seen.psr ? std::optional(Track::Psr) : std::nullopt;
}

std::optional<Track::Type> typeOfReport(unsigned int value)
{
    constexpr Track::Type Types[] = {Track::Unknown, Track::Psr, Track::Ssr, Track::PsrSsr, Track::ModeS, Track::ModeS,
        Track::ModeSPsr, Track::ModeSPsr};
    const auto type = Types[value & 7];
    return type == Track::Unknown ? std::nullopt : std::optional(type);
}

} // namespace

std::optional<Track::Type> systemTrackDetection(const _ast_datarecord_062_t &record)
{
    const auto &ages = record.i290;
    if (ages.present) {
        return typeOf({isRecent(ages.psr), isRecent(ages.ssr), isRecent(ages.modeS),
            isRecent(ages.es) || isRecent(ages.vdl) || isRecent(ages.uat), isRecent(ages.mlat)});
    }
    const auto &status = record.i080;
    if (status.agesPresent) {
        return typeOf({!status.psrOld, !status.ssrOld, !status.modeSOld, !status.adsbOld, false});
    }
    return record.i340.typePresent ? typeOfReport(record.i340.type) : std::nullopt;
}
