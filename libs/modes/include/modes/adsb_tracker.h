#pragma once

#include "modes/adsb_target.h"
#include "modes/mode_s_message.h"

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace korvane::modes {

// Puts the messages of each address together. Times are those of the messages, so that recordings replay at any speed.
// What is silent for ten minutes is forgotten within another. For one thread.
class ADSBTracker {
public:
    ADSBTracker() = default;

    // The target of the message, brought up to date; null where there is none. DF 17 and 18 make targets, other formats
    // only add to them.
    std::shared_ptr<ADSBTarget> procModeSMsg(const std::shared_ptr<ModeSMessage> &message);
    std::shared_ptr<ADSBTarget> procModeSMsg(const ModeSMessage &message);

    // Removes the targets that were last heard before a time (milliseconds, of the messages' clock) and returns them.
    std::vector<std::shared_ptr<ADSBTarget>> killTargets(unsigned long long time);

    // With the check on, an altitude that differs by more than maxChange feet from the last one is not taken while that
    // is no older than checkingTime seconds. The spelling is part of the interface.
    void setAltituteBaroChecking(bool enable, unsigned int checkingTime, unsigned int maxChange);

    // The receiver's place, or the middle of what a network of them covers: needed for positions on the surface, where
    // several fit. Positions beyond MaximumRange of it are not taken.
    void setReferencePosition(double latitude, double longitude);
    void clearReferencePosition();

    const std::unordered_map<std::uint64_t, std::shared_ptr<ADSBTarget>> &targets() const { return m_targets; }

    // How many positions have not been taken because they lie beyond MaximumRange.
    unsigned long long positionsOutOfRange() const { return m_positionsOutOfRange; }

    static constexpr double MaximumRange = 1000 * 1000.0; // metres

private:
    std::shared_ptr<ADSBTarget> findOrMake(const ModeSMessage &message);
    void forgetSilentTargets(unsigned long long time);
    void takeContent(ADSBTarget &target, const ModeSMessage &message);
    static void takeCallsign(ADSBTarget &target, const char *callsign, unsigned long long time);
    void takeCoarse(ADSBTarget &target, const CoarsePosition &content, unsigned long long time);
    void takeAltitude(ADSBTarget &target, int altitude, unsigned long long time) const;
    void takePosition(ADSBTarget &target, const CprPosition &report, unsigned long long time);
    std::optional<LatLon> decodePair(const ADSBTarget &target, const CprPosition &newest) const;
    std::optional<LatLon> decodeAlone(
        const ADSBTarget &target, const CprPosition &report, unsigned long long time) const;
    bool isReachable(const ADSBTarget &target, const LatLon &position, unsigned long long time, bool isSurface) const;
    bool isInRange(const LatLon &position) const;

    std::unordered_map<std::uint64_t, std::shared_ptr<ADSBTarget>> m_targets; // by address, and kind of address above
    unsigned long long m_lastSweep = 0; // milliseconds
    unsigned long long m_positionsOutOfRange = 0;
    std::optional<LatLon> m_reference;
    bool m_isCheckingAltitude = false;
    unsigned int m_altitudeCheckingTime = 4; // seconds
    unsigned int m_altitudeMaxChange = 150; // feet
};

} // namespace korvane::modes
