#include "traffic/datagram_maker.h"

#include <cmath>

namespace {

constexpr int NorthMarker = 1;
constexpr int SectorCrossing = 2;
constexpr double SecondsADay = 86400;
constexpr std::size_t LargestRecord = 80; // octets, with three Mode S registers

int serviceCategory(const ScenarioRadar &radar)
{
    return radar.category == ScenarioRadar::TargetCategory::Cat001 ? 2 : 34;
}

} // namespace

DatagramMaker::DatagramMaker(const ScenarioRadar &radar, const QDateTime &startTime)
    : m_radar(radar), m_startOfDay(startTime.toUTC().time().msecsSinceStartOfDay() / 1000.0),
      m_service(serviceCategory(radar)), m_targets(TargetWriter::create(radar))
{
}

const std::vector<QByteArray> &DatagramMaker::datagrams(const SectorReport &report)
{
    m_datagrams.clear();
    m_datagrams.emplace_back();
    writeService(report);
    appendBlock(m_service.block());
    appendTargets(report.targets);
    return m_datagrams;
}

std::span<const unsigned char> DatagramMaker::block(const TargetReport &report)
{
    m_targets->encoder().beginBlock();
    m_targets->write(report, secondsOfDay(report.time));
    return m_targets->encoder().block();
}

double DatagramMaker::secondsOfDay(double time) const
{
    const double seconds = std::fmod(m_startOfDay + time, SecondsADay);
    return seconds < 0 ? seconds + SecondsADay : seconds;
}

void DatagramMaker::writeService(const SectorReport &report)
{
    m_service.beginBlock();
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
    m_service.setRaw("030", timeBits(secondsOfDay(time)));
    m_service.set("041", m_radar.rotationPeriod);
}

void DatagramMaker::appendTargets(const std::vector<TargetReport> &targets)
{
    korvane::asterix::BlockEncoder &encoder = m_targets->encoder();
    encoder.beginBlock();
    for (const TargetReport &target : targets) {
        const std::size_t used = static_cast<std::size_t>(m_datagrams.back().size()) + encoder.block().size();
        if (used + LargestRecord > LargestDatagram) {
            appendBlock(encoder.block());
            encoder.beginBlock();
            m_datagrams.emplace_back();
        }
        m_targets->write(target, secondsOfDay(target.time));
    }
    if (encoder.recordCount() > 0)
        appendBlock(encoder.block());
}

void DatagramMaker::appendBlock(std::span<const unsigned char> block)
{
    m_datagrams.back().append(reinterpret_cast<const char *>(block.data()), static_cast<qsizetype>(block.size()));
}
