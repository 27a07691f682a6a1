#include "radar_painting/geo_video_map.h"

#include "app/config.h"
#include "geo/projector.h"
#include "geo/wgs84.h"
#include "radar_painting/radial_store.h"
#include "radar_painting/site_offsets.h"
#include "radar_painting/video_raster.h"
#include "sensors/smr_sensor_info.h"
#include "view/geo_view.h"
#include "view/steady_clock.h"
#include "view/view_sheet.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr int UsualAzimuthBins = 8192; // where nothing tells: 0.044 degrees each
constexpr int FewestAzimuthBins = 2048;
constexpr int MostAzimuthBins = 16384;
constexpr std::size_t MostReportedSources = 8; // more than that is noise on the line

// As many bins as radials fit into a turn, so that bins and radials fall together. Azimuth pulses, where the sensor
// states them, are what radials are made of.
int azimuthBins(int statedSteps, const VideoProcessor::Radial &radial)
{
    if (statedSteps >= FewestAzimuthBins) {
        return statedSteps;
    }
    const double width = std::abs(std::remainder(radial.endAzimuth - radial.startAzimuth, 360.0));
    return width > 0.0 ? static_cast<int>(
               std::clamp(360.0 / width, static_cast<double>(FewestAzimuthBins), static_cast<double>(MostAzimuthBins))
               + 0.5)
                       : UsualAzimuthBins;
}

} // namespace

// One radar's video, and its picture of the view that was painted last.
struct GeoVideoMap::Radar {
    explicit Radar(const Place &where) : place(where) { }

    bool sameFormat(const VideoProcessor::Radial &radial) const
    {
        return radial.cellSize == cellSize && radial.videoMode == videoMode;
    }

    void restart(const VideoProcessor::Radial &radial)
    {
        store = RadialStore(azimuthBins(place.azimuthSteps, radial));
        raster.reset();
        cellSize = radial.cellSize;
        videoMode = radial.videoMode;
    }

    // Brings the raster, not its contents, up to date with view and store.
    void fitTo(const GeoView &view, Projector &projector);
    // Brings its contents up to date.
    void update(const VideoPalette &palette, qint64 now, qint64 validity);

    Place place;
    RadialStore store{UsualAzimuthBins};
    double cellSize = 0.0; // metres
    quint16 videoMode = 0;
    std::unique_ptr<VideoRaster> raster; // null while there is nothing to show
    ViewSheet sheet; // that the raster lies on
    QRect seenBefore; // of it, in the last frame
    bool dragged = false; // another part of the same sheet is seen than in the last frame
};

GeoVideoMap::GeoVideoMap(Projector *projector, QObject *parent)
    : GeoLayer(tr("Video"), parent), m_projector(projector), m_clock(steadyClock()), m_palette(m_colors)
{
    GeoVideoMap::applyConfig(Config());
}

GeoVideoMap::~GeoVideoMap() = default;

void GeoVideoMap::setClock(std::function<qint64()> clock)
{
    m_clock = std::move(clock);
}

void GeoVideoMap::applyConfig(const Config &config)
{
    const VideoPalette::Settings colors{config.mapVideoLowColor, config.mapVideoHighColor, config.mapVideoLowOpacity,
        config.mapVideoHighOpacity, config.mapVideoThreshold};
    if (!(colors == m_colors)) {
        m_colors = colors;
        m_palette = VideoPalette(colors);
        for (const auto &[source, radar] : m_radars) {
            if (radar->raster) {
                radar->raster->recolor();
            }
        }
    }
    m_validity = static_cast<qint64>(std::max(config.mapVideoValidity, 0)) * 1000;
    setVisible(config.mapVideoVisible);
    if (!visible()) {
        clear();
    }
    Q_EMIT polluted();
}

GeoVideoMap::Place GeoVideoMap::placeOf(const SensorInfo &sensor)
{
    const auto *surfaceRadar = dynamic_cast<const SmrSensorInfo *>(&sensor);
    return {sensor.location(),
        surfaceRadar ? static_cast<int>(std::min<unsigned int>(surfaceRadar->acp(), MostAzimuthBins)) : 0};
}

void GeoVideoMap::setSensor(const QSharedPointer<SensorInfo> &sensor)
{
    m_sensorSource = sensor ? Source(sensor->sac(), sensor->sic()) : Source(0, 0);
    m_sensorPlace = sensor ? placeOf(*sensor) : Place();
    clear();
}

void GeoVideoMap::setKnownSensors(const QList<QSharedPointer<SensorInfo>> &sensors)
{
    m_knownPlaces.clear();
    for (const auto &sensor : sensors) {
        m_knownPlaces.emplace(Source(sensor->sac(), sensor->sic()), placeOf(*sensor));
    }
    clear();
}

void GeoVideoMap::clear()
{
    m_radars.clear();
    m_unknown.clear();
    Q_EMIT polluted();
}

const GeoVideoMap::Place *GeoVideoMap::findPlace(const Source &source) const
{
    const Source unstated(0, 0);
    const Place *place = nullptr;
    if (source == m_sensorSource || source == unstated || m_sensorSource == unstated) {
        place = &m_sensorPlace;
    } else if (const auto known = m_knownPlaces.find(source); known != m_knownPlaces.end()) {
        place = &known->second;
    }
    return place && place->location.isValid() ? place : nullptr;
}

GeoVideoMap::Radar *GeoVideoMap::radarFor(const VideoProcessor::Radial &radial)
{
    const Source source(radial.sac, radial.sic);
    if (const auto found = m_radars.find(source); found != m_radars.end()) {
        return found->second.get();
    }
    const Place *place = findPlace(source);
    if (!place) {
        if (m_unknown.size() < MostReportedSources && m_unknown.insert(source).second) {
            Q_EMIT siteUnknown(radial.sac, radial.sic);
        }
        return nullptr;
    }
    return m_radars.emplace(source, std::make_unique<Radar>(*place)).first->second.get();
}

void GeoVideoMap::addRadial(const VideoProcessor::Radial &radial)
{
    if (!visible() || !(radial.cellSize > 0.0) || !std::isfinite(radial.cellSize)) {
        return;
    }
    Radar *radar = radarFor(radial);
    if (!radar) {
        return;
    }
    if (!radar->sameFormat(radial)) {
        radar->restart(radial);
    }
    radar->store.add(radial, m_clock());
}

void GeoVideoMap::paint(QPainter &painter, const GeoView &view)
{
    const qint64 now = m_clock();
    for (auto entry = m_radars.begin(); entry != m_radars.end();) {
        Radar &radar = *entry->second;
        radar.store.dropOlder(now - m_validity);
        if (radar.store.empty()) {
            entry = m_radars.erase(entry);
            continue;
        }
        paintRadar(painter, view, radar);
        ++entry;
    }
}

void GeoVideoMap::Radar::fitTo(const GeoView &view, Projector &projector)
{
    const bool usable = sheet.follow(view) && raster && store.endCell() <= raster->reach();
    const QRect &seen = sheet.seen();
    dragged = usable && seen != seenBefore;
    seenBefore = seen;
    const QTransform toPlane = sheet.fromPlane().inverted();
    const auto offsetsOf = [&](const QRect &part) {
        const QTransform fromPart = QTransform::fromTranslate(part.x(), part.y()) * toPlane;
        return SiteOffsets(projector, place.location, fromPart, part.size());
    };
    if (usable) {
        raster->cover(seen, offsetsOf);
        return;
    }
    if (!raster) {
        raster = std::make_unique<VideoRaster>();
    }
    const QRect part = VideoRaster::tilesOf(seen);
    raster->reset(offsetsOf(part), part, store, cellSize);
}

// A view that is dragged comes many times a second: what the antenna brings and what fades need not be in each frame.
void GeoVideoMap::Radar::update(const VideoPalette &palette, qint64 now, qint64 validity)
{
    const auto extent = dragged ? VideoRaster::Extent::Share : VideoRaster::Extent::All;
    raster->update(store, palette, now, validity, extent);
}

void GeoVideoMap::paintRadar(QPainter &painter, const GeoView &view, Radar &radar)
{
    radar.fitTo(view, *m_projector);
    radar.update(m_palette, m_clock(), m_validity);
    const double ratio = view.devicePixelRatio();
    painter.setWorldTransform(QTransform::fromScale(1.0 / ratio, 1.0 / ratio));
    radar.raster->paint(painter, radar.sheet.seen());
}

std::optional<ShownEcho> GeoVideoMap::echoAt(const QPointF &place, double reach) const
{
    std::optional<ShownEcho> strongest;
    for (const auto &[source, radar] : m_radars) {
        const auto echo = echoOf(source, *radar, place, reach);
        if (echo && (!strongest || echo->amplitude > strongest->amplitude)) {
            strongest = echo;
        }
    }
    return visible() ? strongest : std::nullopt;
}

// A pixel shows the strongest of the cells that it touches, and so does this.
std::optional<ShownEcho> GeoVideoMap::echoOf(
    const Source &source, const Radar &radar, const QPointF &place, double reach) const
{
    const GeoCoordinate target = m_projector->toWgs84(place);
    const GeoCoordinate beside = m_projector->toWgs84(place + QPointF(reach, 0.0));
    if (!target.isValid() || !beside.isValid()) {
        return std::nullopt;
    }
    const double range = radar.place.location.distanceTo(target);
    const double groundReach = target.distanceTo(beside);
    RadialStore::Sector sector;
    sector.azimuth = radar.place.location.azimuthTo(target);
    sector.halfAngle = range > groundReach ? wgs84::degrees(std::asin(groundReach / range)) : 180.0;
    sector.firstCell = static_cast<quint64>(std::max(range - groundReach, 0.0) / radar.cellSize);
    sector.endCell = static_cast<quint64>((range + groundReach) / radar.cellSize) + 1;
    const auto strongest = radar.store.strongest(sector, m_clock() - m_validity);
    if (strongest.amplitude <= m_colors.threshold) {
        return std::nullopt;
    }
    const int bins = radar.store.binCount();
    return ShownEcho{source.first, source.second, (strongest.bin + 0.5) * 360.0 / bins,
        (static_cast<double>(strongest.cell) + 0.5) * radar.cellSize, strongest.cell, radar.cellSize,
        strongest.amplitude, m_colors.threshold, bins, m_validity};
}
