#include "traffic/conflict.h"

#include "traffic/earth.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr double MetresPerSecond = Earth::MetresPerNauticalMile / 3600; // of a knot
constexpr double Never = std::numeric_limits<double>::infinity();

struct Interval {
    double from = 0; // seconds
    double to = 0;

    bool isEmpty() const { return from >= to; }
    Interval within(const Interval &other) const { return {std::max(from, other.from), std::min(to, other.to)}; }
};

// The other one's place and movement in a plane around the one.
struct Encounter {
    double east = 0; // metres
    double north = 0;
    double eastSpeed = 0; // metres per second
    double northSpeed = 0;

    double distanceAfter(double seconds) const
    {
        return std::hypot(east + eastSpeed * seconds, north + northSpeed * seconds);
    }
};

Encounter encounterOf(const Aircraft::State &one, const Aircraft::State &other)
{
    const Earth::Plane place = Earth::plane(one.latitude, one.longitude, other.latitude, other.longitude);
    const double track = Earth::radians(one.track);
    const double otherTrack = Earth::radians(other.track);
    return {place.east, place.north,
        MetresPerSecond * (other.speed * std::sin(otherTrack) - one.speed * std::sin(track)),
        MetresPerSecond * (other.speed * std::cos(otherTrack) - one.speed * std::cos(track))};
}

double timeOfClosestApproach(const Encounter &encounter)
{
    const double speed = std::hypot(encounter.eastSpeed, encounter.northSpeed);
    if (speed == 0) {
        return 0;
    }
    const double closing = -(encounter.east * encounter.eastSpeed + encounter.north * encounter.northSpeed) / speed;
    return std::max(closing / speed, 0.0);
}

// When the distance is less than the minimum.
Interval horizontalLoss(const Encounter &encounter, double minimum)
{
    const double a = encounter.eastSpeed * encounter.eastSpeed + encounter.northSpeed * encounter.northSpeed;
    const double b = encounter.east * encounter.eastSpeed + encounter.north * encounter.northSpeed;
    const double c = encounter.east * encounter.east + encounter.north * encounter.north - minimum * minimum;
    if (a == 0) {
        return c < 0 ? Interval{-Never, Never} : Interval{};
    }
    const double discriminant = b * b - a * c;
    if (discriminant <= 0) {
        return {};
    }
    return {(-b - std::sqrt(discriminant)) / a, (-b + std::sqrt(discriminant)) / a};
}

// Seconds until the selected altitude is reached.
double levelOffTime(const Aircraft &aircraft)
{
    const double rate = aircraft.state().verticalRate / 60; // feet per second
    const double left = aircraft.selectedAltitude() - aircraft.state().altitude;
    return rate != 0 && left / rate > 0 ? left / rate : Never;
}

double altitudeAfter(const Aircraft &aircraft, double seconds)
{
    if (seconds >= levelOffTime(aircraft)) {
        return aircraft.selectedAltitude();
    }
    return aircraft.state().altitude + aircraft.state().verticalRate / 60 * seconds;
}

double heightBetween(const Aircraft &one, const Aircraft &other, double seconds)
{
    return altitudeAfter(other, seconds) - altitudeAfter(one, seconds);
}

// When the height between the two is less than the minimum, in a piece of time in which it changes evenly.
Interval verticalLoss(const Aircraft &one, const Aircraft &other, double minimum, const Interval &piece)
{
    const double atStart = heightBetween(one, other, piece.from);
    const double rate = (heightBetween(one, other, piece.to) - atStart) / (piece.to - piece.from);
    if (rate == 0) {
        return std::abs(atStart) < minimum ? piece : Interval{};
    }
    const double above = piece.from + (minimum - atStart) / rate;
    const double below = piece.from + (-minimum - atStart) / rate;
    return Interval{std::min(above, below), std::max(above, below)}.within(piece);
}

} // namespace

std::optional<Conflict> predictConflict(
    const Aircraft &one, const Aircraft &other, const Separation &minimum, double lookAhead)
{
    const Encounter encounter = encounterOf(one.state(), other.state());
    const Interval horizontal = horizontalLoss(encounter, minimum.horizontal);
    std::array moments{
        0.0, std::min(levelOffTime(one), lookAhead), std::min(levelOffTime(other), lookAhead), lookAhead};
    std::sort(moments.begin(), moments.end());
    for (std::size_t i = 1; i < moments.size(); ++i) {
        const Interval piece{moments[i - 1], moments[i]};
        if (piece.isEmpty()) {
            continue;
        }
        const Interval lost = verticalLoss(one, other, minimum.vertical, piece).within(horizontal);
        if (lost.isEmpty()) {
            continue;
        }
        const double closestAt = timeOfClosestApproach(encounter);
        return Conflict{lost.from, closestAt, {encounter.distanceAfter(0), std::abs(heightBetween(one, other, 0))},
            {encounter.distanceAfter(closestAt), std::abs(heightBetween(one, other, closestAt))}};
    }
    return std::nullopt;
}

Prediction predict(const Aircraft &aircraft, double seconds)
{
    const Aircraft::State &state = aircraft.state();
    Prediction prediction{state.latitude, state.longitude, altitudeAfter(aircraft, seconds)};
    Earth::advance(prediction.latitude, prediction.longitude, state.track, state.speed * MetresPerSecond * seconds);
    return prediction;
}

// Counts the borders that a line to the east crosses.
bool isInside(const ScenarioArea &area, const Prediction &position)
{
    if (position.altitude < area.lower || position.altitude >= area.upper) {
        return false;
    }
    bool inside = false;
    const ScenarioPoint *from = &area.polygon.back();
    for (const ScenarioPoint &to : area.polygon) {
        const bool isCrossed = (from->latitude > position.latitude) != (to.latitude > position.latitude);
        const double part = (position.latitude - from->latitude) / (to.latitude - from->latitude);
        if (isCrossed && position.longitude < from->longitude + part * (to.longitude - from->longitude)) {
            inside = !inside;
        }
        from = &to;
    }
    return inside;
}
