#include "settings/sensor_site_window.h"

#include "widgets/coordinate_edit.h"
#include "widgets/dialog_layout.h"
#include "widgets/field_form.h"

#include <QDoubleSpinBox>
#include <QLineEdit>

namespace {

constexpr double ShortestPeriod = 0.5;
constexpr double LongestPeriod = 60.0;
constexpr double UsualPeriod = 4.0;

} // namespace

SensorSiteWindow::SensorSiteWindow(const QString &sensorName, bool periodMissing, QWidget *parent)
    : QDialog(parent), m_form(new FieldForm(this)), m_site(new CoordinateEdit(GeoCoordinate::HighPrecision)),
      m_name(new QLineEdit(sensorName)), m_period(new QDoubleSpinBox)
{
    setWindowTitle(tr("Where Does %1 Stand?").arg(sensorName));
    m_site->setObjectName("site");
    m_name->setObjectName("name");
    m_period->setObjectName("period");
    m_period->setRange(ShortestPeriod, LongestPeriod);
    m_period->setValue(UsualPeriod);
    m_period->setSuffix(tr(" s"));
    m_form->addField(tr("&Location:"), m_site);
    m_form->addField(tr("&Name:"), m_name);
    if (periodMissing) {
        m_form->addField(tr("&Rotation period:"), m_period);
    } else {
        m_period->setParent(this);
        m_period->hide();
    }
    layOutDialog(this, m_form, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_site->setFocus();
}

void SensorSiteWindow::suggestSite(const GeoCoordinate &site)
{
    m_site->setCoordinate(site);
    m_site->selectAll();
}

GeoCoordinate SensorSiteWindow::site() const
{
    return m_site->coordinate();
}

QString SensorSiteWindow::name() const
{
    return m_name->text().trimmed();
}

double SensorSiteWindow::rotationPeriod() const
{
    return m_period->value();
}

void SensorSiteWindow::accept()
{
    if (!m_form->checkCoordinate(m_site)) {
        m_site->setFocus();
        return;
    }
    QDialog::accept();
}
