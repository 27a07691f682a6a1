#include "traffic/target_writer.h"

#include "traffic/earth.h"

#include <cmath>

namespace {

constexpr double SecondsAnHour = 3600;
constexpr std::uint64_t TimeUnitsADay = 86400ULL * 128;

// Monoradar target reports with Mode S data.
class Cat048Writer : public TargetWriter {
public:
    explicit Cat048Writer(const ScenarioRadar &radar);

    void write(const TargetReport &report, double secondsOfDay) final;

private:
    void writeModeS(const TargetReport &report);
    void writeStatus(const TargetReport &report);

    Handle m_time = m_encoder.find("140");
    Handle m_type = m_encoder.find("020/TYP");
    Handle m_simulated = m_encoder.find("020/SIM");
    Handle m_address = m_encoder.find("220");
    Handle m_callsign = m_encoder.find("240");
    Handle m_registers = m_encoder.find("250");
    Handle m_registerOctets = m_encoder.find("250/MBDATA");
    Handle m_bds1 = m_encoder.find("250/BDS1");
    Handle m_bds2 = m_encoder.find("250/BDS2");
    Handle m_trackNumber = m_encoder.find("161/TRN");
    Handle m_tentative = m_encoder.find("170/CNF");
    Handle m_sensors = m_encoder.find("170/RAD");
    Handle m_climb = m_encoder.find("170/CDM");
    Handle m_trackEnd = m_encoder.find("170/TRE");
    Handle m_communications = m_encoder.find("230/COM");
    Handle m_flightStatus = m_encoder.find("230/STAT");
    Handle m_specificServices = m_encoder.find("230/MSSC");
    Handle m_fineAltitude = m_encoder.find("230/ARC");
    Handle m_identification = m_encoder.find("230/AIC");
};

Cat048Writer::Cat048Writer(const ScenarioRadar &radar) : TargetWriter(48, nullptr, radar) { }

void Cat048Writer::write(const TargetReport &report, double secondsOfDay)
{
    beginRecord();
    m_encoder.setRaw(m_time, timeBits(secondsOfDay));
    const int detection = (report.byPrimary ? 1 : 0) + (report.bySecondary ? 2 : 0);
    const int rollCall = report.byPrimary ? 7 : 5;
    m_encoder.setRaw(m_type, static_cast<std::uint64_t>(report.byModeS && report.bySecondary ? rollCall : detection));
    m_encoder.setRaw(m_simulated, 1);
    writePosition(report, 256);
    if (report.trackNumber != 0) {
        writeVelocity(report);
    }
    writeCodes(report);
    if (report.byModeS) {
        writeModeS(report);
    }
    if (report.trackNumber != 0) {
        m_encoder.setRaw(m_trackNumber, report.trackNumber);
        writeStatus(report);
    }
    m_encoder.endRecord();
}

void Cat048Writer::writeModeS(const TargetReport &report)
{
    m_encoder.setRaw(m_address, report.address);
    if (!report.callsign.isEmpty()) {
        m_encoder.setText(m_callsign, report.callsign.toStdString());
    }
    for (const ModeSRegister &bds : report.registers) {
        m_encoder.addRepetition(m_registers);
        m_encoder.setExplicit(m_registerOctets, bds.octets);
        m_encoder.setRaw(m_bds1, bds.code >> 4);
        m_encoder.setRaw(m_bds2, bds.code & 0x0F);
    }
    m_encoder.setRaw(m_communications, 1);
    m_encoder.setRaw(m_flightStatus, isEmergency(report.squawk) ? 2 : 0);
    m_encoder.setRaw(m_specificServices, 1);
    m_encoder.setRaw(m_fineAltitude, 1);
    m_encoder.setRaw(m_identification, 1);
}

void Cat048Writer::writeStatus(const TargetReport &report)
{
    m_encoder.setRaw(m_tentative, report.tentative);
    if (report.byPrimary != report.bySecondary) {
        m_encoder.setRaw(m_sensors, report.byPrimary ? 1 : 2);
    }
    if (!report.codesValid) {
        m_encoder.setRaw(m_climb, 3);
    } else if (std::abs(report.verticalRate) > 200) {
        m_encoder.setRaw(m_climb, report.verticalRate > 0 ? 1 : 2);
    }
    if (report.trackEnd) {
        m_encoder.setRaw(m_trackEnd, 1);
    }
}

// Monoradar tracks without Mode S data.
class Cat001Writer : public TargetWriter {
public:
    explicit Cat001Writer(const ScenarioRadar &radar);

    void write(const TargetReport &report, double secondsOfDay) final;

private:
    Handle m_time = m_encoder.find("141");
    Handle m_simulated = m_encoder.find("020/SIM");
    Handle m_detection = m_encoder.find("020/SSRPSR");
    Handle m_emergency = m_encoder.find("020/DS1DS2");
    Handle m_trackNumber = m_encoder.find("161");
    Handle m_tentative = m_encoder.find("170/CON");
    Handle m_sensors = m_encoder.find("170/RAD");
    Handle m_trackEnd = m_encoder.find("170/TRE");
};

Cat001Writer::Cat001Writer(const ScenarioRadar &radar) : TargetWriter(1, "track", radar) { }

void Cat001Writer::write(const TargetReport &report, double secondsOfDay)
{
    beginRecord();
    m_encoder.setRaw(m_time, timeBits(secondsOfDay) & 0xFFFF);
    m_encoder.setRaw(m_simulated, 1);
    m_encoder.setRaw(
        m_detection, static_cast<std::uint64_t>((report.byPrimary ? 1 : 0) + (report.bySecondary ? 2 : 0)));
    if (isEmergency(report.squawk)) {
        m_encoder.setRaw(m_emergency, (report.squawk >> 6 & 7) - 4U);
    }
    writePosition(report, 512);
    writeVelocity(report);
    writeCodes(report);
    m_encoder.setRaw(m_trackNumber, report.trackNumber);
    m_encoder.setRaw(m_tentative, report.tentative);
    m_encoder.setRaw(m_sensors, report.bySecondary);
    if (report.trackEnd) {
        m_encoder.setRaw(m_trackEnd, 1);
    }
    m_encoder.endRecord();
}

} // namespace

std::unique_ptr<TargetWriter> TargetWriter::create(const ScenarioRadar &radar)
{
    if (radar.category == ScenarioRadar::TargetCategory::Cat001) {
        return std::make_unique<Cat001Writer>(radar);
    }
    return std::make_unique<Cat048Writer>(radar);
}

TargetWriter::TargetWriter(int category, const char *variation, const ScenarioRadar &radar)
    : m_encoder(category, nullptr, variation), m_radar(radar), m_sac(m_encoder.find("010/SAC")),
      m_sic(m_encoder.find("010/SIC")), m_rho(m_encoder.find("040/RHO")), m_theta(m_encoder.find("040/THETA")),
      m_x(m_encoder.find("042/X")), m_y(m_encoder.find("042/Y")), m_groundSpeed(m_encoder.find("200/GSP")),
      m_heading(m_encoder.find("200/HDG")), m_squawk(m_encoder.find("070/MODE3A")),
      m_level(m_encoder.find(category == 1 ? "090/HGT" : "090/FL"))
{
}

void TargetWriter::beginRecord()
{
    m_encoder.beginRecord();
    m_encoder.setRaw(m_sac, m_radar.sac);
    m_encoder.setRaw(m_sic, m_radar.sic);
}

void TargetWriter::writePosition(const TargetReport &report, double cartesianLimit)
{
    if (!report.positionValid) {
        return;
    }
    m_encoder.set(m_rho, report.slantRange);
    m_encoder.setRaw(m_theta, angleBits(report.azimuth));
    if (report.slantRange >= cartesianLimit) {
        return;
    }
    m_encoder.set(m_x, report.slantRange * std::sin(Earth::radians(report.azimuth)));
    m_encoder.set(m_y, report.slantRange * std::cos(Earth::radians(report.azimuth)));
}

void TargetWriter::writeVelocity(const TargetReport &report)
{
    if (!report.positionValid) {
        return;
    }
    m_encoder.set(m_groundSpeed, report.speed / SecondsAnHour);
    m_encoder.setRaw(m_heading, angleBits(report.track));
}

void TargetWriter::writeCodes(const TargetReport &report)
{
    if (!report.codesValid) {
        return;
    }
    m_encoder.setRaw(m_squawk, report.squawk);
    m_encoder.set(m_level, report.flightLevelQuarters / 4.0);
}

std::uint64_t angleBits(double degrees)
{
    return static_cast<std::uint64_t>(std::llround(Earth::normalized(degrees) * 65536 / 360)) & 0xFFFF;
}

std::uint64_t timeBits(double secondsOfDay)
{
    return static_cast<std::uint64_t>(std::llround(secondsOfDay * 128)) % TimeUnitsADay;
}
