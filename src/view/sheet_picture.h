#pragma once

#include "view/view_sheet.h"

#include <QImage>
#include <QList>
#include <QPoint>
#include <QRect>

#include <functional>
#include <vector>

class QPainter;

// What a layer has drawn of the sheet that views show, with a margin round the last view: while the view is dragged
// only what has come into sight is drawn. Nothing is moved about in memory: what leaves on one side makes room for what
// comes on the other. Knows which of its cells hold ink, and draws no others.
class SheetPicture {
public:
    // Draws one part of the picture, which is transparent (ARGB32_Premultiplied, with the view's device pixel ratio)
    // and shows that view.
    using Draw = std::function<void(QImage &part, const GeoView &view)>;

    // To be drawn anew.
    void invalidate() { m_held = QRect(); }

    // Brings the picture to another view.
    void turnTo(const GeoView &view, const Draw &draw);
    // What it holds now, in logical pixels from where the plane's origin lies; empty after invalidate().
    QRectF held() const;

    // Draws what that view shows, save for some places in its logical pixels. Changes the painter's transform.
    void paint(QPainter &painter, const QList<QRect> &gaps = {}) const;

private:
    static constexpr int CellWidth = 64;
    static constexpr int CellHeight = 32;

    void hold(const QRect &part);
    // Calls visit(piece of the sheet, its corner in the image) for the pieces that lie in one part of the image.
    template <typename Visit>
    void forPieces(const QRect &part, Visit &&visit) const;
    void drawPiece(const GeoView &view, const QRect &piece, const QPoint &corner, const Draw &draw);
    void noteInk(const QRect &cells);
    bool hasInk(int column, int row) const
    {
        return m_ink[static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns)
            + static_cast<std::size_t>(column)];
    }
    void paintPiece(QPainter &painter, const QRect &piece, const QPoint &corner, const QRegion &gaps) const;

    ViewSheet m_sheet;
    QRect m_held; // of the sheet; never larger than the image
    QPoint m_origin; // of the sheet: the image's first pixel
    QImage m_image; // pixels of the sheet are at their distance from there, modulo the image's size
    int m_columns = 0;
    std::vector<bool> m_ink; // by cell of the image
};
