#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QString>

class GeoView;
class QPainter;
class TextRoom;
struct TileSource;

// Whose tiles are shown: logo and text on a veil, in a corner that the read-outs leave free.
class TileAttribution {
public:
    void setSource(const TileSource &source);
    // The map's ground, and a colour that is legible on it.
    void setColors(const QColor &ground, const QColor &text);

    void setShown(bool shown) { m_shown = shown; }
    // Takes a place for the frame: the lower right corner or, where that is taken, what is next to it.
    void place(const GeoView &view, TextRoom &room);
    // Pixels; empty: there is nothing to show, or no room.
    const QRectF &rect() const { return m_rect; }
    // The painter comes with logical pixels as its coordinates.
    void paint(QPainter &painter) const;

private:
    void choose();
    QSizeF logoSize() const;

    const TileSource *m_source = nullptr;
    bool m_shown = false;
    QColor m_ground;
    QColor m_plainText;
    QColor m_textColor;
    QImage m_logo;
    QString m_text; // shortened where the view is narrow
    QRectF m_rect;
};
