#include "settings/map_config_page.h"

#include "app/app_paths.h"
#include "app/map_places.h"
#include "widgets/field_form.h"
#include "widgets/file_edit.h"

#include <QFileInfo>

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
    addOrientationRows();
    addPlotRows();
    form()->addStretch();
}

void MapConfigPage::addStaticMapRows()
{
    form()->addHeading(tr("Static maps"));
    addSwitch(tr("Show static ma&ps"), &Config::mapStaticVisible);
    m_index =
        addFile(tr("Map inde&x:"), tr("Select Map Index"), tr("Map Index (*.idx);;All files (*)"), &Config::mapIndex);
    m_styleSheet = addFile(
        tr("S&tyle sheet:"), tr("Select Map Style Sheet"), tr("Map Style Sheet (*.mss)"), &Config::mapStyleSheet);
    addNumber(tr("Symbol si&ze:"), &Config::mapStaticSymbolSize);
    addSwitch(tr("Smooth scaled p&ictures"), &Config::mapSmoothPixmapTransform,
        tr("Pictures in maps look softer when they are enlarged, and take longer to draw."));
}

FileEdit *MapConfigPage::addFile(
    const QString &label, const QString &title, const QString &filter, QString Config::*member)
{
    auto *field = new FileEdit(title, filter);
    form()->addField(label, field);
    bind<QString>(
        field, member,
        [field](const QString &path) {
            field->setPath(path);
            field->setBaseDir(folder(path));
        },
        [field] { return std::optional(AppPaths::storePath(field->path())); });
    return field;
}

void MapConfigPage::addSensorRows()
{
    form()->addHeading(tr("Sensor"));
    addSwitch(tr("Show the &sensor"), &Config::mapSensorVisible);
    addSwitch(tr("Show its na&me"), &Config::mapSensorNameVisible);
    addSwitch(tr("Show its co&verage"), &Config::mapSensorCoverageVisible);
    addSwitch(tr("Show the &antenna line of a radar"), &Config::mapSensorRadarAntennaLineVisible);
    addSwitch(tr("Flash the &north marker of a radar"), &Config::mapSensorRadarNorthMarkerVisible);
    addSwitch(tr("Short north marker"), &Config::mapSensorRadarNorthMarkerShort,
        tr("A tick at the rim of the coverage instead of a line from the site."));
    addColor(tr("Sit&e and coverage:"), tr("Sensor Colour"), &Config::mapSensorColor);
    addColor(tr("Antenna &line:"), tr("Antenna Line Colour"), &Config::mapSensorRadarAntennaLineColor);
    addColor(tr("North &marker:"), tr("North Marker Colour"), &Config::mapSensorRadarNorthMarkerColor);
}

void MapConfigPage::addRangeRingRows()
{
    form()->addHeading(tr("Range rings"));
    addSwitch(tr("Show range &rings"), &Config::mapRangeRingVisible);
    addNumber(tr("N&umber of rings:"), &Config::mapRangeRingNumber);
    addNumber(tr("&Distance between rings:"), &Config::mapRangeRingDistance, 2, 1.0);
    addColor(tr("&Colour:"), tr("Range Ring Colour"), &Config::mapRangeRingColor);
    addSwitch(tr("Show their distances"), &Config::mapRangeRingLabelVisible);
}

void MapConfigPage::addOrientationRows()
{
    form()->addHeading(tr("Orientation"));
    addSwitch(tr("Show a compass rose"), &Config::mapCompassRoseVisible);
    addSwitch(tr("Show a scale &bar"), &Config::mapScaleBarVisible);
    addSwitch(tr("Show a &key of symbols and weather colours"), &Config::mapKeyVisible);
    addColor(tr("&Text and rose:"), tr("Orientation Colour"), &Config::mapRangeRingLabelColor);
}

void MapConfigPage::addPlotRows()
{
    form()->addHeading(tr("Plots"));
    addSwitch(tr("Show pl&ots"), &Config::mapPlotVisible,
        tr("Every target report with a place, also those that no track is made of."));
    QDoubleSpinBox *seconds = addNumber(tr("Time that a plot is seen:"), &Config::mapPlotSeconds, 1, 1.0);
    seconds->setSpecialValueText(tr("three revolutions"));
    addColor(tr("Plot colour:"), tr("Plot Colour"), &Config::mapPlotColor);
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
