#pragma once

#include "sensors/sensor_info.h"

#include <QByteArray>
#include <QFileInfo>
#include <QHash>
#include <QJsonValue>
#include <QList>
#include <QMap>
#include <QObject>
#include <QSharedPointer>
#include <QStringList>

// The sensor records by unique name, read from and written to one JSON file.
class SensorManager final : public QObject {
    Q_OBJECT

public:
    explicit SensorManager(QObject *parent = nullptr);

    void reset();
    bool hasSensor(const QString &name) const;
    // Null when there is none.
    QSharedPointer<SensorInfo> findSensor(const QString &name) const;
    // Adds what only records hold to a sensor that was configured from the one of its name.
    void addDetails(SensorInfo *sensor) const;
    // Replaces a record of the same name; ignores null and a record without a name.
    void addSensor(const QSharedPointer<SensorInfo> &sensor);
    void removeSensor(const QString &name);

    // All of them in the order of the file, that is as the user has put them; new ones come last. Names are unique.
    QList<QSharedPointer<SensorInfo>> sensors() const;
    void setSensors(const QList<QSharedPointer<SensorInfo>> &sensors);

    // Sorted case-sensitively.
    QStringList sensorNames() const;
    // The models of each manufacturer that some record names; a record without a model adds an empty list.
    QMap<QString, QStringList> manufacturerModels() const;

    // Replaces all records. False, with the records unchanged, when the file cannot be read or is no JSON array.
    // Elements that do not describe a sensor are skipped; a name already taken becomes "NAME_dup1" and so on. Values
    // that are not taken, and sensors that cannot be told apart by their SAC/SIC, are warned of.
    bool loadFromJsonFile(const QFileInfo &file);
    // The elements that the last file had and that were skipped, a line each with the reason.
    const QStringList &skipped() const { return m_skipped; }
    // The file is replaced whole or stays as it was.
    bool saveToJsonFile(const QFileInfo &file) const;
    // Whether the file, which was the last one loaded or saved, has other contents since.
    bool changedOutside(const QFileInfo &file) const;
    // Why the file is none that can be loaded; empty when it is one.
    static QString problemOfFile(const QString &fileName);

Q_SIGNALS:
    // Something in a file that is read is not as it should be; the text names the file.
    void warning(const QString &text);

private:
    static QString whySkipped(const QJsonValue &element);
    void warnOfRefusedValues(const QFileInfo &file, const SensorInfo &sensor);
    void warnOfSharedSources(const QFileInfo &file);
    QString uniqueName(const QString &name) const;

    QHash<QString, QSharedPointer<SensorInfo>> m_sensors;
    QStringList m_order; // names
    QStringList m_skipped;
    struct KnownFile {
        QString path;
        QByteArray digest; // of its contents
    };
    mutable KnownFile m_known; // by the last load or save, which changes no sensor
};
