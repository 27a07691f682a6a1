#include "traffic/cyclic_station.h"

#include "traffic/earth.h"
#include "traffic/target_writer.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double SlotLength = 0.125; // seconds, about
constexpr double MostSlots = 32;
constexpr int TentativeReports = 2;

} // namespace

CyclicStation::CyclicStation(
    const ScenarioSource &source, const QDateTime &startTime, double interval, const Format &format)
    : m_source(source), m_clock(startTime), m_interval(interval),
      m_slots(static_cast<int>(std::clamp(std::round(interval / SlotLength), 1.0, MostSlots))),
      m_encoder(format.category, format.edition.empty() ? nullptr : format.edition.c_str()),
      m_packer(format.largestRecord), m_numbers(format.lastTrackNumber)
{
}

double CyclicStation::nextTime() const
{
    return static_cast<double>(m_slot) * m_interval / m_slots;
}

const std::vector<QByteArray> &CyclicStation::next(const AirTraffic &traffic)
{
    const double time = nextTime();
    const auto slots = static_cast<std::uint64_t>(m_slots);
    const std::uint64_t slot = static_cast<std::uint64_t>(m_slot) % slots;
    m_packer.begin();
    m_encoder.beginBlock();
    if (slot == 0) {
        beginCycle(time);
    }
    for (const AirTarget &target : traffic.targets()) {
        if (target.id % slots == slot) {
            look(target, time);
        }
    }
    m_packer.endBlock(m_encoder);
    ++m_slot;
    return m_packer.datagrams();
}

void CyclicStation::look(const AirTarget &target, double time)
{
    const bool isLeaving = target.endedAt || !sees(target);
    const auto known = m_tracks.find(target.id);
    if (isLeaving && known == m_tracks.end()) {
        return;
    }
    Track &track = known == m_tracks.end() ? m_tracks[target.id] : known->second;
    const bool isHidden = target.hiddenAt(time, m_interval);
    if (track.number == 0 && !isHidden) {
        track.number = m_numbers.take();
    }
    if (track.number != 0) {
        ++track.reports;
        report({target, time, track.number, track.reports <= TentativeReports, isHidden, isLeaving});
        m_packer.recordWritten(m_encoder);
    }
    if (isLeaving) {
        m_numbers.giveBack(track.number);
        m_tracks.erase(target.id);
    }
}

std::uint16_t CyclicStation::trackNumber(std::uint64_t target) const
{
    const auto track = m_tracks.find(target);
    return track == m_tracks.end() ? 0 : track->second.number;
}

void CyclicStation::beginRecord()
{
    m_encoder.beginRecord();
    m_encoder.setRaw("010/SAC", m_source.sac);
    m_encoder.setRaw("010/SIC", m_source.sic);
}

void CyclicStation::setEither(const char *path, const char *otherPath, double value)
{
    if (!m_encoder.set(path, value)) {
        m_encoder.set(otherPath, value);
    }
}

void CyclicStation::setAngle(const char *path, double degrees)
{
    m_encoder.setRaw(path, angleBits(degrees));
}

double CyclicStation::milesTo(const AirTarget &target) const
{
    const Aircraft::State &state = target.aircraft.state();
    return Earth::distance(m_source.latitude, m_source.longitude, state.latitude, state.longitude)
        / Earth::MetresPerNauticalMile;
}
