#pragma once

#include "tiles/tile_geometry.h"

#include <QHash>
#include <QImage>
#include <QPoint>
#include <QRectF>

#include <array>
#include <functional>
#include <memory>
#include <vector>

// What is shown in the place of one tile: its image or, while that is not there or fades in, what can stand in for it.
struct TileCell {
    QImage image; // null: not there
    double opacity = 1.0; // of the image, over what stands in
    QImage ancestor; // the nearest there is; null: none
    QRectF ancestorPart; // pixels of it
    std::array<QImage, 4> children; // northwest, northeast, southwest, southeast; null: not there
    mutable QImage mixed; // all of it in one, once it has been painted; null: not kept

    bool isBlank() const;
    bool looksLike(const TileCell &other) const;
};

// The cells of a view, kept from frame to frame, so that it is known what has changed.
class TileCells {
public:
    using Images = std::function<QImage(const TileIndex &)>;

    // Brings the cells up to date. Returns the columns and rows of the range that look different from before, row by
    // row; those that the last range did not have are not among them. An image that comes into a place that was shown
    // without it fades in. The time is in milliseconds, the coarsest level that of stand-ins.
    std::vector<QPoint> update(const TileRange &range, const Images &images, int coarsest, int deepest, qint64 now);
    void clear();

    // For another thread: what is mixed there is not seen here.
    std::shared_ptr<const TileCells> copy() const;
    // Takes over what has been mixed in a copy and still looks the same.
    void keepMixed(const TileCells &copy);

    // One without images where the range has none.
    const TileCell &at(int column, int row) const;
    bool isEmpty() const { return m_cells.isEmpty(); }
    qsizetype count() const { return m_cells.size(); }
    // Whether there is any image, be it one that stands in.
    bool showAnything() const { return m_showAnything; }
    // Some image is not yet there in full: what update() returns changes with time.
    bool fading() const { return m_fading; }
    // The widest image, pixels.
    int widest() const { return m_widest; }

private:
    struct Entry {
        TileCell cell;
        qint64 since = 0; // when it began to fade in; 0: it does not
    };

    Entry resolve(const TileIndex &index, const Images &images, int coarsest, int deepest, qint64 now) const;

    QHash<TileIndex, Entry> m_cells;
    TileRange m_range;
    bool m_fading = false;
    bool m_showAnything = false;
    int m_widest = 0;
};
