#include "sensors/sensor_manager.h"

#include "sensors/radar_sensor_info.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

SensorManager::SensorManager(QObject *parent) : QObject(parent) { }

void SensorManager::reset()
{
    m_sensors.clear();
}

bool SensorManager::hasSensor(const QString &name) const
{
    return !findSensor(name).isNull();
}

QSharedPointer<SensorInfo> SensorManager::findSensor(const QString &name) const
{
    return m_sensors.value(name);
}

void SensorManager::addDetails(SensorInfo *sensor) const
{
    auto *radar = qobject_cast<RadarSensorInfo *>(sensor);
    const auto record = radar ? findSensor(radar->name()).dynamicCast<RadarSensorInfo>() : nullptr;
    if (record && record->sac() == radar->sac() && record->sic() == radar->sic()) {
        radar->setSlantRangeCorrected(record->slantRangeCorrected());
    }
}

void SensorManager::addSensor(const QSharedPointer<SensorInfo> &sensor)
{
    if (sensor && !sensor->name().isEmpty()) {
        m_sensors.insert(sensor->name(), sensor);
    }
}

void SensorManager::removeSensor(const QString &name)
{
    m_sensors.remove(name);
}

QStringList SensorManager::sensorNames() const
{
    auto names = QStringList(m_sensors.keys());
    names.sort(Qt::CaseSensitive);
    return names;
}

QMap<QString, QStringList> SensorManager::manufacturerModels() const
{
    QMap<QString, QStringList> models;
    for (const auto &sensor : m_sensors) {
        if (sensor->manufacturer().isEmpty()) {
            continue;
        }
        auto &list = models[sensor->manufacturer()];
        if (!sensor->model().isEmpty() && !list.contains(sensor->model())) {
            list.append(sensor->model());
        }
    }
    return models;
}

QString SensorManager::uniqueName(const QString &name) const
{
    QString candidate = name;
    for (int i = 1; hasSensor(candidate); ++i) {
        candidate = QStringLiteral("%1_dup%2").arg(name).arg(i);
    }
    return candidate;
}

bool SensorManager::loadFromJsonFile(const QFileInfo &file)
{
    QFile device(file.filePath());
    if (!device.open(QIODevice::ReadOnly)) {
        return false;
    }
    const auto document = QJsonDocument::fromJson(device.readAll());
    if (!document.isArray()) {
        return false;
    }
    reset();
    const auto elements = document.array();
    for (const auto &element : elements) {
        // Without a parent: whoever was handed a record may hold it for longer than this manager lives.
        const auto sensor = SensorInfo::create(element.toObject());
        if (!sensor) {
            continue;
        }
        sensor->setName(uniqueName(sensor->name()));
        addSensor(sensor);
        warnOfRefusedValues(file, *sensor);
    }
    warnOfSharedSources(file);
    return true;
}

void SensorManager::warnOfRefusedValues(const QFileInfo &file, const SensorInfo &sensor)
{
    for (const auto &value : sensor.refusedValues()) {
        Q_EMIT warning(tr("%1: sensor \"%2\" has a value that is not valid and takes its default: %3")
                           .arg(file.filePath(), sensor.name(), value));
    }
}

// A SAC/SIC of 0/0 was not entered.
void SensorManager::warnOfSharedSources(const QFileInfo &file)
{
    QMap<int, QString> firstOfSource;
    for (const auto &name : sensorNames()) {
        const auto sensor = findSensor(name);
        const int source = sensor->sac() << 8 | sensor->sic();
        const auto first = firstOfSource.constFind(source);
        if (first == firstOfSource.constEnd()) {
            firstOfSource.insert(source, name);
        } else if (source != 0) {
            Q_EMIT warning(tr("%1: sensors \"%2\" and \"%3\" have the same SAC/SIC, %4/%5")
                               .arg(file.filePath(), *first, name)
                               .arg(sensor->sac())
                               .arg(sensor->sic()));
        }
    }
}

bool SensorManager::saveToJsonFile(const QFileInfo &file) const
{
    QJsonArray elements;
    for (const auto &sensor : m_sensors) {
        elements.append(sensor->jsonObject());
    }
    const auto text = QJsonDocument(elements).toJson(QJsonDocument::Indented);
    QSaveFile device(file.filePath());
    return device.open(QIODevice::WriteOnly) && device.write(text) == text.size() && device.commit();
}
