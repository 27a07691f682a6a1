#include "settings/sensor_config_page.h"

#include "sensors/sensor_manager.h"
#include "settings/sensor_form.h"
#include "widgets/field_form.h"

SensorConfigPage::SensorConfigPage(SensorManager *sensors, QWidget *parent)
    : ConfigPage(tr("Sensor"), parent), m_sensors(sensors), m_choice(new QComboBox)
{
    m_choice->setObjectName(QStringLiteral("sensorChoice"));
    form()->addField(tr("From the &file:"), m_choice);
    form()->addHeading(tr("Sensor of the input"));
    m_sensorForm = new SensorForm(SensorForm::Use::Configured, form());
    form()->addStretch();
    addSettings(SettingGroup::Sensor);
    setChooser(m_sensorForm->chooser());
    fillChoice();
    connect(m_choice, &QComboBox::activated, this, &SensorConfigPage::choose);
}

void SensorConfigPage::fillChoice()
{
    m_choice->addItem(tr("As entered below"));
    const auto sensors = m_sensors ? m_sensors->sensors() : QList<QSharedPointer<SensorInfo>>();
    for (const auto &sensor : sensors) {
        m_choice->addItem(sensor->name(), sensor->name());
    }
    form()->setRowEnabled(m_choice, !sensors.isEmpty());
    m_choice->setToolTip(sensors.isEmpty() ? tr("The sensor file holds no sensor.")
                                           : tr("Fills the fields below from the sensor file."));
}

void SensorConfigPage::choose(int index)
{
    const QString name = m_choice->itemData(index).toString();
    const QSharedPointer<SensorInfo> sensor = name.isEmpty() ? nullptr : m_sensors->findSensor(name);
    if (sensor) {
        m_sensorForm->setSensor(sensor.data());
    }
}

void SensorConfigPage::load(const Config &config)
{
    Config asType = config;
    for (const SensorType type : {RadarSensor, AdsbSensor, MlatSensor, SdpsSensor, SmrSensor}) {
        asType.sensorType = type;
        m_sensorForm->setTypeFields(*asType.sensor(nullptr));
    }
    m_sensorForm->setSensor(config.sensor(nullptr).data());
    const int listed = config.sensorType == UnknownSensor ? -1 : m_choice->findData(config.sensorName);
    m_choice->setCurrentIndex(listed > 0 ? listed : 0);
}

// The fields belong together: the others are put in again as they are.
void SensorConfigPage::showSettings(const Config &config, const Which &which)
{
    Config shown;
    store(&shown);
    bool any = false;
    for (const Setting *setting : settings()) {
        if (which(*setting)) {
            setting->copy(config, shown);
            any = true;
        }
    }
    if (any) {
        load(shown);
    }
}

bool SensorConfigPage::validate()
{
    return m_sensorForm->validate();
}

void SensorConfigPage::store(Config *config) const
{
    const QSharedPointer<SensorInfo> sensor = m_sensorForm->makeSensor();
    if (!sensor) {
        config->sensorType = UnknownSensor;
    } else {
        config->setSensor(sensor);
    }
}
