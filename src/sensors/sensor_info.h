#pragma once

#include "geo/geo_coordinate.h"
#include "sensors/sensor_type.h"

#include <QJsonObject>
#include <QObject>
#include <QSharedPointer>
#include <QString>

// One source of surveillance data. What only some kinds of sensor have stands in the subclasses.
class SensorInfo : public QObject {
    Q_OBJECT

public:
    using Type = SensorType;
    using enum SensorType;

    explicit SensorInfo(QObject *parent = nullptr);

    virtual Type type() const { return UnknownSensor; }
    virtual QJsonObject jsonObject() const;
    // False, with nothing of the subclass read, when the object is of another type or its location is not valid.
    virtual bool setJsonObject(const QJsonObject &object);

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

private:
    unsigned char m_sac = 0;
    unsigned char m_sic = 0;
    unsigned short m_commissionYear = 0;
    QString m_name;
    QString m_description;
    QString m_manufacturer;
    QString m_model;
    GeoCoordinate m_location;
};
