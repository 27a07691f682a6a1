#include "app/config.h"
#include "sensors/adsb_sensor_info.h"
#include "sensors/mlat_sensor_info.h"
#include "sensors/radar_sensor_info.h"
#include "sensors/sdps_sensor_info.h"
#include "sensors/smr_sensor_info.h"

// The part of the configuration that deals in sensor records.

namespace {

void read(Config &config, const RadarSensorInfo &sensor)
{
    config.sensorRadarAntennaAltitude = sensor.antennaAltitude();
    config.sensorRadarRotationPeriod = sensor.rotationPeriod();
    config.sensorRadarIsPrimary = sensor.isPrimary();
    config.sensorRadarIsSecondary = sensor.isSecondary();
    config.sensorRadarIsModeS = sensor.isModeS();
    config.sensorRadarCoveragePrimary = static_cast<int>(sensor.coveragePrimary());
    config.sensorRadarCoverageSecondary = static_cast<int>(sensor.coverageSecondary());
}

void write(const Config &config, RadarSensorInfo &sensor)
{
    sensor.setAntennaAltitude(config.sensorRadarAntennaAltitude);
    sensor.setRotationPeriod(config.sensorRadarRotationPeriod);
    sensor.setRadarType(config.sensorRadarIsPrimary, config.sensorRadarIsSecondary, config.sensorRadarIsModeS);
    sensor.setCoveragePrimary(static_cast<unsigned int>(config.sensorRadarCoveragePrimary));
    sensor.setCoverageSecondary(static_cast<unsigned int>(config.sensorRadarCoverageSecondary));
}

void read(Config &config, const AdsbSensorInfo &sensor)
{
    config.sensorAdsbCoverage = static_cast<int>(sensor.coverage());
    config.sensorAdsbUpdateInterval = sensor.updateInterval();
}

void write(const Config &config, AdsbSensorInfo &sensor)
{
    sensor.setCoverage(static_cast<unsigned int>(config.sensorAdsbCoverage));
    sensor.setUpdateInterval(config.sensorAdsbUpdateInterval);
}

void read(Config &config, const MlatSensorInfo &sensor)
{
    config.sensorMlatCoverage = static_cast<int>(sensor.coverage());
}

void write(const Config &config, MlatSensorInfo &sensor)
{
    sensor.setCoverage(static_cast<unsigned int>(config.sensorMlatCoverage));
}

void read(Config &config, const SdpsSensorInfo &sensor)
{
    config.sensorSdpsCoverage = static_cast<int>(sensor.coverage());
    config.sensorSdpsUpdateInterval = sensor.updateInterval();
}

void write(const Config &config, SdpsSensorInfo &sensor)
{
    sensor.setCoverage(static_cast<unsigned int>(config.sensorSdpsCoverage));
    sensor.setUpdateInterval(config.sensorSdpsUpdateInterval);
}

void read(Config &config, const SmrSensorInfo &sensor)
{
    config.sensorSmrAntennaAltitude = sensor.antennaAltitude();
    config.sensorSmrRotationPeriod = sensor.rotationPeriod();
    config.sensorSmrCoverage = sensor.coverage();
}

void write(const Config &config, SmrSensorInfo &sensor)
{
    sensor.setAntennaAltitude(config.sensorSmrAntennaAltitude);
    sensor.setRotationPeriod(config.sensorSmrRotationPeriod);
    sensor.setCoverage(config.sensorSmrCoverage);
}

// Calls visit with the record as what it is.
template <typename Visit>
void visitSensor(SensorInfo &sensor, Visit visit)
{
    if (auto *radar = dynamic_cast<RadarSensorInfo *>(&sensor)) {
        visit(*radar);
    } else if (auto *adsb = dynamic_cast<AdsbSensorInfo *>(&sensor)) {
        visit(*adsb);
    } else if (auto *mlat = dynamic_cast<MlatSensorInfo *>(&sensor)) {
        visit(*mlat);
    } else if (auto *sdps = dynamic_cast<SdpsSensorInfo *>(&sensor)) {
        visit(*sdps);
    } else if (auto *smr = dynamic_cast<SmrSensorInfo *>(&sensor)) {
        visit(*smr);
    }
}

} // namespace

bool Config::setSensor(const QSharedPointer<SensorInfo> &sensor)
{
    if (!sensor) {
        return false;
    }
    sensorName = sensor->name();
    sensorType = sensor->type();
    sensorSac = sensor->sac();
    sensorSic = sensor->sic();
    sensorLocation = sensor->location();
    visitSensor(*sensor, [this](const auto &record) { read(*this, record); });
    return true;
}

QSharedPointer<SensorInfo> Config::sensor(QObject *parent) const
{
    const auto sensor = SensorInfo::create(sensorType, parent);
    if (!sensor) {
        return {};
    }
    sensor->setName(sensorName);
    sensor->setSacSic(sensorSac, sensorSic);
    sensor->setLocation(sensorLocation);
    visitSensor(*sensor, [this](auto &record) { write(*this, record); });
    return sensor;
}
