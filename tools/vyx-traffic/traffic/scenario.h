#pragma once

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

// A scenario as its file gives it. Times are seconds from the scenario's start, positions WGS-84 degrees, distances
// nautical miles, altitudes feet, speeds knots, vertical rates feet per minute, angles degrees clockwise from north.

// What all that sends has alike.
struct ScenarioSource {
    QString name;
    QString description;
    std::uint8_t sac = 0;
    std::uint8_t sic = 0;
    double latitude = 0;
    double longitude = 0;
    int antennaAltitude = 0; // metres
    int portOffset = 0; // added to the port of the destination
};

// What a radar that wants adjusting adds to all that it measures.
struct ScenarioRadarErrors {
    double rangeBias = 0; // metres
    double rangeGain = 0; // parts of the range
    double azimuthBias = 0;
    double timeOffset = 0; // seconds that its clock is ahead
    double falsePlots = 0; // a turn, on average
};

struct ScenarioRadar : ScenarioSource {
    enum class TargetCategory { Cat001, Cat048, SirM }; // the first two with service messages in CAT002 and CAT034

    double rotationPeriod = 4;
    int sectors = 32;
    bool psr = true;
    bool ssr = true;
    bool modeS = true;
    int coveragePrimary = 60;
    int coverageSecondary = 200;
    TargetCategory category = TargetCategory::Cat048;
    double rangeSigma = 0;
    double azimuthSigma = 0;
    double detectionProbability = 1; // a look at a target gives a report
    bool horizon = true; // targets below the radio horizon are not seen
    double minimumElevation = -90;
    int missesToDrop = 3; // looks in a row without detection after which the radar ends its track
    ScenarioRadarErrors errors;
    bool ellipsoid = false; // measures on WGS-84 rather than on the sphere that plots are put back on
};

struct ScenarioAdsb : ScenarioSource {
    QString edition; // of category 021
    int coverage = 200;
    double interval = 1; // seconds between two reports of a target
    bool horizon = true;
};

// Which position items a report carries.
struct ScenarioPositions {
    bool wgs84 = true;
    bool cartesian = false; // metres east and north of the source
};

struct ScenarioMlat : ScenarioSource {
    int coverage = 60;
    double interval = 1;
    ScenarioPositions positions;
};

struct ScenarioSdps : ScenarioSource {
    int coverage = 250;
    double interval = 4;
    ScenarioPositions positions;
};

struct ScenarioSmr : ScenarioSource {
    double coverage = 3;
    double rotationPeriod = 1;
    double highest = 150; // feet above the antenna: what flies higher passes over the beam
};

struct ScenarioModeSReceiver : ScenarioSource {
    enum class Format { Beast, Avr };

    Format format = Format::Beast;
    int coverage = 200;
};

struct ScenarioPoint {
    double latitude = 0;
    double longitude = 0;
};

struct ScenarioArea {
    QString name; // up to eight characters
    std::vector<ScenarioPoint> polygon; // three at least
    double lower = 0; // feet
    double upper = 0; // of a minimum altitude area: the altitude below which nothing may fly
};

struct ScenarioSafetyNet : ScenarioSource {
    QString tracksOf; // name of the source whose track numbers it uses; empty: the scenario's sensor
    double interval = 4; // seconds between two looks at the traffic, and two messages of an alert
    double aliveInterval = 10;
    bool stca = true;
    double horizontalSeparation = 5;
    double verticalSeparation = 1000;
    double lookAhead = 60; // seconds of prediction of conflicts
    double areaLookAhead = 20; // seconds of prediction of entries into areas
    std::vector<ScenarioArea> minimumAltitudes;
    std::vector<ScenarioArea> restrictedAreas;
};

struct ScenarioWeatherRadar : ScenarioSource {
    double period = 30; // seconds from picture to picture
    double range = 120;
    double azimuthStep = 1; // between two vectors, degrees
    int cells = 8;
    double windDirection = 250; // from which the cells move
    double windSpeed = 25;
};

struct ScenarioVideoRadar : ScenarioSource {
    double rotationPeriod = 4;
    int radials = 2048; // a turn
    int cells = 1024; // a radial, each of 8 bits
    double range = 60; // of the last cell
    double beamWidth = 1.4;
    double clutterRange = 12; // ground clutter comes from within
    int noise = 24; // mean amplitude where there is nothing
};

struct ScenarioFix {
    QString name;
    double latitude = 0;
    double longitude = 0;
    std::optional<double> elevation; // an airport's; random flights end or begin there
};

struct ScenarioWaypoint {
    enum class Turn { Left = -1, Right = 1 };

    double latitude = 0;
    double longitude = 0;
    std::optional<double> altitude; // aimed for from the waypoint before on
    std::optional<double> speed; // likewise
    int holdTurns = 0; // rounds of a holding pattern flown here
    Turn holdDirection = Turn::Right;
};

struct ScenarioPerformance {
    double speed = 420;
    double climbRate = 2000;
    double descentRate = 1800;
    double turnRate = 2; // degrees per second
    double acceleration = 1.5; // knots per second, either way
};

struct ScenarioFlight {
    enum class Transponder { None, ModeAC, ModeS };
    struct Squawk {
        double at = 0; // seconds from the flight's start
        std::uint16_t code = 0; // binary value of the octal code
    };
    struct Coasting {
        double at = 0; // seconds from the flight's start
        int scans = 0; // looks of the radar that detect nothing
    };

    QString callsign;
    std::uint32_t address = 0;
    Transponder transponder = Transponder::ModeS;
    bool vehicle = false; // on an airport's ground: seen by surface radars alone
    bool primaryEcho = true; // large enough for the primary radar
    std::vector<Squawk> squawks; // by time; the first is valid from the start
    std::vector<Coasting> coasting;
    ScenarioPerformance performance;
    std::vector<ScenarioWaypoint> route; // at least two
    double start = 0; // negative: already under way when the scenario starts
    std::optional<double> repeatAfter; // pause between its end and flying it again
};

// Flights made up from the seed; as one leaves another enters.
struct ScenarioRandomTraffic {
    int count = 0;
    std::vector<std::vector<ScenarioFix>> airways;
    std::vector<QString> callsignPrefixes;
    std::vector<std::uint32_t> addressBlocks; // first address of each; 4096 addresses are drawn from
    int lowestLevel = 290;
    int highestLevel = 410;
};

struct Scenario {
    QString name;
    QString description;
    std::uint64_t seed = 1;
    QDateTime startTime; // UTC
    double duration = 0; // 0: without end
    double magneticVariation = 0; // degrees, east positive
    std::vector<ScenarioRadar> radars;
    std::vector<ScenarioAdsb> adsb;
    std::vector<ScenarioModeSReceiver> modeSReceivers;
    std::vector<ScenarioMlat> mlat;
    std::vector<ScenarioSdps> sdps;
    std::vector<ScenarioSmr> smr;
    std::vector<ScenarioSafetyNet> safetyNets;
    std::vector<ScenarioWeatherRadar> weatherRadars;
    std::vector<ScenarioVideoRadar> videoRadars;
    std::vector<ScenarioFlight> flights;
    ScenarioRandomTraffic random;
};
