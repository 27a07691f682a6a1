#include "assessment/reference_tracks.h"

#include "geo/line_of_sight.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t MostTargets = 20000; // of spoofed addresses there may be any number
constexpr std::size_t MostWaiting = 32; // plots of one target
constexpr double TargetLife = 60.0; // seconds
constexpr double SquawkLife = 30.0;
constexpr double FastestTarget = 1200.0; // metres per second; what jumps farther is another target
constexpr double JumpTolerance = 3000.0; // metres

// Codes that many aircraft send at a time tell none of them.
bool isConspicuity(unsigned squawk)
{
    return squawk % 64 == 0 || squawk == 01200 || squawk == 07777;
}

bool isJump(const ReferencePoint &from, const ReferencePoint &to)
{
    const auto a = LineOfSight::point(from.latitude, from.longitude, 0.0);
    const auto b = LineOfSight::point(to.latitude, to.longitude, 0.0);
    const double distance = std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
    return distance > JumpTolerance + FastestTarget * std::abs(to.time - from.time);
}

} // namespace

ReferencePoint ReferencePoint::between(const ReferencePoint &before, const ReferencePoint &after, double time)
{
    const double part = (time - before.time) / (after.time - before.time);
    ReferencePoint point;
    point.time = time;
    point.latitude = before.latitude + part * (after.latitude - before.latitude);
    point.longitude = before.longitude + part * std::remainder(after.longitude - before.longitude, 360.0);
    if (before.height && after.height) {
        point.height = *before.height + part * (*after.height - *before.height);
    }
    return point;
}

void ReferenceTracks::add(const Report &report)
{
    const auto known = m_targets.find(report.key);
    if (known == m_targets.end() && m_targets.size() >= MostTargets) {
        return;
    }
    Target &target = known == m_targets.end() ? m_targets[report.key] : known->second;
    const bool isOld = target.count > 0 && report.point.time <= target.last().time;
    if (isOld && target.last().time - report.point.time < TargetLife) {
        return; // the same again from another station, or out of order
    }
    if (target.count > 0 && (isOld || isJump(target.last(), report.point))) {
        target.count = 0;
        target.waiting.clear();
    }
    target.points[target.count % Points] = report.point;
    ++target.count;
    if (report.address) {
        target.address = report.address;
        m_byAddress[*report.address] = report.key;
    }
    if (report.squawk && !isConspicuity(*report.squawk)) {
        holdSquawk(*report.squawk, report.key, report.point.time);
    }
    resolve(target, report.key);
}

void ReferenceTracks::holdSquawk(unsigned squawk, quint64 key, double time)
{
    SquawkHolder &holder = m_squawks[squawk % m_squawks.size()];
    if (holder.key == key || time - holder.time > SquawkLife) {
        holder.key = key;
        holder.time = time;
    } else {
        holder.sharedUntil = time + SquawkLife;
    }
}

ReferenceTracks::Target *ReferenceTracks::find(const RadarPlot &plot)
{
    quint64 key = 0;
    if (plot.address) {
        const auto known = m_byAddress.find(*plot.address);
        if (known == m_byAddress.end()) {
            return nullptr;
        }
        key = known->second;
    } else if (plot.squawk) {
        const SquawkHolder &holder = m_squawks[*plot.squawk % m_squawks.size()];
        if (std::abs(plot.time - holder.time) > SquawkLife || plot.time < holder.sharedUntil) {
            return nullptr;
        }
        key = holder.key;
    } else {
        return nullptr;
    }
    const auto target = m_targets.find(key);
    const bool isOther = target != m_targets.end() && plot.address && target->second.address != plot.address;
    return target == m_targets.end() || isOther ? nullptr : &target->second;
}

void ReferenceTracks::await(const Waiting &waiting)
{
    Target *target = find(waiting.plot);
    if (!target || target->count == 0) {
        return;
    }
    if (target->waiting.size() >= MostWaiting) {
        target->waiting.erase(target->waiting.begin());
    }
    target->waiting.push_back(waiting);
    const quint64 key = waiting.plot.address ? m_byAddress[*waiting.plot.address]
                                             : m_squawks[*waiting.plot.squawk % m_squawks.size()].key;
    resolve(*target, key);
}

void ReferenceTracks::resolve(Target &target, quint64 key)
{
    std::erase_if(target.waiting, [&](const Waiting &waiting) {
        return waiting.plot.time <= target.last().time && (tryMatch(target, key, waiting), true);
    });
}

bool ReferenceTracks::tryMatch(const Target &target, quint64 key, const Waiting &waiting) const
{
    const std::size_t first = target.count > Points ? target.count - Points : 0;
    for (std::size_t i = target.count - 1; i > first; --i) {
        const ReferencePoint &before = target.points[(i - 1) % Points];
        const ReferencePoint &after = target.points[i % Points];
        if (before.time <= waiting.plot.time && waiting.plot.time <= after.time) {
            const bool isNear = after.time - before.time <= m_longestGap;
            if (isNear) {
                m_onMatch(waiting, key, before, after);
            }
            return isNear;
        }
    }
    return false;
}

void ReferenceTracks::prune(double now)
{
    std::erase_if(m_targets, [now](const auto &entry) { return now - entry.second.last().time > TargetLife; });
    std::erase_if(m_byAddress, [this](const auto &entry) { return !m_targets.contains(entry.second); });
}
