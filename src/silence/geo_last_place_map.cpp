#include "silence/geo_last_place_map.h"

#include "app/config.h"
#include "view/contrast.h"
#include "view/geo_view.h"
#include "view/map_text.h"
#include "view/text_room.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double Radius = 6.0; // pixels
constexpr double TextGap = 4.0;
constexpr double LineHeight = 13.0;
constexpr double DetailLimit = 5000.0; // metres per pixel, above which names would hide each other
constexpr double LeastContrast = 2.6; // to the ground: dim, but not lost
constexpr int DimmingSteps = 8;

QString timeText(const LastPlace &place)
{
    return place.time.toUTC().toString(QStringLiteral("HH:mm:ss"));
}

QColor mixed(const QColor &color, const QColor &ground, double part)
{
    const auto mix = [part](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * part)); };
    return {mix(color.red(), ground.red()), mix(color.green(), ground.green()), mix(color.blue(), ground.blue())};
}

// As near to the ground as can still be seen well.
QColor dimmed(const QColor &color, const QColor &ground)
{
    const QColor full = contrastRatio(color, ground) >= LeastContrast ? color : groundFor(ground);
    QColor dim = full;
    for (int step = 1; step < DimmingSteps; ++step) {
        const QColor next = mixed(full, ground, static_cast<double>(step) / DimmingSteps);
        if (contrastRatio(next, ground) < LeastContrast) {
            break;
        }
        dim = next;
    }
    return dim;
}

} // namespace

GeoLastPlaceMap::GeoLastPlaceMap(QObject *parent) : GeoLayer(tr("Last places"), parent)
{
    GeoLastPlaceMap::applyConfig(Config());
}

void GeoLastPlaceMap::applyConfig(const Config &config)
{
    m_ground = config.mapBackgroundColor;
    m_color = dimmed(config.trackSymbolColor, m_ground);
    Q_EMIT polluted();
}

void GeoLastPlaceMap::setPlaces(const std::vector<LastPlace> &places)
{
    m_texts.clear();
    m_places = places;
    Q_EMIT polluted();
}

// Marks may lie on each other, texts on nothing.
void GeoLastPlaceMap::placeTexts(const GeoView &view, TextRoom &room)
{
    m_texts.clear();
    if (view.metresPerPixel() > DetailLimit) {
        return;
    }
    const QPointF half(Radius, Radius);
    for (const LastPlace &place : m_places) {
        const QPointF mark = view.toScreen(place.place);
        room.take(QRectF(mark - half, mark + half));
    }
    for (const LastPlace &place : m_places) {
        placeText(view.toScreen(place.place), place, room);
    }
}

// To the right of the mark, else to its left.
void GeoLastPlaceMap::placeText(const QPointF &mark, const LastPlace &place, TextRoom &room)
{
    const QString time = timeText(place);
    const double nameWidth = mapTextRect({}, place.name).width();
    const double timeWidth = mapTextRect({}, time).width();
    const double width = std::max(nameWidth, timeWidth);
    for (const double left : {Radius + TextGap, -Radius - TextGap - width}) {
        const QPointF name = mark + QPointF(left + nameWidth / 2.0, -LineHeight / 2.0);
        const QPointF below = mark + QPointF(left + timeWidth / 2.0, LineHeight / 2.0);
        if (room.takeIfFree(mapTextRect(name, place.name).united(mapTextRect(below, time)))) {
            m_texts.push_back({name, place.name});
            m_texts.push_back({below, time});
            return;
        }
    }
}

void GeoLastPlaceMap::paint(QPainter &painter, const GeoView &view)
{
    painter.resetTransform();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_color, 1.4, Qt::DashLine));
    const QRectF seen = QRectF(view.screenRect()).adjusted(-Radius, -Radius, Radius, Radius);
    for (const LastPlace &place : m_places) {
        const QPointF mark = view.toScreen(place.place);
        if (seen.contains(mark)) {
            painter.drawEllipse(mark, Radius, Radius);
        }
    }
    painter.setFont(mapFont());
    for (const Text &text : m_texts) {
        drawMapText(painter, text.center, text.text, m_color, m_ground);
    }
}
