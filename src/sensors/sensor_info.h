#pragma once

#include "geo/geo_coordinate.h"
#include "sensors/sensor_type.h"

#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

#include <optional>

class JsonReader;

// One source of surveillance data. What only some kinds of sensor have stands in the subclasses; what others ask every
// sensor stands here.
class SensorInfo : public QObject {
    Q_OBJECT

public:
    using Type = SensorType;
    using enum SensorType;

    explicit SensorInfo(QObject *parent = nullptr);

    virtual Type type() const { return UnknownSensor; }
    virtual QJsonObject jsonObject() const;
    // False, with nothing of the subclass read, when the object is of another type or its location is not valid. A
    // value of the wrong kind or beyond its range becomes what a missing one does.
    virtual bool setJsonObject(const QJsonObject &object);
    // The values that the last setJsonObject did not take, as "sac": 300.
    const QStringList &refusedValues() const { return m_refusedValues; }

    // The radii that it covers, one for each of its ways to detect, nautical miles; 0 where none was entered.
    virtual QList<double> coverages() const { return {}; }
    // Seconds between two reports of one target; 0 when not known.
    virtual double reportPeriod() const { return 0.0; }
    // Whether it has an antenna that turns once in a report period.
    virtual bool turns() const { return false; }

    // How long its tracks live without a report: multiples of the report period, or fixed spans where that is not known
    // or too short to be true.
    struct TrackLife {
        double shortestPeriod = 0.0; // seconds; none is long enough for who has fixed spans only
        double coastingPeriods = 0.0;
        double terminationPeriods = 0.0;
        unsigned int coastingMs = 0;
        unsigned int terminationMs = 0;
    };
    // Nothing for an unknown sensor.
    virtual std::optional<TrackLife> trackLife() const { return std::nullopt; }

    unsigned char sac() const { return m_sac; }
    unsigned char sic() const { return m_sic; }
    void setSacSic(unsigned char sac, unsigned char sic);

    // The record's key in a SensorManager.
    QString name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    QString description() const { return m_description; }
    void setDescription(const QString &description) { m_description = description; }
    QString manufacturer() const { return m_manufacturer; }
    void setManufacturer(const QString &manufacturer) { m_manufacturer = manufacturer; }
    QString model() const { return m_model; }
    void setModel(const QString &model) { m_model = model; }
    // 0: not given.
    unsigned short commissionYear() const { return m_commissionYear; }
    void setCommissionYear(const unsigned short &year) { m_commissionYear = year; }
    // Of the antenna where the sensor has one; invalid until set.
    const GeoCoordinate &location() const { return m_location; }
    void setLocation(const GeoCoordinate &location) { m_location = location; }

    static QString typeToString(Type type) { return sensorTypeToString(type); }
    static Type typeFromString(const QString &text) { return sensorTypeFromString(text); }
    static QString typeFullName(Type type) { return sensorTypeFullName(type); }
    // UnknownSensor for a number that names no type.
    static Type type(unsigned int number) { return sensorType(number); }

    // A record of the type's class; null for a type without one. A parent must outlive every holder of the record.
    static QSharedPointer<SensorInfo> create(Type type, QObject *parent = nullptr);
    // Null when the object's type is unknown or setJsonObject refuses it.
    static QSharedPointer<SensorInfo> create(const QJsonObject &object, QObject *parent = nullptr);

protected:
    static constexpr double LongestPeriod = 3600.0; // seconds
    static constexpr int LowestAntenna = -1000; // metres
    static constexpr int HighestAntenna = 100000;

    JsonReader reader(const QJsonObject &object);

private:
    QStringList m_refusedValues;
    unsigned char m_sac = 0;
    unsigned char m_sic = 0;
    unsigned short m_commissionYear = 0;
    QString m_name;
    QString m_description;
    QString m_manufacturer;
    QString m_model;
    GeoCoordinate m_location;
};
