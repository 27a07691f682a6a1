#include "map_painting/geo_static_map.h"

#include "app/config.h"
#include "map_painting/static_map_area_painter.h"
#include "map_painting/static_map_image_painter.h"
#include "map_painting/static_map_label_painter.h"
#include "map_painting/static_map_line_painter.h"
#include "map_painting/static_map_symbol_painter.h"
#include "view/geo_view.h"

#include <QPainter>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace {

constexpr qsizetype PointsAtOnce = 5000; // prepared in a few milliseconds
constexpr int SmallestSymbol = 4; // pixels
constexpr int LargestSymbol = 256;
constexpr std::size_t MostPoints = 30000; // of lines and edges, in a region that is not crowded
constexpr double WidestElement = 512.0; // pixels that labels, symbols or wide lines may reach beyond their points

// A map that is being loaded changes often without anything to be seen.
bool looksTheSame(const MapLibrary::Map &one, const MapLibrary::Map &other)
{
    return one.id == other.id && one.data == other.data && one.revision == other.revision && one.entry == other.entry;
}

// Of lines and edges, in the plane's own copy of the world.
std::size_t pointsIn(const StaticMapGroup &group, const PlaneBox &box, double metresPerPixel)
{
    std::size_t count = 0;
    for (const std::vector<StaticMapShape> *shapes : {&group.areas, &group.lines}) {
        for (const StaticMapShape &shape : *shapes) {
            if (!shape.bounds().touches(box)) {
                continue;
            }
            const StaticMapShape::Level &level = shape.level(metresPerPixel);
            for (const StaticMapShape::Block &block : level.blocks) {
                count += block.bounds.touches(box) ? block.last - block.first : 0;
            }
        }
    }
    return count;
}

} // namespace

GeoStaticMap::GeoStaticMap(Projector *projector, QObject *parent)
    : GeoLayer(tr("Static maps"), parent),
      m_projector(projector), m_painters{std::make_unique<StaticMapImagePainter>(),
                                  std::make_unique<StaticMapAreaPainter>(), std::make_unique<StaticMapLinePainter>(),
                                  std::make_unique<StaticMapSymbolPainter>(), std::make_unique<StaticMapLabelPainter>()}
{
    GeoStaticMap::applyConfig(Config());
}

GeoStaticMap::~GeoStaticMap()
{
    for (const Prepared &prepared : std::as_const(m_prepared)) {
        prepared.cancel();
    }
    m_pool.waitForDone();
}

void GeoStaticMap::applyConfig(const Config &config)
{
    m_smoothImages = config.mapSmoothPixmapTransform;
    m_ground = config.mapBackgroundColor;
    setSymbolSize(config.mapStaticSymbolSize);
    forgetPainted();
    setVisible(config.mapStaticVisible);
}

void GeoStaticMap::setSymbolSize(int pixels)
{
    m_symbolSize = std::clamp(pixels, SmallestSymbol, LargestSymbol);
    forgetPainted();
}

void GeoStaticMap::setOverTiles(bool over)
{
    if (over != m_overTiles) {
        m_overTiles = over;
        forgetPainted();
    }
}

void GeoStaticMap::setStyleSheet(const MapStyleSheet &sheet)
{
    m_styles = sheet;
    forgetPainted();
}

void GeoStaticMap::setMaps(const QList<MapLibrary::Map> &maps)
{
    const bool same = std::equal(maps.begin(), maps.end(), m_maps.begin(), m_maps.end(), looksTheSame);
    m_maps = maps;
    if (same) {
        return;
    }
    QSet<quint64> present;
    for (const MapLibrary::Map &map : maps) {
        if (!map.data) {
            continue;
        }
        present.insert(map.id);
        prepare(map);
    }
    m_prepared.removeIf([&present](QHash<quint64, Prepared>::iterator prepared) {
        if (present.contains(prepared.key())) {
            return false;
        }
        prepared->cancel();
        return true;
    });
    forgetPainted();
}

bool GeoStaticMap::preparing() const
{
    return std::any_of(m_prepared.begin(), m_prepared.end(), [](const Prepared &prepared) { return prepared.token; });
}

void GeoStaticMap::prepare(const MapLibrary::Map &map)
{
    Prepared &prepared = m_prepared[map.id];
    if (prepared.data == map.data && prepared.revision == map.revision) {
        return;
    }
    prepared.cancel();
    prepared.token.reset();
    prepared.data = map.data;
    prepared.revision = map.revision;
    if (const StaticMapGeometry::Pointer shared = geometryOfOther(map)) {
        prepared.geometry = shared;
    } else if (shapePointCount(*map.data) > PointsAtOnce) {
        prepareInBackground(map.id, prepared);
    } else {
        prepared.geometry = StaticMapGeometry::make(map.data, *m_projector, false);
    }
}

StaticMapGeometry::Pointer GeoStaticMap::geometryOfOther(const MapLibrary::Map &map) const
{
    if (!m_other) {
        return {};
    }
    const Prepared prepared = m_other->m_prepared.value(map.id);
    const bool ready = prepared.data == map.data && prepared.revision == map.revision && !prepared.token;
    return ready ? prepared.geometry : StaticMapGeometry::Pointer();
}

void GeoStaticMap::prepareInBackground(quint64 id, Prepared &prepared)
{
    const auto token = std::make_shared<std::atomic<bool>>(false);
    prepared.token = token;
    m_pool.start([this, id, token, data = prepared.data, projector = m_projector] {
        const StaticMapGeometry::Pointer geometry = StaticMapGeometry::make(data, *projector, *token);
        if (geometry) {
            QMetaObject::invokeMethod(this, [this, id, token, geometry] { takeGeometry(id, token, geometry); });
        }
    });
}

void GeoStaticMap::takeGeometry(quint64 id, const Token &token, const StaticMapGeometry::Pointer &geometry)
{
    const auto prepared = m_prepared.find(id);
    if (prepared == m_prepared.end() || prepared->token != token) {
        return;
    }
    prepared->token.reset();
    prepared->geometry = geometry;
    forgetPainted();
}

// What was painted refers to maps and styles that are going to be replaced.
void GeoStaticMap::forgetPainted()
{
    for (const auto &painter : m_painters) {
        painter->forget();
    }
    m_labels.forget();
    m_regionValid = false;
    m_picture.invalidate();
    Q_EMIT polluted();
}

std::vector<ShownMap> GeoStaticMap::shownMaps(double metresPerPixel) const
{
    std::vector<ShownMap> shown;
    for (const MapLibrary::Map &map : m_maps) {
        const StaticMapGeometry::Pointer geometry = m_prepared.value(map.id).geometry;
        if (geometry && map.visible() && map.inZoomRange(metresPerPixel)) {
            shown.push_back({geometry, map.priority()});
        }
    }
    std::stable_sort(shown.begin(), shown.end(),
        [](const ShownMap &one, const ShownMap &other) { return one.priority < other.priority; });
    return shown;
}

void GeoStaticMap::paint(QPainter &painter, const GeoView &view)
{
    const std::vector<ShownMap> maps = shownMaps(view.metresPerPixel());
    if (maps.empty() || view.screenRect().isEmpty()) {
        return;
    }
    const StaticMapRegion region = StaticMapRegion::around(view);
    if (!m_regionValid || region != m_region) {
        // Other labels may be chosen in another region; mostly they are the same.
        const bool beside = m_regionValid && region.toSheet == m_region.toSheet;
        const QRectF held = m_picture.held();
        const bool wasCrowded = m_crowded;
        const QList<QRectF> labelsBefore = labelsIn(held);
        m_region = region;
        decideForRegion(maps, view.metresPerPixel());
        if (!beside || m_crowded != wasCrowded || labelsIn(held) != labelsBefore) {
            m_picture.invalidate();
        }
    }
    m_picture.turnTo(view, [&](QImage &picture, const GeoView &part) { paintPart(picture, part, maps); });
    m_picture.paint(painter);
}

QList<QRectF> GeoStaticMap::textPlaces(const GeoView &view) const
{
    const QTransform &from = m_region.toSheet;
    const QTransform &to = view.screenTransform();
    const bool sameScale =
        from.m11() == to.m11() && from.m12() == to.m12() && from.m21() == to.m21() && from.m22() == to.m22();
    if (!visible() || !m_regionValid || !sameScale) {
        return {};
    }
    const QPointF origin(to.dx(), to.dy());
    QList<QRectF> places = labelsIn(QRectF(view.screenRect()).translated(-origin));
    for (QRectF &place : places) {
        place.translate(origin);
    }
    return places;
}

// In pixels from where the plane's origin lies.
QList<QRectF> GeoStaticMap::labelsIn(const QRectF &part) const
{
    QList<QRectF> places;
    std::copy_if(m_labels.boxes().begin(), m_labels.boxes().end(), std::back_inserter(places),
        [&part](const QRectF &box) { return box.intersects(part); });
    return places;
}

void GeoStaticMap::decideForRegion(const std::vector<ShownMap> &maps, double metresPerPixel)
{
    m_labels.layOut(m_region, maps, m_styles, m_symbolSize);
    std::size_t points = 0;
    for (const ShownMap &map : maps) {
        for (const StaticMapGroup &group : map.geometry->groups()) {
            points += pointsIn(group, m_region.plane, metresPerPixel);
        }
    }
    m_crowded = points > MostPoints;
    m_regionValid = true;
}

void GeoStaticMap::paintPart(QImage &picture, const GeoView &part, const std::vector<ShownMap> &maps)
{
    QPainter painter(&picture);
    StaticMapFrame frame;
    frame.sight = PlaneBox::of(part.planeRect());
    frame.metresPerPixel = part.metresPerPixel();
    frame.devicePixelRatio = part.devicePixelRatio();
    frame.symbolSize = m_symbolSize;
    frame.ground = m_ground;
    frame.smoothImages = m_smoothImages;
    frame.crowded = m_crowded;
    frame.labels = &m_labels;
    for (const ShownMap &map : maps) {
        std::vector<Look> looks;
        for (const StaticMapGroup &group : map.geometry->groups()) {
            looks.push_back(lookOf(group.className));
        }
        for (const auto &elements : m_painters) {
            for (std::size_t i = 0; i < looks.size(); ++i) {
                paintGroup(
                    painter, part, frame, map.geometry->groups()[i], map.geometry->period(), looks[i], *elements);
            }
        }
    }
}

GeoStaticMap::Look GeoStaticMap::lookOf(const QString &className) const
{
    Look look{m_styles.style(className), !m_styles.contains(className)};
    if (m_overTiles && look.style.brush.isOpaque()) {
        look.style.brush = Qt::NoBrush;
    }
    return look;
}

void GeoStaticMap::paintGroup(QPainter &painter, const GeoView &view, const StaticMapFrame &frame,
    const StaticMapGroup &group, double period, const Look &look, StaticMapPainter &elements)
{
    const PlaneBox reach = group.bounds.grown(WidestElement * frame.metresPerPixel);
    const auto [first, last] = copiesInSight(frame.sight, period);
    for (int copy = first; copy <= last; ++copy) {
        const double east = copy * period;
        StaticMapFrame ofCopy = frame;
        ofCopy.copy = copy;
        ofCopy.sight = frame.sight.moved(-east);
        if (!reach.touches(ofCopy.sight)) {
            continue;
        }
        ofCopy.toScreen = QTransform::fromTranslate(east, 0.0) * view.screenTransform();
        if (look.cased) {
            elements.paintCasing(painter, ofCopy, group, look.style);
        }
        elements.paint(painter, ofCopy, group, look.style);
    }
}
