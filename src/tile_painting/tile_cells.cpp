#include "tile_painting/tile_cells.h"

#include <algorithm>

namespace {

constexpr qint64 FadeTime = 400; // milliseconds
// What the first frame shows already: the plan view is painted five times a second, and should not wait for the next.
constexpr qint64 FadedAtFirst = 120;
// Tiles that come one after the other would otherwise all be mixed anew in each other's frames.
constexpr qint64 FadeStep = 100;
constexpr int HighestAncestor = 8; // levels up; what is further away shows hardly more than a colour

double opacityAt(qint64 now, qint64 since)
{
    const qint64 faded = (now - since) / FadeStep * FadeStep + FadedAtFirst;
    return std::clamp(static_cast<double>(faded) / FadeTime, 0.0, 1.0);
}

void findAncestor(TileCell &cell, const TileIndex &index, const TileCells::Images &images, int coarsest)
{
    for (int up = 1; up <= HighestAncestor && index.level - up >= coarsest; ++up) {
        const QImage image = images({index.x >> up, index.y >> up, static_cast<quint8>(index.level - up)});
        if (image.isNull()) {
            continue;
        }
        const double parts = 1 << up;
        const int mask = (1 << up) - 1;
        const QSizeF size(image.width() / parts, image.height() / parts);
        cell.ancestor = image;
        cell.ancestorPart = QRectF(QPointF((index.x & mask) * size.width(), (index.y & mask) * size.height()), size);
        return;
    }
}

void findChildren(TileCell &cell, const TileIndex &index, const TileCells::Images &images)
{
    for (int i = 0; i < 4; ++i) {
        cell.children[static_cast<std::size_t>(i)] =
            images({2 * index.x + i % 2, 2 * index.y + i / 2, static_cast<quint8>(index.level + 1)});
    }
}

} // namespace

bool TileCell::isBlank() const
{
    return image.isNull() && ancestor.isNull()
        && std::all_of(children.begin(), children.end(), [](const QImage &child) { return child.isNull(); });
}

bool TileCell::looksLike(const TileCell &other) const
{
    const auto same = [](const QImage &one, const QImage &two) { return one.cacheKey() == two.cacheKey(); };
    return same(image, other.image) && opacity == other.opacity && same(ancestor, other.ancestor)
        && std::equal(children.begin(), children.end(), other.children.begin(), same);
}

std::vector<QPoint> TileCells::update(
    const TileRange &range, const Images &images, int coarsest, int deepest, qint64 now)
{
    QHash<TileIndex, Entry> cells;
    std::vector<QPoint> changed;
    m_fading = false;
    m_showAnything = false;
    m_widest = 0;
    for (int row = range.top; row <= range.bottom; ++row) {
        for (int column = range.left; column <= range.right; ++column) {
            const TileIndex index = TileRange::wrapped(column, row, range.level);
            auto entry = cells.find(index);
            if (entry == cells.end()) {
                entry = cells.insert(index, resolve(index, images, coarsest, deepest, now));
            }
            const auto before = m_cells.constFind(index);
            if (before != m_cells.constEnd()) {
                if (entry->cell.looksLike(before->cell)) {
                    entry->cell.mixed = before->cell.mixed;
                } else {
                    changed.emplace_back(column, row);
                }
            }
            m_showAnything = m_showAnything || !entry->cell.isBlank();
            m_fading = m_fading || entry->cell.opacity < 1.0;
            m_widest = std::max(m_widest, entry->cell.image.width());
        }
    }
    m_cells.swap(cells);
    m_range = range;
    return changed;
}

TileCells::Entry TileCells::resolve(
    const TileIndex &index, const Images &images, int coarsest, int deepest, qint64 now) const
{
    Entry entry;
    entry.cell.image = images(index);
    const auto before = m_cells.constFind(index);
    if (!entry.cell.image.isNull() && before != m_cells.constEnd()) {
        entry.since = before->cell.image.isNull() ? now : before->since;
        entry.cell.opacity = entry.since == 0 ? 1.0 : opacityAt(now, entry.since);
    }
    if (entry.cell.image.isNull() || entry.cell.opacity < 1.0) {
        findAncestor(entry.cell, index, images, coarsest);
        if (index.level < deepest) {
            findChildren(entry.cell, index, images);
        }
    }
    return entry;
}

void TileCells::clear()
{
    m_cells.clear();
    m_range = {};
    m_fading = false;
    m_showAnything = false;
}

std::shared_ptr<const TileCells> TileCells::copy() const
{
    auto cells = std::make_shared<TileCells>(*this);
    cells->m_cells.detach();
    return cells;
}

void TileCells::keepMixed(const TileCells &copy)
{
    for (auto entry = m_cells.begin(); entry != m_cells.end(); ++entry) {
        const auto other = copy.m_cells.constFind(entry.key());
        if (other != copy.m_cells.constEnd() && entry->cell.looksLike(other->cell)) {
            entry->cell.mixed = other->cell.mixed;
        }
    }
}

const TileCell &TileCells::at(int column, int row) const
{
    static const TileCell None;
    const auto entry = m_cells.constFind(TileRange::wrapped(column, row, m_range.level));
    return entry == m_cells.constEnd() ? None : entry->cell;
}
