#pragma once

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

// A scenario as its file gives it. Times are seconds from the scenario's start, positions WGS-84 degrees, distances
// nautical miles, altitudes feet, speeds knots, vertical rates feet per minute, angles degrees clockwise from north.

struct ScenarioRadar {
    enum class TargetCategory { Cat001, Cat048 }; // with service messages in CAT002 and CAT034

    QString name;
    QString description;
    std::uint8_t sac = 0;
    std::uint8_t sic = 0;
    double latitude = 0;
    double longitude = 0;
    int antennaAltitude = 0; // metres
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
    int portOffset = 0; // added to the port of the destination
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
    std::vector<ScenarioFlight> flights;
    ScenarioRandomTraffic random;
};
