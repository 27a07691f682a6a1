#include "settings/map_config_page.h"

#include "app/app_paths.h"
#include "app/config.h"
#include "app/map_places.h"
#include "widgets/color_button.h"
#include "widgets/field_form.h"
#include "widgets/file_edit.h"
#include "widgets/range_ring_fields.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QSpinBox>

namespace {

QString folder(const QString &configured)
{
    return QFileInfo(MapPlaces::resolve(configured)).absolutePath();
}

} // namespace

MapConfigPage::MapConfigPage(QWidget *parent) : ConfigPage(tr("Map Layers"), parent)
{
    addStaticMapRows();
    addSensorRows();
    addRangeRingRows();
    form()->addStretch();
}

void MapConfigPage::addStaticMapRows()
{
    m_staticVisible = new QCheckBox(tr("Show static ma&ps"));
    m_staticVisible->setObjectName(QStringLiteral("staticVisible"));
    m_index = new FileEdit(tr("Select Map Index"), tr("Map Index (*.idx);;All files (*)"));
    m_index->setObjectName(QStringLiteral("mapIndex"));
    m_styleSheet = new FileEdit(tr("Select Map Style Sheet"), tr("Map Style Sheet (*.mss)"));
    m_styleSheet->setObjectName(QStringLiteral("mapStyleSheet"));
    m_symbolSize = new QSpinBox;
    m_symbolSize->setObjectName(QStringLiteral("symbolSize"));
    m_symbolSize->setRange(4, 256);
    m_symbolSize->setSuffix(tr(" pixels"));
    form()->addHeading(tr("Static maps"));
    form()->addField(m_staticVisible);
    form()->addField(tr("Map inde&x:"), m_index);
    form()->addField(tr("S&tyle sheet:"), m_styleSheet);
    form()->addField(tr("Symbol si&ze:"), m_symbolSize);
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
    m_ringNumber = makeRingNumberBox();
    m_ringDistance = makeRingDistanceBox();
    m_ringColor = new ColorButton(tr("Range Ring Colour"));
    form()->addHeading(tr("Range rings"));
    form()->addField(m_ringsVisible);
    form()->addField(tr("N&umber of rings:"), m_ringNumber);
    form()->addField(tr("&Distance between rings:"), m_ringDistance);
    form()->addField(tr("&Colour:"), m_ringColor);
}

void MapConfigPage::load(const Config &config)
{
    m_staticVisible->setChecked(config.mapStaticVisible);
    m_index->setPath(config.mapIndex);
    m_index->setBaseDir(folder(config.mapIndex));
    m_styleSheet->setPath(config.mapStyleSheet);
    m_styleSheet->setBaseDir(folder(config.mapStyleSheet));
    m_symbolSize->setValue(config.mapStaticSymbolSize);
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

bool MapConfigPage::validate()
{
    // A file that is missing just now must not keep other settings from being changed; loading it reports the matter.
    bool valid = true;
    for (FileEdit *file : {m_index, m_styleSheet}) {
        valid &= form()->check(file, file->path().isEmpty() ? tr("The name of a file is needed.") : QString());
    }
    return valid;
}

void MapConfigPage::store(Config *config) const
{
    config->mapStaticVisible = m_staticVisible->isChecked();
    config->mapIndex = AppPaths::storePath(m_index->path());
    config->mapStyleSheet = AppPaths::storePath(m_styleSheet->path());
    config->mapStaticSymbolSize = m_symbolSize->value();
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
