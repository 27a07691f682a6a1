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
    addSwitch(tr("Show static ma&ps"), &Config::mapStaticVisible,
        tr("Draws the airspaces, routes and places of the map index under the traffic."));
    m_index = addFile(tr("Map inde&x:"), tr("Select Map Index"), tr("Map Index (*.idx);;All files (*)"),
        &Config::mapIndex, tr("The list of the maps that are drawn; a new one is made where the file does not exist."));
    m_styleSheet = addFile(tr("S&tyle sheet:"), tr("Select Map Style Sheet"), tr("Map Style Sheet (*.mss)"),
        &Config::mapStyleSheet, tr("The colours, lines and fonts that maps are drawn with."));
    addNumber(tr("Symbol si&ze:"), &Config::mapStaticSymbolSize, tr("How large the symbols of places are drawn."));
    addSwitch(tr("Smooth scaled p&ictures"), &Config::mapSmoothPixmapTransform,
        tr("Pictures in maps look softer when they are enlarged, and take longer to draw."));
}

FileEdit *MapConfigPage::addFile(
    const QString &label, const QString &title, const QString &filter, QString Config::*member, const QString &toolTip)
{
    auto *field = new FileEdit(title, filter);
    field->setToolTip(toolTip);
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
    addSwitch(tr("Show the &sensor"), &Config::mapSensorVisible,
        tr("Draws the sensor of the input where it stands, with all that is chosen below."));
    addSwitch(tr("Show its na&me"), &Config::mapSensorNameVisible, tr("Writes the sensor's name beside its site."));
    addSwitch(tr("Show its co&verage"), &Config::mapSensorCoverageVisible,
        tr("Draws a circle as far out as the sensor covers."));
    addSwitch(tr("Show the &antenna line of a radar"), &Config::mapSensorRadarAntennaLineVisible,
        tr("Draws where the antenna points, by the sector messages that come in."));
    addSwitch(tr("Flash the &north marker of a radar"), &Config::mapSensorRadarNorthMarkerVisible,
        tr("Draws a line to the north for a moment whenever the antenna passes it."));
    addSwitch(tr("Short north marker"), &Config::mapSensorRadarNorthMarkerShort,
        tr("A tick at the rim of the coverage instead of a line from the site."));
    addColor(tr("Sit&e and coverage:"), tr("Sensor Colour"), &Config::mapSensorColor,
        tr("Colour of the sensor's symbol, its name and the rim of its coverage."));
    addColor(tr("Antenna &line:"), tr("Antenna Line Colour"), &Config::mapSensorRadarAntennaLineColor,
        tr("Colour of the line that turns with the antenna."));
    addColor(tr("North &marker:"), tr("North Marker Colour"), &Config::mapSensorRadarNorthMarkerColor,
        tr("Colour of the line that flashes when the antenna passes the north."));
}

void MapConfigPage::addRangeRingRows()
{
    form()->addHeading(tr("Range rings"));
    addSwitch(tr("Show range &rings"), &Config::mapRangeRingVisible,
        tr("Draws circles of equal distance round the sensor or the centre chosen."));
    addNumber(tr("N&umber of rings:"), &Config::mapRangeRingNumber, tr("How many rings are drawn."));
    addNumber(tr("&Distance between rings:"), &Config::mapRangeRingDistance, 2, 1.0,
        tr("From the centre to the first ring, and from each ring to the next."));
    addColor(tr("&Colour:"), tr("Range Ring Colour"), &Config::mapRangeRingColor, tr("Colour of the rings."));
    addSwitch(tr("Show their distances"), &Config::mapRangeRingLabelVisible,
        tr("Writes the distance on each ring, on four bearings."));
}

void MapConfigPage::addOrientationRows()
{
    form()->addHeading(tr("Orientation"));
    addSwitch(tr("Show a compass rose"), &Config::mapCompassRoseVisible,
        tr("Draws bearings round the rim of the view, which turn with it."));
    addSwitch(tr("Show a scale &bar"), &Config::mapScaleBarVisible,
        tr("Draws how long some nautical miles are in the view."));
    addSwitch(tr("Show a &key of symbols and weather colours"), &Config::mapKeyVisible,
        tr("Draws what each symbol and colour that is in sight means."));
    addColor(tr("&Text and rose:"), tr("Orientation Colour"), &Config::mapRangeRingLabelColor,
        tr("Colour of ring distances, compass rose, scale bar and key."));
}

void MapConfigPage::addPlotRows()
{
    form()->addHeading(tr("Plots"));
    addSwitch(tr("Show pl&ots"), &Config::mapPlotVisible,
        tr("Every target report with a place, also those that no track is made of."));
    QDoubleSpinBox *seconds = addNumber(tr("Time that a plot is seen:"), &Config::mapPlotSeconds, 1, 1.0,
        tr("How long a plot takes to fade away; 0 stands for three revolutions of the antenna."));
    seconds->setSpecialValueText(tr("three revolutions"));
    addColor(tr("Plot colour:"), tr("Plot Colour"), &Config::mapPlotColor, tr("Colour of the marks of plots."));
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
