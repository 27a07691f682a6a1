#include "modes/cpr.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace korvane::modes {

namespace {

constexpr double Degree = std::numbers::pi / 180;
constexpr double EarthRadius = 6371008.8; // metres, mean
constexpr int Zones = 15; // of latitude, from the equator to a pole

// The latitudes at which there is one longitude zone fewer: 58 of them, ascending from 59 zones.
std::array<double, 58> makeTransitions()
{
    std::array<double, 58> transitions{};
    for (int zones = 59; zones >= 2; --zones) {
        const double numerator = 1 - std::cos(std::numbers::pi / (2 * Zones));
        const double denominator = 1 - std::cos(2 * std::numbers::pi / zones);
        transitions[static_cast<std::size_t>(59 - zones)] =
            std::acos(std::min(1.0, std::sqrt(numerator / denominator))) / Degree;
    }
    transitions.back() = 87; // exactly so by definition
    return transitions;
}

double modulo(double value, double period)
{
    return value - period * std::floor(value / period);
}

// Degrees over which the zones are counted.
double circle(const CprPosition &report)
{
    return report.isSurface ? 90 : 360;
}

double latitudeZone(const CprPosition &report)
{
    return circle(report) / (report.isOdd ? 4 * Zones - 1 : 4 * Zones);
}

double longitudeZone(const CprPosition &report, double latitude)
{
    return circle(report) / std::max(cprLongitudeZones(latitude) - (report.isOdd ? 1 : 0), 1);
}

double fraction(std::uint32_t value, const CprPosition &report)
{
    return std::ldexp(static_cast<double>(value), -report.bits);
}

double wrapped(double longitude)
{
    return modulo(longitude + 180, 360) - 180;
}

// The latitudes of an even and an odd report together, 0 to below the circle.
struct LatitudePair {
    double even;
    double odd;
};

LatitudePair latitudesOf(const CprPosition &even, const CprPosition &odd)
{
    const double evenPart = fraction(even.latitude, even);
    const double oddPart = fraction(odd.latitude, odd);
    const double index = std::floor(59 * evenPart - 60 * oddPart + 0.5);
    return {latitudeZone(even) * (modulo(index, 60) + evenPart), latitudeZone(odd) * (modulo(index, 59) + oddPart)};
}

// 0 to below the circle; the latitudes of both reports must have this many zones.
double longitudeOf(const CprPosition &even, const CprPosition &odd, bool isOddNewer, int zones)
{
    const double evenPart = fraction(even.longitude, even);
    const double oddPart = fraction(odd.longitude, odd);
    const double index = std::floor(evenPart * (zones - 1) - oddPart * zones + 0.5);
    const int count = std::max(zones - (isOddNewer ? 1 : 0), 1);
    return circle(even) / count * (modulo(index, count) + (isOddNewer ? oddPart : evenPart));
}

bool isPair(const CprPosition &even, const CprPosition &odd)
{
    return !even.isOdd && odd.isOdd && even.isSurface == odd.isSurface && even.bits == odd.bits;
}

} // namespace

int cprLongitudeZones(double latitude)
{
    static const std::array<double, 58> transitions = makeTransitions();
    const auto passed = std::upper_bound(transitions.begin(), transitions.end(), std::abs(latitude));
    return 59 - static_cast<int>(passed - transitions.begin());
}

CprPosition encodeCpr(const LatLon &position, bool isOdd, bool isSurface, unsigned bits)
{
    CprPosition report;
    report.isOdd = isOdd;
    report.isSurface = isSurface;
    report.bits = static_cast<std::uint8_t>(bits);
    const double steps = std::ldexp(1.0, static_cast<int>(bits));
    const std::uint32_t mask = (1U << bits) - 1;
    const double zone = latitudeZone(report);
    const double part = std::floor(steps * modulo(position.latitude, zone) / zone + 0.5);
    report.latitude = static_cast<std::uint32_t>(part) & mask;
    const double decoded = zone * (part / steps + std::floor(position.latitude / zone));
    const double width = longitudeZone(report, decoded);
    report.longitude =
        static_cast<std::uint32_t>(std::floor(steps * modulo(position.longitude, width) / width + 0.5)) & mask;
    return report;
}

std::optional<LatLon> decodeCprGlobal(const CprPosition &even, const CprPosition &odd, bool isOddNewer)
{
    if (!isPair(even, odd) || even.isSurface) {
        return std::nullopt;
    }
    LatitudePair latitudes = latitudesOf(even, odd);
    latitudes.even -= latitudes.even >= 270 ? 360 : 0;
    latitudes.odd -= latitudes.odd >= 270 ? 360 : 0;
    const double latitude = isOddNewer ? latitudes.odd : latitudes.even;
    const int zones = cprLongitudeZones(latitude);
    if (std::abs(latitude) > 90 || cprLongitudeZones(isOddNewer ? latitudes.even : latitudes.odd) != zones) {
        return std::nullopt;
    }
    return LatLon{latitude, wrapped(longitudeOf(even, odd, isOddNewer, zones))};
}

std::optional<LatLon> decodeCprGlobalSurface(
    const CprPosition &even, const CprPosition &odd, bool isOddNewer, const LatLon &reference)
{
    if (!isPair(even, odd) || !even.isSurface) {
        return std::nullopt;
    }
    LatitudePair latitudes = latitudesOf(even, odd);
    const double northern = isOddNewer ? latitudes.odd : latitudes.even;
    const bool isSouthern = std::abs(northern - 90 - reference.latitude) < std::abs(northern - reference.latitude);
    latitudes.even -= isSouthern ? 90 : 0;
    latitudes.odd -= isSouthern ? 90 : 0;
    const double latitude = isOddNewer ? latitudes.odd : latitudes.even;
    const int zones = cprLongitudeZones(latitude);
    if (cprLongitudeZones(isOddNewer ? latitudes.even : latitudes.odd) != zones) {
        return std::nullopt;
    }
    const double first = longitudeOf(even, odd, isOddNewer, zones);
    const double quarters = std::floor((reference.longitude - first) / 90 + 0.5);
    return LatLon{latitude, wrapped(first + 90 * quarters)};
}

std::optional<LatLon> decodeCprLocal(const CprPosition &report, const LatLon &reference)
{
    const double zone = latitudeZone(report);
    const double part = fraction(report.latitude, report);
    const double row = std::floor(reference.latitude / zone - part + 0.5);
    const double latitude = zone * (row + part);
    if (std::abs(latitude) > 90) {
        return std::nullopt;
    }
    const double width = longitudeZone(report, latitude);
    const double offset = fraction(report.longitude, report);
    const double column = std::floor(reference.longitude / width - offset + 0.5);
    return LatLon{latitude, wrapped(width * (column + offset))};
}

double distanceBetween(const LatLon &a, const LatLon &b)
{
    const double latitudes = std::sin((b.latitude - a.latitude) * Degree / 2);
    const double longitudes = std::sin((b.longitude - a.longitude) * Degree / 2);
    const double h =
        latitudes * latitudes + std::cos(a.latitude * Degree) * std::cos(b.latitude * Degree) * longitudes * longitudes;
    return 2 * EarthRadius * std::asin(std::min(1.0, std::sqrt(h)));
}

} // namespace korvane::modes
