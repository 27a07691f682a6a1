#pragma once

#include "traffic/air_traffic.h"
#include "traffic/mode_s_registers.h"
#include "traffic/scenario.h"
#include "traffic/track_number_pool.h"
#include "traffic/traffic_random.h"

#include <map>
#include <vector>

// What a radar says about one target in one turn of its antenna.
struct TargetReport {
    double time = 0; // seconds from the scenario's start
    std::uint16_t trackNumber = 0; // 0: a plot that belongs to no track
    bool byPrimary = false; // with neither this nor bySecondary: not detected
    bool bySecondary = false;
    bool byModeS = false; // the secondary detection came from a Mode S roll call
    bool tentative = false;
    bool trackEnd = false; // the last report under this track number
    bool coasting = false; // not detected: all that follows is a prediction
    bool positionValid = false;
    double slantRange = 0; // nautical miles
    double azimuth = 0; // degrees clockwise from north
    double speed = 0; // knots
    double track = 0; // degrees
    double verticalRate = 0; // feet per minute
    bool codesValid = false; // Mode 3/A and Mode C
    std::uint16_t squawk = 0; // binary value
    int flightLevelQuarters = 0; // 25 feet
    std::uint32_t address = 0; // byModeS only, as what follows
    QString callsign;
    std::vector<ModeSRegister> registers;
};

// What a radar says when its antenna enters a sector.
struct SectorReport {
    double time = 0; // seconds from the scenario's start
    bool northMarker = false;
    double azimuth = 0; // where the sector begins, degrees
    std::vector<TargetReport> targets; // of the sector that the antenna has left, in the order of their azimuths
};

// A turning antenna with a plot extractor and a tracker behind it.
//
// The slant range is the hypotenuse of ground range and height over a flat Earth, or the true one on the ellipsoid; the
// radio horizon takes the Earth with four thirds of its radius. Speed and track are the true ones, as a radar's own
// tracker has them smoothed.
class RadarModel {
public:
    // index: of the radar in the scenario; gives it a noise of its own.
    RadarModel(const ScenarioRadar &radar, std::size_t index, std::uint64_t seed, double magneticVariation);

    // When the antenna enters the next sector; 0 to begin with, at north.
    double nextSectorTime() const;
    // Goes on to the next sector. The traffic has to be that of nextSectorTime().
    SectorReport enterSector(const AirTraffic &traffic);

    const ScenarioRadar &radar() const { return m_radar; }
    // 0: has no track of it.
    std::uint16_t trackNumber(std::uint64_t target) const;

private:
    struct Look // the target as it stands at the moment of the look
    {
        double time = 0;
        double distance = 0; // metres over ground
        double azimuth = 0;
        double height = 0; // metres above the antenna
        double slantRange = 0; // metres
        bool inPrimary = false;
        bool inSecondary = false;
    };
    struct Track {
        double lastLook = -1e9;
        std::uint16_t number = 0; // 0: none
        int reports = 0;
        int misses = 0; // in a row
        bool ended = false; // its route is flown: never reported again
        bool byPrimary = false; // at the last detection
        bool bySecondary = false;
    };

    void look(const AirTarget &target, double sweepEnd, double now, std::vector<TargetReport> &reports);
    Look lookAt(const AirTarget &target, const Aircraft::State &state, double time) const;
    bool aboveHorizon(const Look &look, double altitude) const;
    bool detects(bool inCoverage, const AirTarget &target, double time);
    void missed(Track &track, const AirTarget &target, const Look &look, std::vector<TargetReport> &reports);
    void detected(Track &track, const AirTarget &target, const Look &look, std::vector<TargetReport> &reports);
    TargetReport reportOf(const Track &track, const AirTarget &target, const Look &look);
    void measure(TargetReport &report, const Look &look);
    void interrogate(TargetReport &report, const AirTarget &target, const Look &look, int turn) const;
    void addFalsePlots(double sweepEnd, double now, std::vector<TargetReport> &reports);
    TargetReport falsePlot(double azimuth, double time);
    void endTrack(Track &track);
    void forgetGone(double now);

    ScenarioRadar m_radar;
    TrafficRandom m_random;
    double m_magneticVariation = 0;
    std::int64_t m_sectorsEntered = 0;
    std::map<std::uint64_t, Track> m_tracks; // by target
    TrackNumberPool m_numbers;
};
