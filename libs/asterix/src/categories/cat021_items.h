#pragma once

#include "categories/categories.h"

// Items of CAT021 that several editions have alike. What an edition has of its own stands with its table.

namespace korvane::asterix::cat021 {

// I021/008 Aircraft Operational Status
inline constexpr Field item008[] = {
    raw("RA", 1), raw("TC", 2), raw("TS", 1), raw("ARV", 1), raw("CDTIA", 1), raw("NOTTCAS", 1), raw("SA", 1)};

// I021/010 Data Source Identification
inline constexpr Field item010[] = {raw("SAC", 8), raw("SIC", 8)};

// I021/074 Time of Message Reception of Position-High Precision
inline constexpr Field item074[] = {raw("FSI", 2), quantity("TOMRP", 30, {1, 1073741824}, "s")};

// I021/076 Time of Message Reception of Velocity-High Precision
inline constexpr Field item076[] = {raw("FSI", 2), quantity("TOMRP", 30, {1, 1073741824}, "s")};

// I021/110 Trajectory Intent
inline constexpr Field item110Tis[] = {
    raw("NAV", 1), raw("NVB", 1), spare(5), fx, //
};
inline constexpr Field item110Tid[] = {raw("TCA", 1), raw("NC", 1), raw("TCPN", 6),
    signedQuantity("ALT", 16, {10, 1}, "ft"), signedQuantity("LAT", 24, {180, 8388608}, "°"),
    signedQuantity("LON", 24, {180, 8388608}, "°"), raw("PT", 4), raw("TD", 2), raw("TRA", 1), raw("TOA", 1),
    quantity("TOV", 24, {1, 1}, "s"), quantity("TTR", 16, {1, 100}, "NM")};
inline constexpr Field item110[] = {
    extended("TIS", item110Tis),
    repetitive("TID", item110Tid),
};

// I021/131 High-Resolution Position in WGS-84 Co-ordinates
inline constexpr Field item131[] = {
    signedQuantity("LAT", 32, {180, 1073741824}, "°"), signedQuantity("LON", 32, {180, 1073741824}, "°")};

// I021/148 Final State Selected Altitude
inline constexpr Field item148[] = {raw("MV", 1), raw("AH", 1), raw("AM", 1), signedQuantity("ALT", 13, {25, 1}, "ft")};

// I021/150 Air Speed
inline constexpr Field item150AsCases[] = {
    when(0, quantity("AS", 15, {1, 16384}, "NM/s")), when(1, quantity("AS", 15, {1, 1000}, "Mach"))};
inline constexpr Field item150[] = {raw("IM", 1), caseOf("AS", "150/IM", item150AsCases)};

// I021/151 True Airspeed
inline constexpr Field item151[] = {raw("RE", 1), quantity("TAS", 15, {1, 1}, "kt")};

// I021/155 Barometric Vertical Rate
inline constexpr Field item155[] = {raw("RE", 1), signedQuantity("BVR", 15, {25, 4}, "ft/min")};

// I021/157 Geometric Vertical Rate
inline constexpr Field item157[] = {raw("RE", 1), signedQuantity("GVR", 15, {25, 4}, "ft/min")};

// I021/161 Track Number
inline constexpr Field item161[] = {spare(4), raw("TRNUM", 12)};

// I021/220 Met Information
inline constexpr Field item220[] = {
    quantity("WS", 16, {1, 1}, "kt"),
    quantity("WD", 16, {1, 1}, "°"),
    signedQuantity("TMP", 16, {1, 4}, "°C"),
    integer("TRB", 8),
};

// I021/250 Mode S MB Data
inline constexpr Field item250[] = {raw(nullptr, 64)};

// I021/260 ACAS Resolution Advisory Report
inline constexpr Field item260[] = {raw("TYP", 5), raw("STYP", 3), raw("ARA", 14), raw("RAC", 4), raw("RAT", 1),
    raw("MTE", 1), raw("TTI", 2), raw("TID", 26)};

// In the editions 0.23 and 0.26.
namespace early {

// I021/040 Target Report Descriptor
inline constexpr Field item040[] = {raw("DCR", 1), raw("GBS", 1), raw("SIM", 1), raw("TST", 1), raw("RAB", 1),
    raw("SAA", 1), raw("SPI", 1), spare(1), raw("ATP", 3), raw("ARC", 2), spare(3)};

// I021/090 Figure of Merit
inline constexpr Field item090[] = {
    raw("AC", 2), raw("MN", 2), raw("DC", 2), spare(6), signedQuantity("PA", 4, {1, 1}, "")};

// I021/146 Intermediate State Selected Altitude
inline constexpr Field item146[] = {raw("SAS", 1), raw("SRC", 2), signedQuantity("ALT", 13, {25, 1}, "ft")};

// I021/160 Ground Vector
inline constexpr Field item160[] = {
    signedQuantity("GS", 16, {1, 16384}, "NM/s"), quantity("TA", 16, {360, 65536}, "°")};

// I021/165 Rate Of Turn
inline constexpr Field item165[] = {
    raw("TI", 2), spare(5), fx, //
    signedQuantity("ROT", 7, {1, 4}, "°/s"), fx, //
};

// I021/210 Link Technology Indicator
inline constexpr Field item210[] = {
    spare(3), raw("DTI", 1), raw("MDS", 1), raw("UAT", 1), raw("VDL", 1), raw("OTR", 1)};

} // namespace early

// In the editions 2.1 and 2.7.
namespace late {

// I021/070 Mode 3/A Code in Octal Representation
inline constexpr Field item070[] = {spare(4), octal("MODE3A", 12)};

// I021/130 Position in WGS-84 Co-ordinates
inline constexpr Field item130[] = {
    signedQuantity("LAT", 24, {180, 8388608}, "°"), signedQuantity("LON", 24, {180, 8388608}, "°")};

// I021/146 Selected Altitude
inline constexpr Field item146[] = {raw("SAS", 1), raw("S", 2), signedQuantity("ALT", 13, {25, 1}, "ft")};

// I021/160 Airborne Ground Vector
inline constexpr Field item160[] = {
    raw("RE", 1), quantity("GS", 15, {1, 16384}, "NM/s"), quantity("TA", 16, {360, 65536}, "°")};

// I021/165 Track Angle Rate
inline constexpr Field item165[] = {spare(6), signedQuantity("TAR", 10, {1, 32}, "°/s")};

// I021/210 MOPS Version
inline constexpr Field item210[] = {spare(1), raw("VNS", 1), raw("VN", 3), raw("LTT", 3)};

// I021/295 Data Ages. The editions differ in the name of the selected altitude's.
struct DataAges {
    Field fields[23];
};
constexpr DataAges dataAges(const char *selectedAltitude)
{
    DataAges ages{};
    const char *const names[] = {"AOS", "TRD", "M3A", "QI", "TI1", "MAM", "GH", "FL", selectedAltitude, "FSA", "AS",
        "TAS", "MH", "BVR", "GVR", "GV", "TAR", "TI2", "TS", "MET", "ROA", "ARA", "SCC"};
    for (std::size_t i = 0; i < std::size(names); ++i) {
        ages.fields[i] = quantity(names[i], 8, {1, 10}, "s");
    }
    return ages;
}

// All items, those given in the form that they have in the edition.
struct Items {
    Field fields[44];
};
template <std::size_t N040, std::size_t N090, std::size_t N200, std::size_t N271, std::size_t N295>
constexpr Items itemsWith(const Field (&item040)[N040], const Field (&item090)[N090], const Field (&item200)[N200],
    const Field (&item271)[N271], const Field (&item295)[N295])
{
    return {{
        item("Aircraft Operational Status", group("008", item008)),
        item("Data Source Identification", group("010", item010)),
        item("Service Identification", raw("015", 8)),
        item("Service Management", quantity("016", 8, {1, 2}, "s")),
        item("Emitter Category", raw("020", 8)),
        item("Target Report Descriptor", extended("040", item040)),
        item("Mode 3/A Code in Octal Representation", group("070", item070)),
        item("Time of Applicability for Position", quantity("071", 24, {1, 128}, "s")),
        item("Time of Applicability for Velocity", quantity("072", 24, {1, 128}, "s")),
        item("Time of Message Reception for Position", quantity("073", 24, {1, 128}, "s")),
        item("Time of Message Reception of Position-High Precision", group("074", item074)),
        item("Time of Message Reception for Velocity", quantity("075", 24, {1, 128}, "s")),
        item("Time of Message Reception of Velocity-High Precision", group("076", item076)),
        item("Time of ASTERIX Report Transmission", quantity("077", 24, {1, 128}, "s")),
        item("Target Address", raw("080", 24)),
        item("Quality Indicators", extended("090", item090)),
        item("Trajectory Intent", compound("110", item110)),
        item("Position in WGS-84 Co-ordinates", group("130", item130)),
        item("High-Resolution Position in WGS-84 Co-ordinates", group("131", item131)),
        item("Message Amplitude", signedQuantity("132", 8, {1, 1}, "dBm")),
        item("Geometric Height", signedQuantity("140", 16, {25, 4}, "ft")),
        item("Flight Level", signedQuantity("145", 16, {1, 4}, "FL")),
        item("Selected Altitude", group("146", item146)),
        item("Final State Selected Altitude", group("148", item148)),
        item("Air Speed", group("150", item150)),
        item("True Airspeed", group("151", item151)),
        item("Magnetic Heading", quantity("152", 16, {360, 65536}, "°")),
        item("Barometric Vertical Rate", group("155", item155)),
        item("Geometric Vertical Rate", group("157", item157)),
        item("Airborne Ground Vector", group("160", item160)),
        item("Track Number", group("161", item161)),
        item("Track Angle Rate", group("165", item165)),
        item("Target Identification", icao("170", 48)),
        item("Target Status", group("200", item200)),
        item("MOPS Version", group("210", item210)),
        item("Met Information", compound("220", item220)),
        item("Roll Angle", signedQuantity("230", 16, {1, 100}, "°")),
        item("Mode S MB Data", repetitive("250", item250)),
        item("ACAS Resolution Advisory Report", group("260", item260)),
        item("Surface Capabilities and Characteristics", extended("271", item271)),
        item("Data Ages", compound("295", item295)),
        item("Receiver ID", raw("400", 8)),
        item("Reserved Expansion Field", expansion("RE", cat021Expansion)),
        item("Special Purpose Field", explicitLength("SP")),
    }};
}

// Item names by field reference number.
inline constexpr const char *order[] = {"010", "040", "161", "015", "071", "130", "131", "072", "150", "151", "080",
    "073", "074", "075", "076", "140", "090", "210", "070", "230", "145", "152", "200", "155", "157", "160", "165",
    "077", "170", "020", "220", "146", "148", "110", "016", "008", "271", "132", "250", "260", "400", "295", Unused,
    Unused, Unused, Unused, Unused, "RE", "SP"};

inline constexpr Variation variations[] = {variation("", order)};

} // namespace late

} // namespace korvane::asterix::cat021
