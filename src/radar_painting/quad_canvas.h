#pragma once

#include <QImage>
#include <QPointF>
#include <QRect>

#include <array>
#include <vector>

// A transparent picture for many small convex quadrangles. Each one replaces every pixel that it touches: nothing is
// too small to be seen, and neighbours leave neither gaps nor seams between them. Hatching leaves what is between its
// lines as it was.
class QuadCanvas {
public:
    QuadCanvas() = default;
    Q_DISABLE_COPY(QuadCanvas)

    using Quad = std::array<QPointF, 4>; // corners in either sense, pixels
    enum class Pattern { Solid, Hatched };

    // Hatching has rising lines of that width, evenly spaced; one of them goes through the origin. Pixels.
    void setHatching(const QPointF &origin, int spacing, int width);

    // Empties the picture.
    void reset(const QSize &size);
    // Moves what has been drawn. Returns the parts into which nothing has come; they are empty.
    std::vector<QRect> move(const QPoint &shift);
    // What lies outside is drawn no more, until the next reset.
    void setClip(const QRect &clip) { m_clip = clip & m_image.rect(); }
    // Corners that are no numbers, or too far away to be told from such, draw nothing.
    void fill(const Quad &quad, QRgb premultiplied, Pattern pattern = Pattern::Solid);

    const QImage &image() const { return m_image; }
    // Rectangles without overlap that hold all that was filled.
    std::vector<QRect> filledParts() const;

private:
    static constexpr int TileWidth = 64;
    static constexpr int TileHeight = 16;

    void noteFilled(int row, int first, int last);
    void addEdge(const QPointF &from, const QPointF &to);
    void fillRow(int row, QRgb premultiplied, Pattern pattern);
    void hatch(QRgb *line, int row, int first, int last, QRgb premultiplied) const;

    QImage m_image;
    QRect m_clip;
    QRgb *m_pixels = nullptr; // of the image; its lines follow each other without padding
    int m_tileColumns = 0;
    std::vector<char> m_filledTiles; // row by row
    int m_hatchStart = 0; // of the line through the upper left pixel, 0 to m_hatchSpacing - 1
    int m_hatchSpacing = 8;
    int m_hatchWidth = 1;

    // How far the quadrangle at hand reaches in each of its rows.
    struct Extent {
        double left = 0.0;
        double right = 0.0;
    };
    int m_top = 0;
    std::vector<Extent> m_rows;
};
