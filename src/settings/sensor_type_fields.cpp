#include "settings/sensor_type_fields.h"

#include "app/setting.h"
#include "sensors/adsb_sensor_info.h"
#include "sensors/mlat_sensor_info.h"
#include "sensors/radar_sensor_info.h"
#include "sensors/sdps_sensor_info.h"
#include "sensors/smr_sensor_info.h"
#include "widgets/field_form.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>

#include <limits>

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(SensorTypeFields)
};

// Range and unit are those of the configured sensor's setting; a record's are the same.
template <typename Box, typename T>
Box *makeNumber(T Config::*member)
{
    const Setting &setting = Setting::of(member);
    auto *box = new Box;
    box->setRange(static_cast<T>(setting.minimum()), static_cast<T>(setting.maximum()));
    box->setSuffix(setting.unitSuffix());
    return box;
}

// Fields are named after the settings of the sensor that is configured.
template <typename T>
QString keyOf(T Config::*member)
{
    return Setting::of(member).key();
}

QSpinBox *makeNumber(int Config::*member)
{
    return makeNumber<QSpinBox>(member);
}

QDoubleSpinBox *makeSeconds(double Config::*member)
{
    auto *box = makeNumber<QDoubleSpinBox>(member);
    box->setDecimals(3);
    box->setSpecialValueText(Text::tr("not given"));
    return box;
}

class RadarFields final : public SensorTypeFields {
public:
    RadarFields(FieldForm *form, bool details) : SensorTypeFields(form)
    {
        addRow(Text::tr("Antenna &altitude:"), m_altitude, keyOf(&Config::sensorRadarAntennaAltitude),
            Text::tr("Height of the antenna above sea level."));
        addRow(Text::tr("&Rotation period:"), m_period, keyOf(&Config::sensorRadarRotationPeriod),
            Text::tr("How long the antenna takes for one turn; tracks live by it."));
        addRow(m_primary, keyOf(&Config::sensorRadarIsPrimary),
            Text::tr("Detects whatever reflects, with or without a transponder."));
        addRow(Text::tr("Coverage, &primary:"), m_coveragePrimary, keyOf(&Config::sensorRadarCoveragePrimary),
            Text::tr("How far the primary radar sees; drawn as a circle."));
        addRow(m_secondary, keyOf(&Config::sensorRadarIsSecondary), Text::tr("Asks transponders for code and level."));
        addRow(m_modeS, keyOf(&Config::sensorRadarIsModeS),
            Text::tr("Asks single aircraft by their address; every Mode S radar is a secondary one."));
        addRow(Text::tr("Coverage, se&condary:"), m_coverageSecondary, keyOf(&Config::sensorRadarCoverageSecondary),
            Text::tr("How far the secondary radar sees; drawn as a circle."));
        // A Mode S radar is a secondary one.
        QObject::connect(m_modeS, &QCheckBox::toggled, m_secondary, [this](bool on) {
            m_secondary->setChecked(on || m_secondary->isChecked());
            this->form()->setRowEnabled(m_secondary, !on);
        });
        if (details) {
            m_slantRange = new QCheckBox(Text::tr("Correct s&lant range"));
            addRow(m_slantRange, QStringLiteral("radarSlantRange"),
                Text::tr(
                    "Targets whose height is known are shown at their distance over ground; the others as before."));
        }
    }

    SensorType type() const override { return RadarSensor; }

    void load(const SensorInfo &sensor) override
    {
        const auto &radar = static_cast<const RadarSensorInfo &>(sensor);
        m_altitude->setValue(radar.antennaAltitude());
        m_period->setValue(radar.rotationPeriod());
        m_primary->setChecked(radar.isPrimary());
        m_modeS->setChecked(radar.isModeS());
        m_secondary->setChecked(radar.isSecondary());
        m_coveragePrimary->setValue(static_cast<int>(radar.coveragePrimary()));
        m_coverageSecondary->setValue(static_cast<int>(radar.coverageSecondary()));
        if (m_slantRange) {
            m_slantRange->setChecked(radar.slantRangeCorrected());
        }
    }

    void store(SensorInfo *sensor) const override
    {
        auto *radar = static_cast<RadarSensorInfo *>(sensor);
        radar->setAntennaAltitude(m_altitude->value());
        radar->setRotationPeriod(m_period->value());
        radar->setRadarType(m_primary->isChecked(), m_secondary->isChecked(), m_modeS->isChecked());
        radar->setCoveragePrimary(static_cast<unsigned int>(m_coveragePrimary->value()));
        radar->setCoverageSecondary(static_cast<unsigned int>(m_coverageSecondary->value()));
        if (m_slantRange) {
            radar->setSlantRangeCorrected(m_slantRange->isChecked());
        }
    }

    bool check() override
    {
        const bool any = m_primary->isChecked() || m_secondary->isChecked() || m_modeS->isChecked();
        return form()->check(m_modeS, any ? QString() : Text::tr("A radar is primary, secondary or both."));
    }

private:
    QSpinBox *m_altitude = makeNumber(&Config::sensorRadarAntennaAltitude);
    QDoubleSpinBox *m_period = makeSeconds(&Config::sensorRadarRotationPeriod);
    QCheckBox *m_primary = new QCheckBox(Text::tr("Primary radar"));
    QCheckBox *m_secondary = new QCheckBox(Text::tr("Secondary radar"));
    QCheckBox *m_modeS = new QCheckBox(Text::tr("Mode S"));
    QSpinBox *m_coveragePrimary = makeNumber(&Config::sensorRadarCoveragePrimary);
    QSpinBox *m_coverageSecondary = makeNumber(&Config::sensorRadarCoverageSecondary);
    QCheckBox *m_slantRange = nullptr; // null without details
};

class AdsbFields final : public SensorTypeFields {
public:
    AdsbFields(FieldForm *form, bool details) : SensorTypeFields(form)
    {
        addRow(Text::tr("Co&verage:"), m_coverage, keyOf(&Config::sensorAdsbCoverage),
            Text::tr("How far the station receives; drawn as a circle."));
        addRow(Text::tr("&Update interval:"), m_interval, keyOf(&Config::sensorAdsbUpdateInterval),
            Text::tr("How often an aircraft is reported; tracks live by it."));
        if (!details) {
            return;
        }
        m_versions = new QLineEdit;
        m_versions->setPlaceholderText(Text::tr("such as 0, 1, 2"));
        addRow(Text::tr("ADS-&B versions:"), m_versions, QStringLiteral("adsbVersions"),
            Text::tr("The versions of ADS-B that the station receives, with commas between them."));
    }

    SensorType type() const override { return AdsbSensor; }

    void load(const SensorInfo &sensor) override
    {
        const auto &adsb = static_cast<const AdsbSensorInfo &>(sensor);
        m_coverage->setValue(static_cast<int>(adsb.coverage()));
        m_interval->setValue(adsb.updateInterval());
        if (m_versions) {
            m_versions->setText(QStringList(adsb.versions()).join(QStringLiteral(", ")));
        }
    }

    void store(SensorInfo *sensor) const override
    {
        auto *adsb = static_cast<AdsbSensorInfo *>(sensor);
        adsb->setCoverage(static_cast<unsigned int>(m_coverage->value()));
        adsb->setUpdateInterval(m_interval->value());
        if (m_versions) {
            adsb->setVersions(versions());
        }
    }

private:
    QList<QString> versions() const
    {
        QList<QString> versions;
        const QStringList parts = m_versions->text().split(u',');
        for (const QString &part : parts) {
            if (!part.trimmed().isEmpty()) {
                versions.append(part.trimmed());
            }
        }
        return versions;
    }

    QSpinBox *m_coverage = makeNumber(&Config::sensorAdsbCoverage);
    QDoubleSpinBox *m_interval = makeSeconds(&Config::sensorAdsbUpdateInterval);
    QLineEdit *m_versions = nullptr; // null without details
};

class MlatFields final : public SensorTypeFields {
public:
    explicit MlatFields(FieldForm *form) : SensorTypeFields(form)
    {
        addRow(Text::tr("Co&verage:"), m_coverage, keyOf(&Config::sensorMlatCoverage),
            Text::tr("How far the system locates aircraft; drawn as a circle."));
    }

    SensorType type() const override { return MlatSensor; }

    void load(const SensorInfo &sensor) override
    {
        m_coverage->setValue(static_cast<int>(static_cast<const MlatSensorInfo &>(sensor).coverage()));
    }

    void store(SensorInfo *sensor) const override
    {
        static_cast<MlatSensorInfo *>(sensor)->setCoverage(static_cast<unsigned int>(m_coverage->value()));
    }

private:
    QSpinBox *m_coverage = makeNumber(&Config::sensorMlatCoverage);
};

class SdpsFields final : public SensorTypeFields {
public:
    explicit SdpsFields(FieldForm *form) : SensorTypeFields(form)
    {
        addRow(Text::tr("Co&verage:"), m_coverage, keyOf(&Config::sensorSdpsCoverage),
            Text::tr("How far the system's tracks reach; drawn as a circle."));
        addRow(Text::tr("&Update interval:"), m_interval, keyOf(&Config::sensorSdpsUpdateInterval),
            Text::tr("How often the system sends its tracks; tracks live by it."));
    }

    SensorType type() const override { return SdpsSensor; }

    void load(const SensorInfo &sensor) override
    {
        const auto &sdps = static_cast<const SdpsSensorInfo &>(sensor);
        m_coverage->setValue(static_cast<int>(sdps.coverage()));
        m_interval->setValue(sdps.updateInterval());
    }

    void store(SensorInfo *sensor) const override
    {
        auto *sdps = static_cast<SdpsSensorInfo *>(sensor);
        sdps->setCoverage(static_cast<unsigned int>(m_coverage->value()));
        sdps->setUpdateInterval(m_interval->value());
    }

private:
    QSpinBox *m_coverage = makeNumber(&Config::sensorSdpsCoverage);
    QDoubleSpinBox *m_interval = makeSeconds(&Config::sensorSdpsUpdateInterval);
};

class SmrFields final : public SensorTypeFields {
public:
    SmrFields(FieldForm *form, bool details) : SensorTypeFields(form)
    {
        addRow(Text::tr("Antenna &altitude:"), m_altitude, keyOf(&Config::sensorSmrAntennaAltitude),
            Text::tr("Height of the antenna above sea level."));
        addRow(Text::tr("&Rotation period:"), m_period, keyOf(&Config::sensorSmrRotationPeriod),
            Text::tr("How long the antenna takes for one turn; tracks live by it."));
        m_coverage->setDecimals(2);
        addRow(Text::tr("Co&verage:"), m_coverage, keyOf(&Config::sensorSmrCoverage),
            Text::tr("How far the radar sees; drawn as a circle."));
        if (!details) {
            return;
        }
        m_acp = new QSpinBox;
        m_acp->setRange(0, std::numeric_limits<int>::max());
        m_acp->setSpecialValueText(Text::tr("not given"));
        addRow(Text::tr("Azimuth &pulses:"), m_acp, QStringLiteral("smrAcp"),
            Text::tr("Azimuth change pulses per revolution of the antenna."));
    }

    SensorType type() const override { return SmrSensor; }

    void load(const SensorInfo &sensor) override
    {
        const auto &smr = static_cast<const SmrSensorInfo &>(sensor);
        m_altitude->setValue(smr.antennaAltitude());
        m_period->setValue(smr.rotationPeriod());
        m_coverage->setValue(smr.coverage());
        if (m_acp) {
            m_acp->setValue(static_cast<int>(smr.acp()));
        }
    }

    void store(SensorInfo *sensor) const override
    {
        auto *smr = static_cast<SmrSensorInfo *>(sensor);
        smr->setAntennaAltitude(m_altitude->value());
        smr->setRotationPeriod(m_period->value());
        smr->setCoverage(m_coverage->value());
        if (m_acp) {
            smr->setAcp(static_cast<unsigned int>(m_acp->value()));
        }
    }

private:
    QSpinBox *m_altitude = makeNumber(&Config::sensorSmrAntennaAltitude);
    QDoubleSpinBox *m_period = makeSeconds(&Config::sensorSmrRotationPeriod);
    QDoubleSpinBox *m_coverage = makeNumber<QDoubleSpinBox>(&Config::sensorSmrCoverage);
    QSpinBox *m_acp = nullptr; // null without details
};

} // namespace

void SensorTypeFields::setVisible(bool visible)
{
    for (QWidget *field : m_fields) {
        m_form->setRowVisible(field, visible);
    }
}

void SensorTypeFields::addRow(const QString &label, QWidget *field, const QString &objectName, const QString &toolTip)
{
    field->setToolTip(toolTip);
    field->setObjectName(objectName);
    m_form->addField(label, field);
    m_fields.push_back(field);
}

void SensorTypeFields::addRow(QWidget *field, const QString &objectName, const QString &toolTip)
{
    field->setToolTip(toolTip);
    field->setObjectName(objectName);
    m_form->addField(field);
    m_fields.push_back(field);
}

std::vector<std::unique_ptr<SensorTypeFields>> SensorTypeFields::makeAll(FieldForm *form, bool details)
{
    std::vector<std::unique_ptr<SensorTypeFields>> all;
    all.push_back(std::make_unique<RadarFields>(form, details));
    all.push_back(std::make_unique<AdsbFields>(form, details));
    all.push_back(std::make_unique<MlatFields>(form));
    all.push_back(std::make_unique<SdpsFields>(form));
    all.push_back(std::make_unique<SmrFields>(form, details));
    return all;
}
