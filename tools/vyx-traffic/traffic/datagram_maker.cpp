#include "traffic/datagram_maker.h"

#include <cmath>

namespace {

constexpr int NorthMarker = 1;
constexpr int SectorCrossing = 2;
constexpr std::size_t LargestRecord = 80; // octets, with three Mode S registers

int serviceCategory(const ScenarioRadar &radar)
{
    return radar.category == ScenarioRadar::TargetCategory::Cat001 ? 2 : 34;
}

} // namespace

DatagramMaker::DatagramMaker(const ScenarioRadar &radar, const QDateTime &startTime)
    : m_radar(radar), m_clock(startTime.addMSecs(std::llround(radar.errors.timeOffset * 1000))),
      m_service(serviceCategory(radar)), m_targets(TargetWriter::create(radar)), m_packer(LargestRecord)
{
}

const std::vector<QByteArray> &DatagramMaker::datagrams(const SectorReport &report)
{
    m_packer.begin();
    m_service.beginBlock();
    writeService(report);
    m_packer.endBlock(m_service);
    m_targets->encoder().beginBlock();
    for (const TargetReport &target : report.targets) {
        m_targets->write(target, m_clock.secondsOfDay(target.time));
        m_packer.recordWritten(m_targets->encoder());
    }
    m_packer.endBlock(m_targets->encoder());
    return m_packer.datagrams();
}

std::span<const unsigned char> DatagramMaker::block(const TargetReport &report)
{
    m_targets->encoder().beginBlock();
    m_targets->write(report, m_clock.secondsOfDay(report.time));
    return m_targets->encoder().block();
}

void DatagramMaker::writeService(const SectorReport &report)
{
    if (report.northMarker) {
        beginService(NorthMarker, report.time);
        if (m_service.category() == 34) {
            m_service.set("120/HGT", m_radar.antennaAltitude);
            m_service.set("120/LAT", m_radar.latitude);
            m_service.set("120/LON", m_radar.longitude);
        }
        m_service.endRecord();
    }
    beginService(SectorCrossing, report.time);
    m_service.setRaw("020", static_cast<std::uint64_t>(std::lround(report.azimuth * 256 / 360)) & 0xFF);
    m_service.endRecord();
}

void DatagramMaker::beginService(int type, double time)
{
    m_service.beginRecord();
    m_service.setRaw("010/SAC", m_radar.sac);
    m_service.setRaw("010/SIC", m_radar.sic);
    m_service.setRaw("000", static_cast<std::uint64_t>(type));
    m_service.setRaw("030", m_clock.timeBits(time));
    m_service.set("041", m_radar.rotationPeriod);
}
