#include "map_painting/static_map_label_layout.h"

#include "maps/map_style_sheet.h"

#include <QFontMetricsF>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double CellSize = 64.0; // pixels
constexpr double Halo = 1.0; // pixels around a text
constexpr double SymbolGap = 1.0; // pixels between a symbol and its label

QSizeF sizeOf(const QString &caption, const QFontMetricsF &metrics)
{
    double width = 0.0;
    const QStringList lines = caption.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        width = std::max(width, metrics.horizontalAdvance(line));
    }
    const double height = metrics.height() + 2.0 * Halo;
    return QSizeF(std::ceil(width + 2.0 * Halo), std::ceil(height) * static_cast<double>(lines.size()));
}

} // namespace

// The part of the sheet that is taken already.
class StaticMapLabelLayout::Taken {
public:
    explicit Taken(const QRectF &region)
        : m_region(region), m_columns(static_cast<int>(region.width() / CellSize) + 1),
          m_rows(static_cast<int>(region.height() / CellSize) + 1),
          m_cells(static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(m_rows))
    {
    }

    void take(const QRectF &box)
    {
        forCells(box, [&box](std::vector<QRectF> &cell) {
            cell.push_back(box);
            return true;
        });
    }

    bool isFree(const QRectF &box)
    {
        return forCells(box, [&box](const std::vector<QRectF> &cell) {
            return std::none_of(
                cell.begin(), cell.end(), [&box](const QRectF &taken) { return taken.intersects(box); });
        });
    }

private:
    // Until the function returns false; returns whether it never did.
    template <typename Function>
    bool forCells(const QRectF &box, Function &&function)
    {
        const int left = std::clamp(static_cast<int>((box.left() - m_region.left()) / CellSize), 0, m_columns - 1);
        const int right = std::clamp(static_cast<int>((box.right() - m_region.left()) / CellSize), 0, m_columns - 1);
        const int top = std::clamp(static_cast<int>((box.top() - m_region.top()) / CellSize), 0, m_rows - 1);
        const int bottom = std::clamp(static_cast<int>((box.bottom() - m_region.top()) / CellSize), 0, m_rows - 1);
        for (int row = top; row <= bottom; ++row) {
            for (int column = left; column <= right; ++column) {
                if (!function(m_cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns)
                        + static_cast<std::size_t>(column)])) {
                    return false;
                }
            }
        }
        return true;
    }

    const QRectF m_region;
    const int m_columns;
    const int m_rows;
    std::vector<std::vector<QRectF>> m_cells;
};

namespace {

// Top left corner of the box, from the symbol's middle, in the order of preference.
std::array<QPointF, 4> sidesOf(int symbolSize, const QSizeF &size)
{
    const double away = std::ceil(symbolSize / 2.0) + SymbolGap;
    const double middleX = -std::floor(size.width() / 2.0);
    const double middleY = -std::floor(size.height() / 2.0);
    return {QPointF(away, middleY), QPointF(-away - size.width(), middleY), QPointF(middleX, -away - size.height()),
        QPointF(middleX, away)};
}

} // namespace

void StaticMapLabelLayout::forget()
{
    m_placed.clear();
    m_boxes.clear();
    m_sizes.clear();
}

const std::vector<StaticMapLabelLayout::Placed> &StaticMapLabelLayout::placed(
    const StaticMapGroup &group, int copy) const
{
    static const std::vector<Placed> None;
    const auto found = m_placed.find({&group, copy});
    return found == m_placed.end() ? None : found->second;
}

void StaticMapLabelLayout::layOut(
    const StaticMapRegion &region, const std::vector<ShownMap> &maps, const MapStyleSheet &styles, int symbolSize)
{
    m_region = region;
    m_symbolSize = symbolSize;
    m_placed.clear();
    m_boxes.clear();
    std::vector<ShownMap> byPriority = maps;
    std::stable_sort(byPriority.begin(), byPriority.end(),
        [](const ShownMap &one, const ShownMap &other) { return one.priority > other.priority; });
    Taken taken(region.sheet);
    for (const ShownMap &map : byPriority) {
        takeSymbols(taken, map);
    }
    for (const ShownMap &map : byPriority) {
        placeLabels(taken, map, styles);
    }
}

template <typename Function>
void StaticMapLabelLayout::forCopies(const QPointF &place, double period, Function &&function) const
{
    int first = 0;
    int last = 0;
    if (period > 0.0) {
        first = static_cast<int>(std::ceil((m_region.plane.west - place.x()) / period));
        last = static_cast<int>(std::floor((m_region.plane.east - place.x()) / period));
    }
    for (int copy = first; copy <= last; ++copy) {
        const QPointF pixel = m_region.toSheet.map(place + QPointF(copy * period, 0.0));
        if (m_region.sheet.contains(pixel)) {
            function(copy, pixel);
        }
    }
}

void StaticMapLabelLayout::takeSymbols(Taken &taken, const ShownMap &map) const
{
    const QPointF half(m_symbolSize / 2.0, m_symbolSize / 2.0);
    for (const StaticMapGroup &group : map.geometry->groups()) {
        for (const StaticMapSymbol &symbol : group.symbols) {
            forCopies(symbol.place, map.geometry->period(),
                [&](int, const QPointF &pixel) { taken.take(QRectF(pixel - half, pixel + half)); });
        }
    }
}

void StaticMapLabelLayout::placeLabels(Taken &taken, const ShownMap &map, const MapStyleSheet &styles)
{
    for (const StaticMapGroup &group : map.geometry->groups()) {
        if (!group.labels.empty()) {
            placeGroup(taken, group, map.geometry->period(), styles);
        }
    }
}

void StaticMapLabelLayout::placeGroup(
    Taken &taken, const StaticMapGroup &group, double period, const MapStyleSheet &styles)
{
    const QFontMetricsF metrics(styles.style(group.className).font);
    for (const StaticMapLabel &label : group.labels) {
        forCopies(label.place, period, [&](int copy, const QPointF &pixel) {
            QSizeF &size = m_sizes[&label];
            if (size.isEmpty()) {
                size = sizeOf(label.caption, metrics);
            }
            const auto tryAt = [&](const QPointF &offset) {
                const QRectF box(pixel + offset, size);
                if (!taken.isFree(box)) {
                    return false;
                }
                taken.take(box);
                m_boxes.push_back(box);
                m_placed[{&group, copy}].push_back({&label, offset, size});
                return true;
            };
            const auto sides = sidesOf(m_symbolSize, size);
            if (label.besideSymbol) {
                std::any_of(sides.begin(), sides.end(), tryAt);
            } else {
                tryAt(QPointF(-std::floor(size.width() / 2.0), -std::floor(size.height() / 2.0)));
            }
        });
    }
}
