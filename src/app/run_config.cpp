#include "app/run_config.h"

#include <tuple>

namespace {

// The keys that a run may override.
constexpr auto overridable = std::make_tuple(&Config::inputComm, &Config::inputUdpMulticast1,
    &Config::inputUdpMcastLanInterface1, &Config::inputUdpMcastAddress1, &Config::inputUdpPort1, &Config::inputEnable2,
    &Config::inputUdpMulticast2, &Config::inputUdpMcastLanInterface2, &Config::inputUdpMcastAddress2,
    &Config::inputUdpPort2, &Config::inputSerialDevice, &Config::inputSerialBaudRate, &Config::inputFileName,
    &Config::inputFileAutoRewind, &Config::processorType, &Config::processorAsterixFormat, &Config::processorAsterixUap,
    &Config::processorAsterixVerifySacSic, &Config::sensorType, &Config::sensorName, &Config::sensorSac,
    &Config::sensorSic, &Config::sensorLocation, &Config::sensorRadarAntennaAltitude,
    &Config::sensorRadarRotationPeriod, &Config::sensorRadarIsPrimary, &Config::sensorRadarIsSecondary,
    &Config::sensorRadarIsModeS, &Config::sensorRadarCoveragePrimary, &Config::sensorRadarCoverageSecondary,
    &Config::sensorAdsbCoverage, &Config::sensorAdsbUpdateInterval, &Config::sensorMlatCoverage,
    &Config::sensorSdpsCoverage, &Config::sensorSdpsUpdateInterval, &Config::sensorSmrAntennaAltitude,
    &Config::sensorSmrRotationPeriod, &Config::sensorSmrCoverage);

template <typename T>
bool same(const T &a, const T &b)
{
    return a == b;
}

bool same(const QNetworkInterface &a, const QNetworkInterface &b)
{
    return a.name() == b.name();
}

// A key that still has the run's own value goes back to the stored one.
template <typename T>
void keepStored(Config &edited, const Config &live, const Config &stored, T Config::*key)
{
    if (same(edited.*key, live.*key) && !same(live.*key, stored.*key)) {
        edited.*key = stored.*key;
    }
}

} // namespace

RunConfig::RunConfig(const QString &fileName) : m_fileName(fileName)
{
    m_stored.load(fileName);
    m_live = m_stored;
}

void RunConfig::overrideWith(const std::function<void(Config &)> &change)
{
    change(m_live);
}

void RunConfig::apply(const Config &edited)
{
    Config stored = edited;
    std::apply([&](auto... keys) { (keepStored(stored, m_live, m_stored, keys), ...); }, overridable);
    m_stored = stored;
    m_live = edited;
    m_stored.save(m_fileName);
}

void RunConfig::edit(const std::function<void(Config &)> &change)
{
    Config edited = m_live;
    change(edited);
    apply(edited);
}
