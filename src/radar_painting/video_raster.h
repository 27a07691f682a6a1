#pragma once

#include "radar_painting/video_cells.h"
#include "radar_painting/video_tile.h"

#include <QPoint>
#include <QRect>

#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

class QPainter;
class RadialStore;
class SiteOffsets;

// The video of one radar on the sheet of device pixels that a view shows a part of. It is made tile by tile as the view
// comes to them, and only sectors of the antenna's turn in which something changed are worked out anew.
class VideoRaster {
public:
    // Whole tiles that hold a part of the sheet.
    static QRect tilesOf(const QRect &part);

    // Another sheet: forgets the picture and makes the tiles of a part of it, whose offsets these are. Cells beyond
    // reach(), a little more than the store holds now, have no place in it.
    void reset(const SiteOffsets &offsets, const QRect &part, const RadialStore &store, double cellSizeMetres);
    // Makes what is lacking of a part of the sheet, and forgets what is far from it. The function gives the offsets of
    // a tile.
    void cover(const QRect &seen, const std::function<SiteOffsets(const QRect &)> &offsetsOf);
    quint64 reach() const { return m_reach; } // cells; 0 before the first reset()

    // Brings the picture up to date with what changed in the store, all of it, or what is new of it and a share of the
    // rest, so that a few calls come round; fades by age, which reaches the palette's end after the validity. Times in
    // milliseconds.
    enum class Extent { All, Share };
    void update(RadialStore &store, const VideoPalette &palette, qint64 now, qint64 validity, Extent extent);
    // To be called when the palette has changed.
    void recolor() { m_cells.recolorAll(); }

    // Draws what is seen of the sheet; the painter's unit is the device pixel, its origin what is seen's corner.
    void paint(QPainter &painter, const QRect &seen) const;

private:
    using Place = std::pair<int, int>; // column and row

    VideoTile &addTile(const Place &place);
    void dropFarFrom(const QRect &seen);
    void beginRound();

    quint64 m_reach = 0;
    VideoScale m_scale;
    VideoCells m_cells;
    std::map<Place, std::unique_ptr<VideoTile>> m_tiles;
    std::vector<VideoTile *> m_new; // not drawn yet
    VideoCells::Changes m_changes; // that this round brings to the tiles
    std::vector<VideoTile *> m_waiting; // for it
    std::vector<std::unique_ptr<VideoTile>> m_spare; // kept for their memory
};
