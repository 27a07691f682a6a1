#include "traffic/safety_net_station.h"

#include "traffic/earth.h"

#include <cmath>
#include <string>

namespace {

enum MessageType { Alive = 1, Msaw = 4, Apw = 5, Stca = 7, EndOfConflict = 17 };

constexpr std::size_t LargestRecord = 130; // octets
constexpr double PredictionStep = 4; // seconds between two places of a flight that areas are looked through for
constexpr std::size_t PlanCallsign = 7; // characters
constexpr double FastestLevel = 200; // feet per minute

// What the closest pairs approach each other by at most, for leaving out all others early.
constexpr double FastestClosing = 1200 * Earth::MetresPerNauticalMile / 3600; // metres per second
constexpr double MetresPerDegree = 111000;

} // namespace

SafetyNetStation::SafetyNetStation(const ScenarioSafetyNet &net, const Scenario &scenario, const TrafficStation &tracks)
    : m_net(net), m_tracks(tracks), m_clock(scenario.startTime), m_encoder(4), m_packer(LargestRecord)
{
}

double SafetyNetStation::nextTime() const
{
    return static_cast<double>(m_looks) * m_net.interval;
}

const std::vector<QByteArray> &SafetyNetStation::next(const AirTraffic &traffic)
{
    const double time = nextTime();
    m_packer.begin();
    m_encoder.beginBlock();
    if (time >= m_nextAlive) {
        sendAlive(time);
    }
    Targets targets;
    for (const AirTarget &target : traffic.targets()) {
        if (m_tracks.trackNumber(target.id) != 0) {
            targets.push_back(&target);
        }
    }
    if (m_net.stca) {
        watchConflicts(targets, time);
    }
    watchAreas(targets, m_net.minimumAltitudes, Msaw, time);
    watchAreas(targets, m_net.restrictedAreas, Apw, time);
    endOthers(time);
    m_packer.endBlock(m_encoder);
    ++m_looks;
    return m_packer.datagrams();
}

void SafetyNetStation::sendAlive(double time)
{
    beginMessage(Alive, time);
    m_encoder.setRaw("060/MSAW", m_net.minimumAltitudes.empty() ? 0 : 1);
    m_encoder.setRaw("060/APW", m_net.restrictedAreas.empty() ? 0 : 1);
    m_encoder.setRaw("060/STCA", m_net.stca ? 1 : 0);
    endMessage();
    m_nextAlive = time + m_net.aliveInterval;
}

void SafetyNetStation::watchConflicts(const Targets &targets, double time)
{
    const Separation minimum{m_net.horizontalSeparation * Earth::MetresPerNauticalMile, m_net.verticalSeparation};
    const double farthest = (minimum.horizontal + FastestClosing * m_net.lookAhead) / MetresPerDegree; // degrees north
    for (std::size_t i = 0; i < targets.size(); ++i) {
        const AirTarget &one = *targets[i];
        for (std::size_t j = i + 1; j < targets.size(); ++j) {
            const AirTarget &other = *targets[j];
            if (std::abs(one.aircraft.state().latitude - other.aircraft.state().latitude) > farthest) {
                continue;
            }
            if (const auto conflict = predictConflict(one.aircraft, other.aircraft, minimum, m_net.lookAhead)) {
                sendConflict(one, other, *conflict, time);
            }
        }
    }
}

void SafetyNetStation::watchAreas(
    const Targets &targets, const std::vector<ScenarioArea> &areas, int messageType, double time)
{
    for (const AirTarget *target : targets) {
        // The first place counts that is inside.
        std::vector<double> entries(areas.size(), -1);
        for (double seconds = 0; seconds <= m_net.areaLookAhead && !areas.empty(); seconds += PredictionStep) {
            const Prediction place = predict(target->aircraft, seconds);
            for (std::size_t i = 0; i < areas.size(); ++i) {
                if (entries[i] < 0 && isInside(areas[i], place)) {
                    entries[i] = seconds;
                }
            }
        }
        for (std::size_t i = 0; i < areas.size(); ++i) {
            if (entries[i] >= 0) {
                sendIntrusion(*target, areas[i], i, messageType, entries[i], time);
            }
        }
    }
}

void SafetyNetStation::sendConflict(const AirTarget &one, const AirTarget &other, const Conflict &conflict, double time)
{
    beginAlert({Stca, one.id, other.id}, time);
    setAircraft("170", one, conflict.start, time);
    setAircraft("171", other, conflict.start, time);
    setSeparations(conflict);
    endMessage();
}

void SafetyNetStation::sendIntrusion(
    const AirTarget &target, const ScenarioArea &area, std::size_t index, int messageType, double seconds, double time)
{
    beginAlert({messageType, target.id, index}, time);
    setAircraft("170", target, seconds, time);
    m_encoder.setText("100/AN", area.name.toStdString());
    endMessage();
}

// Alerts that this look has not found are over.
void SafetyNetStation::endOthers(double time)
{
    for (auto it = m_alerts.begin(); it != m_alerts.end();) {
        const Alert &alert = it->second;
        if (alert.lastTime == time) {
            ++it;
            continue;
        }
        beginMessage(EndOfConflict, time);
        m_encoder.setRaw("040", alert.id);
        m_encoder.setRaw("030", alert.trackNumber);
        if (alert.otherTrackNumber != 0) {
            m_encoder.setRaw("035", alert.otherTrackNumber);
        }
        endMessage();
        it = m_alerts.erase(it);
    }
}

void SafetyNetStation::beginMessage(int messageType, double time)
{
    m_encoder.beginRecord();
    m_encoder.setRaw("010/SAC", m_net.sac);
    m_encoder.setRaw("010/SIC", m_net.sic);
    m_encoder.setRaw("000", static_cast<std::uint64_t>(messageType));
    m_encoder.setRaw("020", m_clock.timeBits(time));
}

void SafetyNetStation::beginAlert(const Subject &subject, double time)
{
    Alert &alert = m_alerts[subject];
    if (alert.id == 0) {
        m_lastId = m_lastId == 0xFFFF ? 1 : static_cast<std::uint16_t>(m_lastId + 1);
        alert.id = m_lastId;
    }
    alert.lastTime = time;
    alert.trackNumber = m_tracks.trackNumber(subject.target);
    alert.otherTrackNumber = subject.messageType == Stca ? m_tracks.trackNumber(subject.other) : 0;
    beginMessage(subject.messageType, time);
    m_encoder.setRaw("040", alert.id);
    m_encoder.setRaw("030", alert.trackNumber);
    if (alert.otherTrackNumber != 0) {
        m_encoder.setRaw("035", alert.otherTrackNumber);
    }
}

// item: 170 or 171, whose fields end in 1 and 2. seconds: until the threshold is passed.
void SafetyNetStation::setAircraft(const char *item, const AirTarget &target, double seconds, double time)
{
    const std::string prefix = std::string(item) + '/';
    const char number = item[2] == '0' ? '1' : '2';
    const std::string callsign = target.flight->callsign.left(PlanCallsign).toStdString();
    if (!callsign.empty()) {
        m_encoder.setText(prefix + "AI" + number, callsign);
    }
    if (target.flight->transponder != ScenarioFlight::Transponder::None) {
        m_encoder.setRaw(prefix + "M3" + number + "/MODE3A", target.squawkAt(time));
    }
    const Prediction place = predict(target.aircraft, seconds);
    m_encoder.set(prefix + "CPW/LAT", place.latitude);
    m_encoder.set(prefix + "CPW/LON", place.longitude);
    m_encoder.set(prefix + "CPW/ALT", place.altitude);
    m_encoder.set(prefix + "TT" + number, seconds);
    const double rate = target.aircraft.state().verticalRate;
    m_encoder.setRaw(prefix + "AC" + number + "/CDM", std::abs(rate) <= FastestLevel ? 0 : rate > 0 ? 1 : 2);
}

void SafetyNetStation::setSeparations(const Conflict &conflict)
{
    m_encoder.set("070/TC", conflict.start);
    m_encoder.set("070/TCA", conflict.closestAt);
    m_encoder.set("070/CHS", conflict.now.horizontal);
    m_encoder.set("070/MHS", std::fmin(conflict.closest.horizontal, 32767));
    m_encoder.set("070/CVS", conflict.now.vertical);
    m_encoder.set("070/MVS", conflict.closest.vertical);
}

void SafetyNetStation::endMessage()
{
    m_encoder.endRecord();
    m_packer.recordWritten(m_encoder);
}
