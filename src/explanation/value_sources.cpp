#include "explanation/value_sources.h"

#include <QCoreApplication>

namespace {

constexpr int Last = ValueSource::LastReport;
constexpr int Kept = ValueSource::Kept;
constexpr int ModeS = ReportView::ModeS;
constexpr int SirM = ReportView::AleniaSirM;
constexpr int RadarLife = 12000; // milliseconds, of registers
constexpr int MlatLife = 4000;
constexpr int AdsbLife = 4000;
constexpr int SystemLife = 10000;

// Texts that several sources share.
constexpr const char *Polar = QT_TRANSLATE_NOOP("TrackExplanation", "range and azimuth from the sensor");
constexpr const char *RadarXy =
    QT_TRANSLATE_NOOP("TrackExplanation", "x and y from the sensor, since there is no measured range and azimuth");
constexpr const char *Wgs84 = QT_TRANSLATE_NOOP("TrackExplanation", "WGS-84, as reported");
constexpr const char *PlaneXy =
    QT_TRANSLATE_NOOP("TrackExplanation", "x and y from the sensor, since there is no WGS-84 position");
constexpr const char *Components =
    QT_TRANSLATE_NOOP("TrackExplanation", "from the velocity's components, east and north");
constexpr const char *McpFirst = QT_TRANSLATE_NOOP("TrackExplanation", "first register 4,0: MCP/FCU before FMS");
constexpr const char *BaroFirst = QT_TRANSLATE_NOOP(
    "TrackExplanation", "first register 6,0: barometric before inertial rate, either up to 6,000 ft/min");
constexpr const char *ConfirmedUnless =
    QT_TRANSLATE_NOOP("TrackExplanation", "confirmed unless the sensor says that it is tentative");
constexpr const char *NoWgs84HighRes =
    QT_TRANSLATE_NOOP("TrackExplanation", "WGS-84, as reported, since there is no high-resolution position");

constexpr ValueSource Sources[] = {
    {TrackValue::Callsign, 48, "240", Kept, ""},
    {TrackValue::Callsign, 20, "245/CHR", Kept, ""},
    {TrackValue::Callsign, 10, "245/CHR", Kept, ""},
    {TrackValue::Callsign, 21, "170", Kept, ""},
    {TrackValue::Callsign, 62, "390/CS", Kept, QT_TRANSLATE_NOOP("TrackExplanation", "the flight plan's")},
    {TrackValue::Callsign, 62, "380/ID", Kept,
        QT_TRANSLATE_NOOP("TrackExplanation", "the aircraft's own, since there is none of a flight plan")},
    {TrackValue::Callsign, ModeS, "callsign", Kept,
        QT_TRANSLATE_NOOP("TrackExplanation", "from the squitter; from register 2,0 while no squitter has told it")},

    {TrackValue::ModeA, 48, "070/MODE3A", Kept, ""},
    {TrackValue::ModeA, 1, "070/MODE3A", Kept, ""},
    {TrackValue::ModeA, 20, "070/MODE3A", Kept, ""},
    {TrackValue::ModeA, 10, "060/MODE3A", Kept, ""},
    {TrackValue::ModeA, 21, "070/MODE3A", Kept, ""},
    {TrackValue::ModeA, 62, "060/MODE3A", Kept, ""},
    {TrackValue::ModeA, ModeS, "squawk", Kept, ""},
    {TrackValue::ModeA, SirM, "squawk", Last, ""},

    {TrackValue::Address, 48, "220", Kept, ""},
    {TrackValue::Address, 20, "220", Kept, ""},
    {TrackValue::Address, 10, "220", Kept, ""},
    {TrackValue::Address, 21, "080", Kept, ""},
    {TrackValue::Address, 62, "380/ADR", Kept, ""},
    {TrackValue::Address, ModeS, "address", Kept, ""},

    {TrackValue::SensorNumber, 48, "161/TRN", Kept, ""},
    {TrackValue::SensorNumber, 1, "161", Kept, ""},
    {TrackValue::SensorNumber, 20, "161/TRN", Kept, ""},
    {TrackValue::SensorNumber, 10, "161/TRK", Kept, ""},
    {TrackValue::SensorNumber, 62, "040", Kept, ""},
    {TrackValue::SensorNumber, SirM, "number", Kept, ""},

    {TrackValue::TimeOfDay, 48, "140", Last, ""},
    {TrackValue::TimeOfDay, 20, "140", Last, ""},
    {TrackValue::TimeOfDay, 10, "140", Last, ""},
    {TrackValue::TimeOfDay, 62, "070", Last, ""},
    {TrackValue::TimeOfDay, 21, "073", Last, ""},
    {TrackValue::TimeOfDay, 21, "071", Last, ""},
    {TrackValue::TimeOfDay, 21, "030", Last, ""},
    {TrackValue::TimeOfDay, 21, "075", Last, ""},
    {TrackValue::TimeOfDay, SirM, "timeOfDay", Last, ""},
    {TrackValue::TimeOfDay, 21, "077", Last, ""},

    {TrackValue::Position, 48, "040/RHO 040/THETA", Kept, Polar},
    {TrackValue::Position, 48, "042/X 042/Y", Kept, RadarXy},
    {TrackValue::Position, 1, "040/RHO 040/THETA", Kept, Polar},
    {TrackValue::Position, 1, "042/X 042/Y", Kept, RadarXy},
    {TrackValue::Position, 10, "040/RHO 040/TH", Kept,
        QT_TRANSLATE_NOOP("TrackExplanation", "range and azimuth from the sensor, in metres")},
    {TrackValue::Position, 10, "041/LAT 041/LON", Kept, Wgs84},
    {TrackValue::Position, 10, "042/X 042/Y", Kept, PlaneXy},
    {TrackValue::Position, 20, "041/LAT 041/LON", Kept, Wgs84},
    {TrackValue::Position, 20, "042/X 042/Y", Kept, PlaneXy},
    {TrackValue::Position, 62, "105/LAT 105/LON", Kept, Wgs84},
    {TrackValue::Position, 62, "100/X 100/Y", Kept, PlaneXy},
    {TrackValue::Position, 21, "131/LAT 131/LON", Kept, Wgs84},
    {TrackValue::Position, 21, "130/LAT 130/LON", Kept, NoWgs84HighRes},
    {TrackValue::Position, ModeS, "cprLatitude cprLongitude cprFormat", Kept, ""},
    {TrackValue::Position, SirM, "range azimuth", Kept, Polar},
    {TrackValue::Position, SirM, "x y", Kept,
        QT_TRANSLATE_NOOP("TrackExplanation", "x and y in kilometres from the sensor")},

    {TrackValue::Level, 48, "090/FL", Last, ""},
    {TrackValue::Level, 1, "090/HGT", Last, ""},
    {TrackValue::Level, 20, "090/FL", Last, ""},
    {TrackValue::Level, 10, "090/FL", Last, ""},
    {TrackValue::Level, 21, "145", Last, ""},
    {TrackValue::Level, 62, "136", Last,
        QT_TRANSLATE_NOOP("TrackExplanation", "the measured flight level, before the calculated one")},
    {TrackValue::Level, 62, "135/CTB", Last,
        QT_TRANSLATE_NOOP(
            "TrackExplanation", "the calculated barometric altitude, since there is no measured flight level")},
    {TrackValue::Level, ModeS, "altitude", Kept, ""},
    {TrackValue::Level, SirM, "height", Last, ""},

    {TrackValue::GroundSpeed, 48, "200/GSP", Last, ""},
    {TrackValue::GroundSpeed, 1, "200/GSP", Last, ""},
    {TrackValue::GroundSpeed, 10, "200/GSP", Last, ""},
    {TrackValue::GroundSpeed, 10, "202/VX 202/VY", Last, Components},
    {TrackValue::GroundSpeed, 20, "202/VX 202/VY", Last, Components},
    {TrackValue::GroundSpeed, 62, "185/VX 185/VY", Last, Components},
    {TrackValue::GroundSpeed, 21, "160/GS", Last, ""},
    {TrackValue::GroundSpeed, ModeS, "speed", Kept, ""},
    {TrackValue::GroundSpeed, SirM, "vx vy", Last, Components},

    {TrackValue::Heading, 48, "200/HDG", Last, ""},
    {TrackValue::Heading, 1, "200/HDG", Last, ""},
    {TrackValue::Heading, 10, "200/TRA", Last, ""},
    {TrackValue::Heading, 10, "202/VX 202/VY", Last, Components},
    {TrackValue::Heading, 20, "202/VX 202/VY", Last, Components},
    {TrackValue::Heading, 62, "185/VX 185/VY", Last, Components},
    {TrackValue::Heading, 21, "160/TA", Last, ""},
    {TrackValue::Heading, 21, "152", Last,
        QT_TRANSLATE_NOOP("TrackExplanation", "the magnetic heading, since there is no track angle")},
    {TrackValue::Heading, ModeS, "track", Kept, ""},
    {TrackValue::Heading, SirM, "vx vy", Last, Components},

    {TrackValue::VerticalRate, 48, "bds60/baro", RadarLife, BaroFirst},
    {TrackValue::VerticalRate, 48, "bds60/inertial", RadarLife, BaroFirst},
    {TrackValue::VerticalRate, 20, "bds60/baro", MlatLife, BaroFirst},
    {TrackValue::VerticalRate, 20, "bds60/inertial", MlatLife, BaroFirst},
    {TrackValue::VerticalRate, 21, "155", AdsbLife, ""},
    {TrackValue::VerticalRate, 21, "155/BVR", AdsbLife, ""},
    {TrackValue::VerticalRate, 21, "157", AdsbLife,
        QT_TRANSLATE_NOOP("TrackExplanation", "the geometric rate, since there is no barometric one")},
    {TrackValue::VerticalRate, 21, "157/GVR", AdsbLife,
        QT_TRANSLATE_NOOP("TrackExplanation", "the geometric rate, since there is no barometric one")},
    {TrackValue::VerticalRate, 62, "220", SystemLife, ""},
    {TrackValue::VerticalRate, SirM, "rate", Last, ""},

    {TrackValue::VerticalTrend, 62, "200/VERT", Last,
        QT_TRANSLATE_NOOP("TrackExplanation", "as reported, before that of the vertical rate")},
    {TrackValue::VerticalTrend, 20, "170/CDM", Last,
        QT_TRANSLATE_NOOP(
            "TrackExplanation", "as reported, 0 is a climb and 1 a descent; before that of the vertical rate")},
    {TrackValue::VerticalTrend, SirM, "trend", Last, QT_TRANSLATE_NOOP("TrackExplanation", "as reported")},

    {TrackValue::SelectedAltitude, 48, "bds40/mcp", RadarLife, McpFirst},
    {TrackValue::SelectedAltitude, 48, "bds40/fms", RadarLife, McpFirst},
    {TrackValue::SelectedAltitude, 20, "bds40/mcp", MlatLife, McpFirst},
    {TrackValue::SelectedAltitude, 20, "bds40/fms", MlatLife, McpFirst},
    {TrackValue::SelectedAltitude, 21, "146/ALT", AdsbLife, ""},
    {TrackValue::SelectedAltitude, 21, "148/ALT", AdsbLife, ""},
    {TrackValue::SelectedAltitude, 62, "380/SAL/ALT", SystemLife, ""},

    {TrackValue::Type, 48, "020/TYP", Kept, QT_TRANSLATE_NOOP("TrackExplanation", "the kind of detection")},
    {TrackValue::Type, 1, "020/SSRPSR", Kept, QT_TRANSLATE_NOOP("TrackExplanation", "the kind of detection")},
    {TrackValue::Type, SirM, "type", Kept, QT_TRANSLATE_NOOP("TrackExplanation", "the kind of detection")},

    {TrackValue::State, 48, "170/CNF", Last, ConfirmedUnless},
    {TrackValue::State, 1, "170/CON", Last, ConfirmedUnless},
    {TrackValue::State, 10, "170/CNF", Last, ConfirmedUnless},
    {TrackValue::State, 20, "170/CNF 170/CST 170/TRE", Last,
        QT_TRANSLATE_NOOP("TrackExplanation", "tentative, coasting or ended as the sensor says, else confirmed")},
    {TrackValue::State, 62, "080/CNF 080/CST", Last,
        QT_TRANSLATE_NOOP("TrackExplanation", "tentative or coasting as the source says, else confirmed")},
    {TrackValue::State, SirM, "coasting", Last, ""},

    {TrackValue::OnGround, 21, "040/GBS", Kept, ""},

    {TrackValue::Emergency, 48, "020/ME", Last, ""},
    {TrackValue::Emergency, 1, "020/DS1DS2 020/ME", Kept, ""},
    {TrackValue::Emergency, 21, "200/PS 200/ME", Kept, ""},
    {TrackValue::Emergency, 21, "200", Kept, ""},
    {TrackValue::Emergency, 62, "080/ME 080/EMS", Kept, ""},
    {TrackValue::Emergency, ModeS, "emergency", Kept, ""},

    {TrackValue::Spi, 48, "020/SPI 230/STAT", Last, ""},
    {TrackValue::Spi, 1, "020/SPI", Last, ""},
    {TrackValue::Spi, 20, "020/SPI 230/STAT", Last, ""},
    {TrackValue::Spi, 10, "020/SPI", Last, ""},
    {TrackValue::Spi, 21, "200/SS", Last, ""},
    {TrackValue::Spi, 21, "040/SPI", Last, ""},
    {TrackValue::Spi, 62, "080/SPI 380/COM/STAT", Last, ""},
};

} // namespace

std::span<const ValueSource> valueSources()
{
    return Sources;
}
