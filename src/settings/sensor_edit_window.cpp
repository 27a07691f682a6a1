#include "settings/sensor_edit_window.h"

#include "app/config.h"
#include "sensors/sensor_manager.h"
#include "settings/sensor_form.h"
#include "widgets/field_form.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int Columns = 64; // of the window at first, in characters

// What the settings start with is a good start for a new record, too.
void fillDefaults(SensorForm *form)
{
    Config defaults;
    for (const SensorType type : {SmrSensor, SdpsSensor, MlatSensor, AdsbSensor, RadarSensor}) {
        defaults.sensorType = type;
        form->setTypeFields(*defaults.sensor(nullptr));
    }
    form->setSensor(defaults.sensor(nullptr).data());
}

} // namespace

SensorEditWindow::SensorEditWindow(
    const QSharedPointer<SensorInfo> &sensor, const SensorManager *sensors, QWidget *parent)
    : GeometryDialog(QStringLiteral("SensorEditWindow"), parent), m_sensors(sensors)
{
    setWindowTitle(sensor ? tr("Edit Sensor") : tr("New Sensor"));
    auto *rows = new FieldForm(this);
    m_form = new SensorForm(SensorForm::Use::Record, rows);
    m_form->setManufacturerModels(sensors->manufacturerModels());
    fillDefaults(m_form);
    if (sensor) {
        m_form->setSensor(sensor.data());
        m_originalName = sensor->name();
    }
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &SensorEditWindow::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SensorEditWindow::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(rows);
    layout->addSpacing(8);
    layout->addStretch(1);
    layout->addWidget(buttons);
    const QSize needed = sizeHint();
    resize(std::max(needed.width(), fontMetrics().averageCharWidth() * Columns), needed.height());
}

void SensorEditWindow::accept()
{
    QStringList names = m_sensors->sensorNames();
    names.removeAll(m_originalName);
    m_form->setNamesInUse(names);
    if (!m_form->validate()) {
        findChild<FieldForm *>()->firstWithNote()->setFocus();
        return;
    }
    m_accepted = m_form->makeSensor();
    QDialog::accept();
}
