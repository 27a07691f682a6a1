#include "orientation/geo_map_key.h"

#include "app/config.h"
#include "radar_painting/geo_weather_map.h"
#include "view/geo_view.h"
#include "view/map_text.h"
#include "view/text_room.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace {

constexpr double KeyMargin = 12.0; // pixels from the corner of the view
constexpr double ScaleBarHeight = 24.0; // which has the corner itself
constexpr double Padding = 4.0;
constexpr double RowHeight = 18.0;
constexpr double PictureWidth = 22.0;
constexpr QSizeF SwatchSize(18.0, 12.0);
constexpr double TallestPart = 0.5; // of the view
constexpr int VeilOpacity = 150;

} // namespace

GeoMapKey::GeoMapKey(const GeoWeatherMap *weather, QObject *parent) : GeoLayer(tr("Key"), parent), m_weather(weather)
{
    GeoMapKey::applyConfig(Config());
}

void GeoMapKey::applyConfig(const Config &config)
{
    m_color = config.mapRangeRingLabelColor;
    m_ground = config.mapBackgroundColor;
    setVisible(config.mapKeyVisible);
    Q_EMIT polluted();
}

SettingGroups GeoMapKey::settings() const
{
    return SettingGroup::Orientation | SettingGroup::PlanView;
}

void GeoMapKey::addSymbolSource(SymbolSource source)
{
    m_sources.push_back(std::move(source));
    Q_EMIT polluted();
}

QString GeoMapKey::levelsTitle()
{
    return tr("Weather");
}

double GeoMapKey::levelsTitleWidth()
{
    return mapTextRect({}, levelsTitle()).width();
}

void GeoMapKey::collectLevels()
{
    m_levels.clear();
    for (int level = 0; m_weather->visible() && level < GeoWeatherMap::LevelCount; ++level) {
        if (m_weather->levelColor(level).isValid() && m_weather->vectorCount(level) > 0) {
            m_levels.push_back(level);
        }
    }
}

// From the bottom upwards: the levels in one row, the symbols over them in as many columns as they need.
void GeoMapKey::placeTexts(const GeoView &view, TextRoom &room)
{
    m_place = QRectF();
    collectLevels();
    std::vector<Symbol> symbols;
    for (const SymbolSource &source : m_sources) {
        std::vector<Symbol> shown = source(view.devicePixelRatio());
        std::move(shown.begin(), shown.end(), std::back_inserter(symbols));
    }
    if (m_levels.empty() && symbols.empty()) {
        return;
    }
    const QRectF screen(view.screenRect());
    const QPointF corner = screen.bottomLeft() + QPointF(KeyMargin + Padding, -KeyMargin - ScaleBarHeight - Padding);
    const double levelsHeight = m_levels.empty() ? 0.0 : 2.0 * RowHeight;
    m_levelsPlace = corner - QPointF(0.0, levelsHeight);
    placeSymbols(std::move(symbols), m_levelsPlace, screen.height() * TallestPart - levelsHeight);

    const double levelsWidth = m_levels.empty()
        ? 0.0
        : static_cast<double>(m_levels.size()) * SwatchSize.width() + Padding + levelsTitleWidth();
    QRectF place(m_levelsPlace, QSizeF(levelsWidth, levelsHeight));
    for (const Item &item : m_items) {
        place = place.isEmpty() ? item.place : place.united(item.place);
    }
    place.adjust(-Padding, -Padding, Padding, Padding);
    if (room.takeIfFree(place)) {
        m_place = place;
    }
}

void GeoMapKey::placeSymbols(std::vector<Symbol> symbols, QPointF bottomLeft, double height)
{
    m_items.clear();
    const std::size_t rows = static_cast<std::size_t>(std::max(1.0, std::floor(height / RowHeight)));
    for (std::size_t first = 0; first < symbols.size(); first += rows) {
        const std::size_t count = std::min(rows, symbols.size() - first);
        double width = 0.0;
        for (std::size_t i = 0; i < count; ++i) {
            Symbol &symbol = symbols[first + i];
            const double textWidth = mapTextRect({}, symbol.meaning).width();
            const QPointF place = bottomLeft - QPointF(0.0, static_cast<double>(count - i) * RowHeight);
            m_items.push_back({std::move(symbol), QRectF(place, QSizeF(PictureWidth + textWidth, RowHeight))});
            width = std::max(width, PictureWidth + textWidth);
        }
        bottomLeft += QPointF(width + 2.0 * Padding, 0.0);
    }
}

void GeoMapKey::paint(QPainter &painter, const GeoView &)
{
    if (m_place.isEmpty()) {
        return;
    }
    painter.resetTransform();
    painter.setFont(mapFont());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QColor veil = m_ground;
    veil.setAlpha(VeilOpacity);
    painter.fillRect(m_place, veil);
    for (const Item &item : m_items) {
        const QPixmap &picture = item.symbol.picture;
        const QSizeF own = QSizeF(picture.size()) / picture.devicePixelRatio();
        const QSizeF size = own.height() > RowHeight ? own * (RowHeight / own.height()) : own;
        const QPointF middle(item.place.left() + PictureWidth / 2.0, item.place.center().y());
        const QPointF corner(std::round(middle.x() - size.width() / 2.0), std::round(middle.y() - size.height() / 2.0));
        painter.drawPixmap(QRectF(corner, size), picture, QRectF(picture.rect()));
        const double textMiddle = (item.place.left() + PictureWidth + item.place.right()) / 2.0;
        drawMapText(painter, QPointF(textMiddle, middle.y()), item.symbol.meaning, m_color, m_ground);
    }
    paintLevels(painter);
}

// Each as the picture has it: filled, or hatched where it is switched off.
void GeoMapKey::paintLevels(QPainter &painter) const
{
    QPointF corner = m_levelsPlace;
    for (const int level : m_levels) {
        const QRectF swatch(corner + QPointF(0.0, (RowHeight - SwatchSize.height()) / 2.0), SwatchSize);
        const QColor color = m_weather->drawnColor(level);
        painter.fillRect(swatch, m_weather->levelVisible(level) ? QBrush(color) : QBrush(color, Qt::BDiagPattern));
        const QPointF below(swatch.center().x(), corner.y() + RowHeight * 1.5);
        drawMapText(painter, below, QString::number(level), m_color, m_ground);
        corner += QPointF(SwatchSize.width(), 0.0);
    }
    if (!m_levels.empty()) {
        const QPointF beside = corner + QPointF(Padding + levelsTitleWidth() / 2.0, RowHeight / 2.0);
        drawMapText(painter, beside, levelsTitle(), m_color, m_ground);
    }
}
