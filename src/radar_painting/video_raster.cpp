#include "radar_painting/video_raster.h"

#include "geo/wgs84.h"
#include "radar_painting/radial_store.h"
#include "radar_painting/site_offsets.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

// From the middle of a pixel to its corners, with a little to spare for interpolation.
constexpr double HalfDiagonal = 0.75;
constexpr std::size_t MostSpare = 32; // tiles
constexpr std::size_t Shares = 6; // a tenth of a second at 60 frames a second

int tileAt(int pixel)
{
    return pixel >= 0 ? pixel / VideoTile::Size : -1 - (-1 - pixel) / VideoTile::Size;
}

// Columns and rows.
QRect placesOf(const QRect &part)
{
    return QRect(QPoint(tileAt(part.left()), tileAt(part.top())), QPoint(tileAt(part.right()), tileAt(part.bottom())));
}

} // namespace

QRect VideoRaster::tilesOf(const QRect &part)
{
    const QRect places = placesOf(part);
    return QRect(places.topLeft() * VideoTile::Size, places.size() * VideoTile::Size);
}

void VideoRaster::reset(const SiteOffsets &offsets, const QRect &part, const RadialStore &store, double cellSizeMetres)
{
    m_reach = store.endCell() + store.endCell() / 8 + 1;
    m_scale.binCount = store.binCount();
    m_scale.cellSize = cellSizeMetres;
    m_scale.reach = static_cast<float>(m_reach);
    const double pixelCells = offsets.pixelMetres(static_cast<double>(m_reach) * cellSizeMetres) / cellSizeMetres;
    m_scale.halfRange = static_cast<float>(HalfDiagonal * pixelCells);
    m_scale.halfAngle = static_cast<float>(m_scale.halfRange * m_scale.binCount / (2.0 * wgs84::Pi));
    m_scale.coreRange =
        m_scale.halfAngle * static_cast<float>(VideoCells::SectorCount) / static_cast<float>(m_scale.binCount);
    m_cells.reset(m_scale.binCount);
    dropFarFrom({});
    const QRect places = placesOf(part);
    for (int row = places.top(); row <= places.bottom(); ++row) {
        for (int column = places.left(); column <= places.right(); ++column) {
            const QPoint corner = QPoint(column, row) * VideoTile::Size - part.topLeft();
            addTile({column, row}).place(offsets, corner, m_scale);
        }
    }
}

void VideoRaster::cover(const QRect &seen, const std::function<SiteOffsets(const QRect &)> &offsetsOf)
{
    dropFarFrom(seen);
    const QRect places = placesOf(seen);
    for (int row = places.top(); row <= places.bottom(); ++row) {
        for (int column = places.left(); column <= places.right(); ++column) {
            if (m_tiles.contains({column, row})) {
                continue;
            }
            const QRect tile(QPoint(column, row) * VideoTile::Size, QSize(VideoTile::Size, VideoTile::Size));
            addTile({column, row}).place(offsetsOf(tile), QPoint(), m_scale);
        }
    }
}

VideoTile &VideoRaster::addTile(const Place &place)
{
    std::unique_ptr<VideoTile> &tile = m_tiles[place];
    if (m_spare.empty()) {
        tile = std::make_unique<VideoTile>();
    } else {
        tile = std::move(m_spare.back());
        m_spare.pop_back();
    }
    m_new.push_back(tile.get());
    return *tile;
}

// Those next to what is seen stay: a drag goes to and fro.
void VideoRaster::dropFarFrom(const QRect &seen)
{
    const QRect kept = seen.isEmpty() ? QRect() : placesOf(seen).adjusted(-1, -1, 1, 1);
    for (auto tile = m_tiles.begin(); tile != m_tiles.end();) {
        if (kept.contains(tile->first.first, tile->first.second)) {
            ++tile;
            continue;
        }
        std::erase(m_new, tile->second.get());
        std::erase(m_waiting, tile->second.get());
        if (m_spare.size() < MostSpare) {
            m_spare.push_back(std::move(tile->second));
        }
        tile = m_tiles.erase(tile);
    }
}

void VideoRaster::update(RadialStore &store, const VideoPalette &palette, qint64 now, qint64 validity, Extent extent)
{
    m_cells.read(store, now, validity);
    for (VideoTile *const tile : m_new) {
        tile->draw(m_cells, m_scale, palette);
    }
    m_new.clear();
    if (m_waiting.empty() || extent == Extent::All) {
        beginRound();
    }
    std::size_t count = extent == Extent::All ? m_waiting.size() : m_tiles.size() / Shares + 1;
    for (; count > 0 && !m_waiting.empty(); --count) {
        m_waiting.back()->update(m_cells, m_changes, m_scale, palette);
        m_waiting.pop_back();
    }
}

// Tiles that the last round has not come to need what it brought as well; the others bear it.
void VideoRaster::beginRound()
{
    if (m_waiting.empty()) {
        m_changes = {};
    }
    m_changes |= m_cells.takeChanges();
    m_waiting.clear();
    for (const auto &[place, tile] : m_tiles) {
        m_waiting.push_back(tile.get());
    }
}

void VideoRaster::paint(QPainter &painter, const QRect &seen) const
{
    for (const auto &[place, tile] : m_tiles) {
        const QPoint corner = QPoint(place.first, place.second) * VideoTile::Size;
        if (tile->shows() && seen.intersects(QRect(corner, tile->image().size()))) {
            painter.drawImage(corner - seen.topLeft(), tile->image());
        }
    }
}
