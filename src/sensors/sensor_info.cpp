#include "sensors/sensor_info.h"

#include "sensors/adsb_sensor_info.h"
#include "sensors/json_reader.h"
#include "sensors/mlat_sensor_info.h"
#include "sensors/radar_sensor_info.h"
#include "sensors/sdps_sensor_info.h"
#include "sensors/smr_sensor_info.h"

namespace {
constexpr auto LocationFormat = GeoCoordinate::HighPrecision;
constexpr int LastYear = 9999;
} // namespace

SensorInfo::SensorInfo(QObject *parent) : QObject(parent) { }

void SensorInfo::setSacSic(unsigned char sac, unsigned char sic)
{
    m_sac = sac;
    m_sic = sic;
}

QJsonObject SensorInfo::jsonObject() const
{
    return {
        {QStringLiteral("type"), typeToString(type())},
        {QStringLiteral("name"), m_name},
        {QStringLiteral("description"), m_description},
        {QStringLiteral("manufacturer"), m_manufacturer},
        {QStringLiteral("model"), m_model},
        {QStringLiteral("commission_year"), m_commissionYear == 0 ? QJsonValue() : QJsonValue(m_commissionYear)},
        {QStringLiteral("sac"), m_sac},
        {QStringLiteral("sic"), m_sic},
        {QStringLiteral("location"), m_location.toATCString(LocationFormat)},
    };
}

JsonReader SensorInfo::reader(const QJsonObject &object)
{
    return {object, m_refusedValues};
}

bool SensorInfo::setJsonObject(const QJsonObject &object)
{
    m_refusedValues.clear();
    if (typeFromString(object[QLatin1String("type")].toString()) != type()) {
        return false;
    }
    const auto location = GeoCoordinate::fromATCString(object[QLatin1String("location")].toString(), LocationFormat);
    if (!location.isValid()) {
        return false;
    }
    auto values = reader(object);
    m_name = values.text("name");
    m_description = values.text("description");
    m_manufacturer = values.text("manufacturer");
    m_model = values.text("model");
    const bool hasYear = !object[QLatin1String("commission_year")].isNull();
    m_commissionYear = static_cast<unsigned short>(hasYear ? values.integer("commission_year", 0, LastYear, 0) : 0);
    m_sac = static_cast<unsigned char>(values.integer("sac", 0, 255, m_sac));
    m_sic = static_cast<unsigned char>(values.integer("sic", 0, 255, m_sic));
    m_location = location;
    return true;
}

QSharedPointer<SensorInfo> SensorInfo::create(Type type, QObject *parent)
{
    switch (type) {
    case RadarSensor:
        return QSharedPointer<RadarSensorInfo>::create(parent);
    case AdsbSensor:
        return QSharedPointer<AdsbSensorInfo>::create(parent);
    case MlatSensor:
        return QSharedPointer<MlatSensorInfo>::create(parent);
    case SdpsSensor:
        return QSharedPointer<SdpsSensorInfo>::create(parent);
    case SmrSensor:
        return QSharedPointer<SmrSensorInfo>::create(parent);
    case UnknownSensor:
        break;
    }
    return {};
}

QSharedPointer<SensorInfo> SensorInfo::create(const QJsonObject &object, QObject *parent)
{
    auto sensor = create(typeFromString(object[QLatin1String("type")].toString()), parent);
    if (sensor && !sensor->setJsonObject(object)) {
        sensor.reset();
    }
    return sensor;
}
