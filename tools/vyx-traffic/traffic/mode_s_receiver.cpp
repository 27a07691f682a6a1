#include "traffic/mode_s_receiver.h"

#include "traffic/datagram_packer.h"
#include "traffic/earth.h"

#include <algorithm>
#include <cmath>

namespace {

using korvane::modes::ModeSEncapsulation;
using korvane::modes::ModeSFrame;

constexpr int TicksASecond = 10;
// In ticks. What is sent more often than once in this cycle divides it.
constexpr int Cycle = 200;
constexpr int PositionEach = 5; // even and odd by turns
constexpr int VelocityEach = 5;
constexpr int IdentificationEach = 50;
constexpr int AllCallEach = 10;
constexpr int EmergencyEach = 10;
constexpr int ReplyEach = 40;

constexpr double CounterFrequency = 12e6; // hertz
constexpr std::uint64_t CounterMask = (1ULL << 48) - 1;
constexpr double FrameSpacing = 0.0015; // seconds between two frames of one aircraft
constexpr std::size_t LargestFrame = 50; // octets, with its framing
constexpr unsigned AlertAirborne = 2; // flight status of an emergency code
constexpr unsigned GeneralEmergency = 1;
constexpr unsigned LargeAircraft = 3;

std::uint64_t messageField(const ModeSRegister &bds)
{
    std::uint64_t field = 0;
    for (const std::uint8_t octet : bds.octets) {
        field = field << 8 | octet;
    }
    return field;
}

int altitudeOf(const Aircraft::State &state)
{
    return static_cast<int>(std::lround(state.altitude / 25)) * 25;
}

} // namespace

ModeSReceiver::ModeSReceiver(const ScenarioModeSReceiver &receiver, const Scenario &scenario)
    : m_receiver(receiver), m_magneticVariation(scenario.magneticVariation)
{
}

double ModeSReceiver::nextTime() const
{
    return static_cast<double>(m_tick) / TicksASecond;
}

double ModeSReceiver::lookInterval() const
{
    return 1.0 * PositionEach / TicksASecond;
}

const std::vector<QByteArray> &ModeSReceiver::next(const AirTraffic &traffic)
{
    const double time = nextTime();
    m_datagrams.clear();
    m_octets.clear();
    for (const AirTarget &target : traffic.targets()) {
        if (hears(target) && !target.hiddenAt(time, 1)) {
            receive(target, time);
        }
    }
    if (!m_octets.empty()) {
        m_datagrams.push_back(QByteArray::fromStdString(m_octets));
    }
    ++m_tick;
    return m_datagrams;
}

bool ModeSReceiver::hears(const AirTarget &target) const
{
    if (target.endedAt || target.flight->vehicle || target.flight->transponder != ScenarioFlight::Transponder::ModeS) {
        return false;
    }
    const Aircraft::State &state = target.aircraft.state();
    const double miles = Earth::distance(m_receiver.latitude, m_receiver.longitude, state.latitude, state.longitude)
        / Earth::MetresPerNauticalMile;
    return miles
        <= std::min<double>(m_receiver.coverage, Earth::radioHorizon(state.altitude, m_receiver.antennaAltitude));
}

// Each aircraft has a phase of its own.
void ModeSReceiver::receive(const AirTarget &target, double time)
{
    const auto phase = static_cast<int>((static_cast<std::uint64_t>(m_tick) + target.id * 7) % Cycle);
    m_framesOfTarget = 0;
    receiveSquitters(target, phase, time);
    receiveReplies(target, phase, time);
}

void ModeSReceiver::receiveSquitters(const AirTarget &target, int phase, double time)
{
    const Aircraft::State &state = target.aircraft.state();
    const std::uint32_t address = target.flight->address;
    if (phase % PositionEach == 0) {
        const bool isOdd = phase / PositionEach % 2 == 1;
        append(korvane::modes::encodeAirbornePosition(
                   address, {state.latitude, state.longitude}, altitudeOf(state), isOdd),
            target, time);
    }
    if (phase % VelocityEach == 2) {
        append(korvane::modes::encodeVelocity(
                   address, state.speed, state.track, static_cast<int>(std::lround(state.verticalRate))),
            target, time);
    }
    if (phase % IdentificationEach == 1) {
        append(korvane::modes::encodeIdentification(address, 'A', LargeAircraft, target.flight->callsign.toStdString()),
            target, time);
    }
    const std::uint16_t squawk = target.squawkAt(time);
    if (isEmergency(squawk) && phase % EmergencyEach == 6) {
        append(korvane::modes::encodeEmergency(address, squawk, GeneralEmergency), target, time);
    }
}

void ModeSReceiver::receiveReplies(const AirTarget &target, int phase, double time)
{
    const Aircraft::State &state = target.aircraft.state();
    const std::uint32_t address = target.flight->address;
    const std::uint16_t squawk = target.squawkAt(time);
    const unsigned status = isEmergency(squawk) ? AlertAirborne : 0;
    if (phase % AllCallEach == 3) {
        append(korvane::modes::encodeAllCall(address), target, time);
    }
    switch (phase % ReplyEach) {
    case 4:
        append(korvane::modes::encodeCommBAltitude(address, altitudeOf(state),
                   messageField(selectedVerticalIntention(target.aircraft.selectedAltitude())), status),
            target, time);
        break;
    case 14:
        append(korvane::modes::encodeCommBIdentity(
                   address, squawk, messageField(headingAndSpeed(state, m_magneticVariation)), status),
            target, time);
        break;
    case 24:
        append(korvane::modes::encodeAltitudeReply(address, altitudeOf(state), status), target, time);
        break;
    case 34:
        append(korvane::modes::encodeIdentityReply(address, squawk, status), target, time);
        break;
    default:
        break;
    }
}

void ModeSReceiver::append(ModeSFrame frame, const AirTarget &target, double time)
{
    const double received =
        time + static_cast<double>(target.id % 64) / 64 / TicksASecond + m_framesOfTarget++ * FrameSpacing;
    frame.ticks = static_cast<std::uint64_t>(std::llround(received * CounterFrequency)) & CounterMask;
    frame.signalLevel = static_cast<std::uint8_t>(60 + target.id * 29 % 160);
    const bool isBeast = m_receiver.format == ScenarioModeSReceiver::Format::Beast;
    korvane::modes::appendEncapsulated(m_octets, frame, isBeast ? ModeSEncapsulation::Beast : ModeSEncapsulation::Avr);
    if (m_octets.size() + LargestFrame <= DatagramPacker::LargestDatagram) {
        return;
    }
    m_datagrams.push_back(QByteArray::fromStdString(m_octets));
    m_octets.clear();
}
