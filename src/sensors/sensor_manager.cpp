#include "sensors/sensor_manager.h"

#include "sensors/radar_sensor_info.h"

#include <QCryptographicHash>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

namespace {

QByteArray digestOf(const QByteArray &contents)
{
    return QCryptographicHash::hash(contents, QCryptographicHash::Sha1);
}

} // namespace

SensorManager::SensorManager(QObject *parent) : QObject(parent) { }

void SensorManager::reset()
{
    m_sensors.clear();
    m_order.clear();
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
    if (!sensor || sensor->name().isEmpty()) {
        return;
    }
    if (!m_sensors.contains(sensor->name())) {
        m_order.append(sensor->name());
    }
    m_sensors.insert(sensor->name(), sensor);
}

void SensorManager::removeSensor(const QString &name)
{
    m_sensors.remove(name);
    m_order.removeAll(name);
}

QList<QSharedPointer<SensorInfo>> SensorManager::sensors() const
{
    QList<QSharedPointer<SensorInfo>> sensors;
    for (const QString &name : m_order) {
        sensors.append(m_sensors.value(name));
    }
    return sensors;
}

void SensorManager::setSensors(const QList<QSharedPointer<SensorInfo>> &sensors)
{
    reset();
    for (const auto &sensor : sensors) {
        addSensor(sensor);
    }
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
    const QByteArray contents = device.readAll();
    const auto document = QJsonDocument::fromJson(contents);
    if (!document.isArray()) {
        return false;
    }
    reset();
    m_skipped.clear();
    m_known = {file.absoluteFilePath(), digestOf(contents)};
    const auto elements = document.array();
    int number = 0;
    for (const auto &element : elements) {
        ++number;
        // Without a parent: whoever was handed a record may hold it for longer than this manager lives.
        const auto sensor = SensorInfo::create(element.toObject());
        if (!sensor || sensor->name().isEmpty()) {
            m_skipped.append(tr("Record %1: %2").arg(number).arg(whySkipped(element)));
            continue;
        }
        sensor->setName(uniqueName(sensor->name()));
        addSensor(sensor);
        warnOfRefusedValues(file, *sensor);
    }
    warnOfSharedSources(file);
    return true;
}

QString SensorManager::whySkipped(const QJsonValue &element)
{
    if (!element.isObject()) {
        return tr("it is no object.");
    }
    const QJsonObject object = element.toObject();
    const QString name = object.value(QStringLiteral("name")).toString();
    const QString type = object.value(QStringLiteral("type")).toString();
    if (SensorInfo::typeFromString(type) == UnknownSensor) {
        return tr("\"%1\" has no known type: \"%2\".").arg(name, type);
    }
    if (name.isEmpty()) {
        return tr("it has no name.");
    }
    return tr("\"%1\" has no valid location: \"%2\".").arg(name, object.value(QStringLiteral("location")).toString());
}

QString SensorManager::problemOfFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    const QByteArray contents = file.readAll();
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(contents, &error);
    if (error.error != QJsonParseError::NoError) {
        const auto line = contents.left(error.offset).count('\n') + 1;
        return tr("It is no JSON: %1, line %2.").arg(error.errorString()).arg(line);
    }
    return document.isArray() ? QString() : tr("It is no JSON list of sensors.");
}

bool SensorManager::changedOutside(const QFileInfo &file) const
{
    QFile device(file.filePath());
    return !m_known.path.isEmpty() && file.absoluteFilePath() == m_known.path && device.open(QIODevice::ReadOnly)
        && digestOf(device.readAll()) != m_known.digest;
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
    for (const auto &sensor : sensors()) {
        elements.append(sensor->jsonObject());
    }
    const auto text = QJsonDocument(elements).toJson(QJsonDocument::Indented);
    QSaveFile device(file.filePath());
    if (!device.open(QIODevice::WriteOnly) || device.write(text) != text.size() || !device.commit()) {
        return false;
    }
    m_known = {file.absoluteFilePath(), digestOf(text)};
    return true;
}
