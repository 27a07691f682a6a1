#include "ui/map_config_page.h"

#include "app/config.h"
#include "ui/color_button.h"
#include "ui/field_form.h"
#include "ui/range_ring_window.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QSpinBox>

MapConfigPage::MapConfigPage(QWidget *parent) : ConfigPage(tr("Map Layers"), parent)
{
    addSensorRows();
    addRangeRingRows();
    form()->addStretch();
}

void MapConfigPage::addSensorRows()
{
    m_sensorVisible = new QCheckBox(tr("Show the &sensor"));
    m_sensorColor = new ColorButton(tr("Sensor Colour"));
    m_coverageVisible = new QCheckBox(tr("Show its co&verage"));
    m_northMarkerVisible = new QCheckBox(tr("Flash the &north marker of a radar"));
    m_northMarkerColor = new ColorButton(tr("North Marker Colour"));
    m_antennaLineVisible = new QCheckBox(tr("Show the &antenna line of a radar"));
    m_antennaLineColor = new ColorButton(tr("Antenna Line Colour"));
    form()->addHeading(tr("Sensor"));
    form()->addField(m_sensorVisible);
    form()->addField(m_coverageVisible);
    form()->addField(m_antennaLineVisible);
    form()->addField(m_northMarkerVisible);
    form()->addField(tr("S&ite and coverage:"), m_sensorColor);
    form()->addField(tr("Antenna &line:"), m_antennaLineColor);
    form()->addField(tr("North &marker:"), m_northMarkerColor);
}

void MapConfigPage::addRangeRingRows()
{
    m_ringsVisible = new QCheckBox(tr("Show range &rings"));
    m_ringsVisible->setObjectName(QStringLiteral("ringsVisible"));
    m_ringNumber = RangeRingWindow::makeNumberBox();
    m_ringDistance = RangeRingWindow::makeDistanceBox();
    m_ringColor = new ColorButton(tr("Range Ring Colour"));
    form()->addHeading(tr("Range rings"));
    form()->addField(m_ringsVisible);
    form()->addField(tr("N&umber of rings:"), m_ringNumber);
    form()->addField(tr("&Distance between rings:"), m_ringDistance);
    form()->addField(tr("&Colour:"), m_ringColor);
}

void MapConfigPage::load(const Config &config)
{
    m_sensorVisible->setChecked(config.mapSensorVisible);
    m_sensorColor->setColor(config.mapSensorColor);
    m_coverageVisible->setChecked(config.mapSensorCoverageVisible);
    m_northMarkerVisible->setChecked(config.mapSensorRadarNorthMarkerVisible);
    m_northMarkerColor->setColor(config.mapSensorRadarNorthMarkerColor);
    m_antennaLineVisible->setChecked(config.mapSensorRadarAntennaLineVisible);
    m_antennaLineColor->setColor(config.mapSensorRadarAntennaLineColor);
    m_ringsVisible->setChecked(config.mapRangeRingVisible);
    m_ringNumber->setValue(config.mapRangeRingNumber);
    m_ringDistance->setValue(config.mapRangeRingDistance);
    m_ringColor->setColor(config.mapRangeRingColor);
}

void MapConfigPage::store(Config *config) const
{
    config->mapSensorVisible = m_sensorVisible->isChecked();
    config->mapSensorColor = m_sensorColor->color();
    config->mapSensorCoverageVisible = m_coverageVisible->isChecked();
    config->mapSensorRadarNorthMarkerVisible = m_northMarkerVisible->isChecked();
    config->mapSensorRadarNorthMarkerColor = m_northMarkerColor->color();
    config->mapSensorRadarAntennaLineVisible = m_antennaLineVisible->isChecked();
    config->mapSensorRadarAntennaLineColor = m_antennaLineColor->color();
    config->mapRangeRingVisible = m_ringsVisible->isChecked();
    config->mapRangeRingNumber = m_ringNumber->value();
    config->mapRangeRingDistance = m_ringDistance->value();
    config->mapRangeRingColor = m_ringColor->color();
}
