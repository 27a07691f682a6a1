#pragma once

#include "app/background_pass.h"
#include "tile_painting/tile_cells.h"
#include "tile_painting/tile_row_painter.h"
#include "view/geo_view.h"
#include "view/kept_picture.h"

#include <QImage>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QRect>

#include <memory>
#include <vector>

class QPainter;

// The tiles of a view as a picture, which is kept while the view stays and moved along with it. A worker draws it, and
// what tiles change in it that come or fade in: a frame pays for neither. Until the picture of a new view is there the
// view is sketched; the little that comes into sight while it is dragged is drawn at once. GUI thread.
class TilePicture final : public QObject {
    Q_OBJECT

public:
    // Where tiles are had from, and how far up and down stand-ins are looked for.
    struct Tiles {
        TileCells::Images images;
        int coarsest = 1;
        int deepest = 1;
    };

    explicit TilePicture(QObject *parent = nullptr);
    ~TilePicture() override;

    // Enlarged tiles are smoothed. Holds for what is drawn from now on.
    void setSmooth(bool smooth) { m_smooth = smooth; }
    // Nothing that was drawn is of use any more.
    void forget();
    // True: something has come into sight, and update() has to follow.
    bool turnTo(const GeoView &view);
    // The tiles of the range, which the view needs, as they are now. Milliseconds.
    void update(const TileRange &range, const Tiles &tiles, qint64 now);
    // No tiles are shown in this view.
    void clear();

    // Of the last turnTo(); null after forget().
    const GeoView *view() const { return m_turned ? &m_view : nullptr; }
    // Whether there is any tile, be it one that stands in.
    bool showsAnything() const { return m_cells.showAnything(); }
    // What update() finds changes with time.
    bool fading() const { return m_cells.fading(); }
    // The worker has not drawn all that it has to; changed() follows.
    bool drawing() const { return m_drawing.running(); }

    // The painter comes with logical pixels as its coordinates.
    void paint(QPainter &painter) const;

Q_SIGNALS:
    void changed();

private:
    struct Drawn {
        GeoView view;
        QList<QRect> parts; // logical pixels; the rest of the image is undefined
        QImage image; // of the view
        std::shared_ptr<const TileCells> cells;
    };

    void drawBare();
    void startDrawing();
    QList<QRect> takeParts();
    static QImage drawn(
        const GeoView &view, const QList<QRect> &parts, const TileCells &cells, quint8 level, bool smooth);
    void take(const Drawn &drawn);
    bool takeWhole(const Drawn &drawn);

    GeoView m_view;
    bool m_turned = false;
    bool m_smooth = false;
    quint8 m_level = 0; // of the cells; 0: there are none
    TileCells m_cells;
    TileRowPainter m_rows;
    KeptPicture m_picture; // invalid: the view is sketched
    QList<QRect> m_bare; // its parts in which nothing is drawn yet
    bool m_drawAll = false; // the worker has to, else
    std::vector<QPoint> m_changed; // the columns and rows that it has to draw
    BackgroundPass m_drawing;
};
