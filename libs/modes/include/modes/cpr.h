#pragma once

#include <cstdint>
#include <optional>

namespace korvane::modes {

struct LatLon {
    double latitude = 0; // degrees north, WGS-84
    double longitude = 0; // degrees east, -180 to below 180
};

// A position in compact reporting: its place in a zone, for one of the two sets of zones.
struct CprPosition {
    bool isOdd = false;
    bool isSurface = false; // zones of a quarter of the size
    std::uint8_t bits = 17; // of each number; 12 in coarse TIS-B reports
    std::uint32_t latitude = 0;
    std::uint32_t longitude = 0;
};

// The number of longitude zones at a latitude, 1 to 59.
int cprLongitudeZones(double latitude);

CprPosition encodeCpr(const LatLon &position, bool isOdd, bool isSurface, unsigned bits = 17);

// The position of the newer of an even and an odd report. Nothing when the two lie in different zones or are of
// different kinds, or when it is not on Earth.
std::optional<LatLon> decodeCprGlobal(const CprPosition &even, const CprPosition &odd, bool isOddNewer);

// The same on the surface, where four or eight places fit: that nearest to the reference.
std::optional<LatLon> decodeCprGlobalSurface(
    const CprPosition &even, const CprPosition &odd, bool isOddNewer, const LatLon &reference);

// The position nearest to the reference: right within 180 nautical miles of it in the air, 45 on the surface.
std::optional<LatLon> decodeCprLocal(const CprPosition &report, const LatLon &reference);

// Great-circle distance in metres.
double distanceBetween(const LatLon &a, const LatLon &b);

} // namespace korvane::modes
