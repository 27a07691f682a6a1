#include "modes/adsb_tracker.h"

#include "modes/log.h"

#include <algorithm>
#include <cstdio>

namespace korvane::modes {

namespace {

constexpr double MetresPerSecond = 1852.0 / 3600; // of a knot
constexpr unsigned long long AirbornePairSpan = 10000; // milliseconds, between an even report and an odd one
constexpr unsigned long long SurfacePairSpan = 25000;
constexpr unsigned long long SlowSurfacePairSpan = 50000;
constexpr double SlowSurfaceSpeed = 25; // knots
constexpr unsigned long long PositionMemory = 600000; // milliseconds for which a position vouches for the next
constexpr int MaximumRefusals = 3;
constexpr unsigned long long TargetMemory = PositionMemory; // a target that is silent for longer is forgotten
constexpr unsigned long long SweepPeriod = 60000; // milliseconds between two looks for such

unsigned long long span(unsigned long long a, unsigned long long b)
{
    return a < b ? b - a : a - b;
}

std::string nameOf(const ADSBTarget &target)
{
    char text[16];
    std::snprintf(text, sizeof text, "%06X", target.icaoAddr());
    return text;
}

unsigned long long pairSpan(const ADSBTarget &target, bool isSurface)
{
    if (!isSurface) {
        return AirbornePairSpan;
    }
    return target.groundSpeed() > SlowSurfaceSpeed ? SurfacePairSpan : SlowSurfacePairSpan;
}

} // namespace

std::shared_ptr<ADSBTarget> ADSBTracker::procModeSMsg(const std::shared_ptr<ModeSMessage> &message)
{
    return message ? procModeSMsg(*message) : nullptr;
}

std::shared_ptr<ADSBTarget> ADSBTracker::procModeSMsg(const ModeSMessage &message)
{
    if (!message.valid() || !message.isAddressConfirmed()) {
        return nullptr;
    }
    forgetSilentTargets(message.timeStamp());
    const std::shared_ptr<ADSBTarget> target = findOrMake(message);
    if (!target) {
        return nullptr;
    }
    target->m_lastSeen = message.timeStamp();
    if (message.isOnGround()) {
        target->m_isOnGround = *message.isOnGround();
    }
    if (message.squawk()) {
        target->m_squawk = message.squawk();
        target->m_squawkTime = message.timeStamp();
    }
    if (message.altitude()) {
        takeAltitude(*target, *message.altitude(), message.timeStamp());
    }
    takeContent(*target, message);
    return target;
}

std::shared_ptr<ADSBTarget> ADSBTracker::findOrMake(const ModeSMessage &message)
{
    const bool isIcao = message.addressKind() == ModeSMessage::AddressKind::Icao;
    const std::uint64_t key = message.icaoAddr() | (isIcao ? 0ULL : 1ULL << 24);
    const auto found = m_targets.find(key);
    if (found != m_targets.end()) {
        return found->second;
    }
    const bool isSquitter = message.downlinkFormat() == 17 || message.downlinkFormat() == 18;
    if (!isSquitter) {
        return nullptr;
    }
    const auto target = std::make_shared<ADSBTarget>();
    target->m_address = message.icaoAddr();
    target->m_isAddressValid = isIcao;
    m_targets.emplace(key, target);
    return target;
}

// In a stream without a pause the caller may never ask for it.
void ADSBTracker::forgetSilentTargets(unsigned long long time)
{
    if (span(time, m_lastSweep) < SweepPeriod) {
        return;
    }
    m_lastSweep = time;
    std::erase_if(m_targets, [time](const auto &entry) { return span(time, entry.second->lastSeen()) > TargetMemory; });
}

std::vector<std::shared_ptr<ADSBTarget>> ADSBTracker::killTargets(unsigned long long time)
{
    std::vector<std::shared_ptr<ADSBTarget>> removed;
    for (auto entry = m_targets.begin(); entry != m_targets.end();) {
        if (entry->second->lastSeen() < time) {
            removed.push_back(entry->second);
            entry = m_targets.erase(entry);
        } else {
            ++entry;
        }
    }
    return removed;
}

void ADSBTracker::setAltituteBaroChecking(bool enable, unsigned int checkingTime, unsigned int maxChange)
{
    m_isCheckingAltitude = enable;
    m_altitudeCheckingTime = checkingTime;
    m_altitudeMaxChange = maxChange;
}

void ADSBTracker::setReferencePosition(double latitude, double longitude)
{
    m_reference = LatLon{latitude, longitude};
}

void ADSBTracker::clearReferencePosition()
{
    m_reference.reset();
}

void ADSBTracker::takeContent(ADSBTarget &target, const ModeSMessage &message)
{
    const SquitterContent &content = message.content();
    const unsigned long long time = message.timeStamp();
    if (const auto *const airborne = std::get_if<AirbornePosition>(&content)) {
        target.m_isOnGround = false;
        if (airborne->altitude && !airborne->isGnssHeight) {
            takeAltitude(target, *airborne->altitude, time);
        }
        if (airborne->position) {
            takePosition(target, *airborne->position, time);
        }
    } else if (const auto *const velocity = std::get_if<AirborneVelocity>(&content)) {
        target.m_movementTime = time;
        target.m_groundSpeed = velocity->groundSpeed;
        target.m_heading = velocity->track ? velocity->track : velocity->heading;
        target.m_verticalRate = velocity->verticalRate;
    } else if (const auto *const surface = std::get_if<SurfacePosition>(&content)) {
        target.m_isOnGround = true;
        target.m_movementTime = time;
        target.m_groundSpeed = surface->groundSpeed;
        target.m_heading = surface->track;
        takePosition(target, surface->position, time);
    } else if (const auto *const identification = std::get_if<Identification>(&content)) {
        takeCallsign(target, identification->callsign, time);
    } else if (const auto *const emergency = std::get_if<EmergencyStatus>(&content)) {
        target.m_emergency = emergency->emergency;
        target.m_emergencyTime = time;
        if (emergency->squawk) {
            target.m_squawk = emergency->squawk;
            target.m_squawkTime = time;
        }
    } else if (const auto *const coarse = std::get_if<CoarsePosition>(&content)) {
        takeCoarse(target, *coarse, time);
    } else if (!target.callsignValid() && message.registers().only() == 0x20) {
        takeCallsign(target, decodeBds20(message.messageField())->callsign, time);
    }
}

void ADSBTracker::takeCallsign(ADSBTarget &target, const char *callsign, unsigned long long time)
{
    if (callsign[0]) {
        target.m_callsign = callsign;
        target.m_callsignTime = time;
    }
}

void ADSBTracker::takeCoarse(ADSBTarget &target, const CoarsePosition &content, unsigned long long time)
{
    if (content.altitude) {
        takeAltitude(target, *content.altitude, time);
    }
    target.m_movementTime = time;
    target.m_groundSpeed = content.groundSpeed;
    target.m_heading = content.track;
    takePosition(target, content.position, time);
}

void ADSBTracker::takeAltitude(ADSBTarget &target, int altitude, unsigned long long time) const
{
    const bool isRecent = target.m_altitude && span(time, *target.m_altitudeTime) <= m_altitudeCheckingTime * 1000ULL;
    if (m_isCheckingAltitude && isRecent) {
        const long long change = altitude - static_cast<long long>(*target.m_altitude);
        if (std::max(change, -change) > static_cast<long long>(m_altitudeMaxChange)) {
            if (Log::isShown(Log::Debug)) {
                Log::write(
                    Log::Debug, nameOf(target) + ": altitude change of " + std::to_string(change) + " ft refused");
            }
            return;
        }
    }
    target.m_altitude = altitude;
    target.m_altitudeTime = time;
}

// A pair is believed before a report alone is: alone, a report near a wrong position only confirms it.
void ADSBTracker::takePosition(ADSBTarget &target, const CprPosition &report, unsigned long long time)
{
    target.m_reports[report.isOdd ? 1 : 0] = ADSBTarget::Report{report, time};
    std::optional<LatLon> position = decodePair(target, report);
    if (!position) {
        position = decodeAlone(target, report, time);
    }
    if (!position) {
        return;
    }
    const bool inRange = isInRange(*position);
    m_positionsOutOfRange += inRange ? 0 : 1;
    if (inRange && isReachable(target, *position, time, report.isSurface)) {
        target.m_position = position;
        target.m_positionTime = time;
        target.m_refusedPositions = 0;
        return;
    }
    if (++target.m_refusedPositions < MaximumRefusals) {
        return;
    }
    if (Log::isShown(Log::Debug)) {
        Log::write(Log::Debug, nameOf(target) + ": position given up after contradictions");
    }
    target.m_refusedPositions = 0;
    target.m_position.reset();
    target.m_reports[0].reset();
    target.m_reports[1].reset();
}

std::optional<LatLon> ADSBTracker::decodePair(const ADSBTarget &target, const CprPosition &newest) const
{
    const auto &[even, odd] = target.m_reports;
    if (!even || !odd || span(even->time, odd->time) > pairSpan(target, newest.isSurface)) {
        return std::nullopt;
    }
    if (!newest.isSurface) {
        return decodeCprGlobal(even->position, odd->position, newest.isOdd);
    }
    const std::optional<LatLon> reference = target.m_position ? target.m_position : m_reference;
    if (!reference) {
        return std::nullopt;
    }
    return decodeCprGlobalSurface(even->position, odd->position, newest.isOdd, *reference);
}

std::optional<LatLon> ADSBTracker::decodeAlone(
    const ADSBTarget &target, const CprPosition &report, unsigned long long time) const
{
    if (!target.m_position || span(time, target.positionTime()) > PositionMemory) {
        return std::nullopt;
    }
    return decodeCprLocal(report, *target.m_position);
}

// Whether the way from the last position could be flown, or taxied, since.
bool ADSBTracker::isReachable(
    const ADSBTarget &target, const LatLon &position, unsigned long long time, bool isSurface) const
{
    const unsigned long long elapsed = span(time, target.positionTime());
    if (!target.m_position || time == 0 || elapsed > PositionMemory) {
        return true;
    }
    const double margin = isSurface ? 500 : 2000; // metres
    const double unknownSpeed = isSurface ? 200 : 1000; // knots
    const double speed = target.m_groundSpeed ? *target.m_groundSpeed * 1.3 + 50 : unknownSpeed;
    const double reach = margin + speed * MetresPerSecond * static_cast<double>(elapsed) / 1000;
    return distanceBetween(*target.m_position, position) <= reach;
}

bool ADSBTracker::isInRange(const LatLon &position) const
{
    return !m_reference || distanceBetween(*m_reference, position) <= MaximumRange;
}

} // namespace korvane::modes
