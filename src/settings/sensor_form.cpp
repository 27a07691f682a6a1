#include "settings/sensor_form.h"

#include "sensors/sensor_info.h"
#include "sensors/sensor_type_text.h"
#include "settings/sensor_type_fields.h"
#include "widgets/coordinate_edit.h"
#include "widgets/field_form.h"

#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QSpinBox>

SensorForm::SensorForm(Use use, FieldForm *form) : QObject(form), m_use(use), m_form(form)
{
    addRows();
    if (m_use == Use::Record) {
        addDetailRows();
    }
    m_typeFields = SensorTypeFields::makeAll(form, use == Use::Record);
    connect(m_type, &QComboBox::currentIndexChanged, this, &SensorForm::showTypeFields);
    showTypeFields();
}

SensorForm::~SensorForm() = default;

void SensorForm::addRows()
{
    m_type = makeTypeBox();
    m_type->setObjectName(QStringLiteral("sensorType"));
    m_type->setToolTip(tr("What kind of sensor it is; the fields below depend on it."));
    m_form->addField(tr("&Type:"), m_type);
    add(tr("&Name:"), m_name = new QLineEdit, QStringLiteral("sensorName"),
        tr("What the sensor is called on the map and in messages; no two have the same name."));
    add(tr("&SAC:"), m_sac = new QSpinBox, QStringLiteral("sensorSac"),
        tr("System area code, 0 to 255: whose sensor it is, as in its messages."));
    add(tr("S&IC:"), m_sic = new QSpinBox, QStringLiteral("sensorSic"),
        tr("System identification code, 0 to 255: which of the area's sensors it is."));
    for (QSpinBox *code : {m_sac, m_sic}) {
        code->setRange(0, 255);
    }
    const auto format = m_use == Use::Record ? GeoCoordinate::HighPrecision : GeoCoordinate::NormalPrecision;
    add(tr("&Location:"), m_location = new CoordinateEdit(format), QStringLiteral("sensorLocation"),
        tr("Where the sensor stands (WGS-84), such as 480815N0114712E or 48.1375 11.7867."));
}

void SensorForm::add(const QString &label, QWidget *field, const QString &objectName, const QString &toolTip)
{
    field->setObjectName(objectName);
    field->setToolTip(toolTip);
    m_form->addField(label, field);
    m_baseFields.push_back(field);
}

void SensorForm::addDetailRows()
{
    add(tr("&Description:"), m_description = new QLineEdit, QStringLiteral("sensorDescription"),
        tr("Whatever helps to tell the sensor from others."));
    add(tr("Manu&facturer:"), m_manufacturer = new QLineEdit, QStringLiteral("sensorManufacturer"),
        tr("Who made the sensor; those of the other records are offered."));
    add(tr("&Model:"), m_model = new QLineEdit, QStringLiteral("sensorModel"),
        tr("What the maker calls it; the models of the maker's other records are offered."));
    add(tr("In service since &year:"), m_commissionYear = new QSpinBox, QStringLiteral("sensorCommissionYear"),
        tr("The year in which the sensor entered service."));
    m_commissionYear->setRange(0, 9999);
    m_commissionYear->setSpecialValueText(tr("not given"));
    connect(m_manufacturer, &QLineEdit::textChanged, this, &SensorForm::completeModels);
}

QComboBox *SensorForm::makeTypeBox()
{
    auto *box = new QComboBox;
    if (m_use == Use::Configured) {
        box->addItem(tr("None"), UnknownSensor);
    }
    for (const SensorType type : {RadarSensor, AdsbSensor, MlatSensor, SdpsSensor, SmrSensor}) {
        box->addItem(sensorTypeText(type), type);
    }
    return box;
}

SensorType SensorForm::type() const
{
    return sensorType(m_type->currentData().toUInt());
}

QWidget *SensorForm::chooser() const
{
    return m_type;
}

void SensorForm::showTypeFields()
{
    const SensorType chosen = type();
    for (QWidget *field : m_baseFields) {
        m_form->setRowVisible(field, chosen != UnknownSensor);
    }
    for (const auto &fields : m_typeFields) {
        fields->setVisible(fields->type() == chosen);
    }
}

void SensorForm::setSensor(const SensorInfo *sensor)
{
    m_form->clearNotes();
    m_type->setCurrentIndex(m_type->findData(sensor ? sensor->type() : UnknownSensor));
    if (!sensor) {
        return;
    }
    m_name->setText(sensor->name());
    m_sac->setValue(sensor->sac());
    m_sic->setValue(sensor->sic());
    m_location->setCoordinate(sensor->location());
    if (m_use == Use::Record) {
        m_description->setText(sensor->description());
        m_manufacturer->setText(sensor->manufacturer());
        m_model->setText(sensor->model());
        m_commissionYear->setValue(sensor->commissionYear());
    }
    setTypeFields(*sensor);
}

void SensorForm::setTypeFields(const SensorInfo &sensor)
{
    for (const auto &fields : m_typeFields) {
        if (fields->type() == sensor.type()) {
            fields->load(sensor);
        }
    }
}

void SensorForm::setManufacturerModels(const QMap<QString, QStringList> &models)
{
    m_manufacturerModels = models;
    auto *completer = new QCompleter(models.keys(), m_manufacturer);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_manufacturer->setCompleter(completer);
    completeModels();
}

void SensorForm::completeModels()
{
    auto *completer = new QCompleter(m_manufacturerModels.value(m_manufacturer->text().trimmed()), m_model);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_model->setCompleter(completer); // deletes the one before, which is the field's child
}

bool SensorForm::validate()
{
    m_form->clearNotes();
    if (type() == UnknownSensor) {
        return true;
    }
    const QString name = m_name->text().trimmed();
    QString nameProblem;
    if (name.isEmpty()) {
        nameProblem = tr("A sensor needs a name.");
    } else if (m_namesInUse.contains(name)) {
        nameProblem = tr("Another sensor is named \"%1\".").arg(name);
    }
    bool valid = m_form->check(m_name, nameProblem);
    valid = m_form->checkCoordinate(m_location) && valid;
    for (const auto &fields : m_typeFields) {
        valid = (fields->type() != type() || fields->check()) && valid;
    }
    return valid;
}

QSharedPointer<SensorInfo> SensorForm::makeSensor() const
{
    const QSharedPointer<SensorInfo> sensor = SensorInfo::create(type());
    if (!sensor) {
        return {};
    }
    sensor->setName(m_name->text().trimmed());
    sensor->setSacSic(static_cast<unsigned char>(m_sac->value()), static_cast<unsigned char>(m_sic->value()));
    sensor->setLocation(m_location->coordinate());
    if (m_use == Use::Record) {
        sensor->setDescription(m_description->text().trimmed());
        sensor->setManufacturer(m_manufacturer->text().trimmed());
        sensor->setModel(m_model->text().trimmed());
        sensor->setCommissionYear(static_cast<unsigned short>(m_commissionYear->value()));
    }
    for (const auto &fields : m_typeFields) {
        if (fields->type() == type()) {
            fields->store(sensor.data());
        }
    }
    return sensor;
}
