#include "radar_painting/geo_weather_map.h"

#include "app/config.h"
#include "geo/projector.h"
#include "radar_painting/quad_canvas.h"
#include "sensors/sensor_info.h"
#include "view/geo_view.h"
#include "view/steady_clock.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace {

constexpr double HatchSpacing = 8.0; // pixels

bool isLevel(int level)
{
    return level >= 0 && level < GeoWeatherMap::LevelCount;
}

} // namespace

GeoWeatherMap::GeoWeatherMap(Projector *projector, QObject *parent)
    : GeoLayer(tr("Weather"), parent), m_projector(projector), m_clock(steadyClock())
{
    m_levelVisible.fill(true);
    GeoWeatherMap::applyConfig(Config());
}

void GeoWeatherMap::setClock(std::function<qint64()> clock)
{
    m_clock = std::move(clock);
}

void GeoWeatherMap::applyConfig(const Config &config)
{
    m_colors = config.mapWeatherColor;
    m_opacity = std::clamp(config.mapWeatherOpacity, 0, 255);
    m_validity = static_cast<qint64>(std::max(config.mapWeatherValidity, 0)) * 1000;
    m_ignoreEmpty = config.mapWeatherIgnoreEmptyPicture;
    setVectorWidth(config.mapWeatherVectorWidth, config.mapWeatherAutoVectorWidth);
    m_drawn.invalidate();
    setVisible(config.mapWeatherVisible);
    Q_EMIT polluted();
}

void GeoWeatherMap::setVectorWidth(double width, bool automatic)
{
    if (width == m_vectorWidth && automatic == m_autoVectorWidth) {
        return;
    }
    m_vectorWidth = width;
    m_autoVectorWidth = automatic;
    makeShapes();
}

void GeoWeatherMap::setSensor(const QSharedPointer<SensorInfo> &sensor)
{
    m_site = sensor && sensor->type() == RadarSensor ? sensor->location() : GeoCoordinate();
    clear();
}

void GeoWeatherMap::setPicture(const WeatherProcessor::Picture &picture)
{
    if (!m_site.isValid()) {
        ++m_placelessPictures;
        return;
    }
    if (picture.vectors.isEmpty()) {
        ++m_emptyPictures;
        if (!m_ignoreEmpty) {
            clear();
        }
        return;
    }
    m_picture = picture;
    m_pictureTime = m_clock();
    makeShapes();
    Q_EMIT pictureChanged();
    Q_EMIT polluted();
}

void GeoWeatherMap::takePictureOf(const GeoWeatherMap &other)
{
    m_picture = other.m_picture;
    m_pictureTime = other.m_pictureTime;
    makeShapes();
    Q_EMIT pictureChanged();
    Q_EMIT polluted();
}

void GeoWeatherMap::setLevelVisible(int level, bool visible)
{
    if (!isLevel(level) || levelVisible(level) == visible) {
        return;
    }
    m_levelVisible[static_cast<std::size_t>(level)] = visible;
    m_drawn.invalidate();
    Q_EMIT polluted();
}

void GeoWeatherMap::clear()
{
    const bool hadPicture = m_picture.has_value();
    m_picture.reset();
    makeShapes();
    if (hadPicture) {
        Q_EMIT pictureChanged();
    }
    Q_EMIT polluted();
}

QColor GeoWeatherMap::drawnColor(int level) const
{
    QColor color = levelColor(level);
    if (color.isValid()) {
        color.setAlpha(levelVisible(level) ? m_opacity : std::min(2 * m_opacity, 255)); // thin lines hide less
    }
    return color;
}

int GeoWeatherMap::vectorCount(int level) const
{
    if (!m_picture || m_clock() - m_pictureTime > m_validity) {
        return 0;
    }
    return static_cast<int>(std::count_if(m_picture->vectors.begin(), m_picture->vectors.end(),
        [level](const WeatherProcessor::PolarVector &vector) { return vector.intensity == level; }));
}

void GeoWeatherMap::makeShapes()
{
    m_drawn.invalidate();
    m_shapes.clear();
    if (!m_picture) {
        return;
    }
    m_shapes = weatherShapes(*m_projector, m_site, m_picture->vectors, drawnWidth());
}

double GeoWeatherMap::drawnWidth() const
{
    return m_autoVectorWidth ? touchingWidth(m_picture->vectors, m_vectorWidth) : m_vectorWidth;
}

std::optional<ShownWeather> GeoWeatherMap::vectorAt(const QPointF &place) const
{
    if (!visible() || !m_picture || m_clock() - m_pictureTime > m_validity) {
        return std::nullopt;
    }
    const auto holds = [this, &place](const WeatherShape &shape) {
        const QPolygonF outline(QList<QPointF>(shape.corners.begin(), shape.corners.end()));
        return isLevel(shape.level) && levelColor(shape.level).isValid()
            && outline.containsPoint(place, Qt::OddEvenFill);
    };
    const auto found = std::find_if(m_shapes.rbegin(), m_shapes.rend(), holds);
    if (found == m_shapes.rend()) {
        return std::nullopt;
    }
    return ShownWeather{m_picture->vectors[found->vector], m_picture->timeOfDay, drawnWidth(), m_autoVectorWidth,
        !levelVisible(found->level)};
}

void GeoWeatherMap::dropExpired()
{
    if (m_picture && m_clock() - m_pictureTime > m_validity) {
        clear();
    }
}

void GeoWeatherMap::paint(QPainter &painter, const GeoView &view)
{
    dropExpired();
    if (m_shapes.empty()) {
        return;
    }
    m_drawn.turnTo(view, [this](QImage &picture, const GeoView &part) { drawShapes(picture, part); });
    m_drawn.paint(painter);
}

void GeoWeatherMap::drawShapes(QImage &picture, const GeoView &part) const
{
    const double ratio = part.devicePixelRatio();
    const QTransform toDevice = part.screenTransform() * QTransform::fromScale(ratio, ratio);
    QuadCanvas canvas(picture);
    // Tied to the ground, so that it moves along with it.
    canvas.setHatching(toDevice.map(m_projector->toCartesian(m_site)), qRound(HatchSpacing * ratio), qRound(ratio));
    for (const WeatherShape &shape : m_shapes) {
        const QColor color = isLevel(shape.level) ? drawnColor(shape.level) : QColor();
        if (!color.isValid()) {
            continue;
        }
        QuadCanvas::Quad quad;
        std::transform(shape.corners.begin(), shape.corners.end(), quad.begin(),
            [&toDevice](const QPointF &corner) { return toDevice.map(corner); });
        canvas.fill(quad, qPremultiply(color.rgba()),
            levelVisible(shape.level) ? QuadCanvas::Pattern::Solid : QuadCanvas::Pattern::Hatched);
    }
}
