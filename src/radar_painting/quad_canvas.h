#pragma once

#include <QImage>
#include <QPointF>
#include <QRect>

#include <array>
#include <vector>

// Draws many small convex quadrangles on a picture. Each one replaces every pixel that it touches: nothing is too small
// to be seen, and neighbours leave neither gaps nor seams between them. Hatching leaves what is between its lines as it
// was.
class QuadCanvas {
public:
    // Draws on that picture (ARGB32_Premultiplied), which must outlive the canvas.
    explicit QuadCanvas(QImage &picture);

    using Quad = std::array<QPointF, 4>; // corners in either sense, pixels
    enum class Pattern { Solid, Hatched };

    // Hatching has rising lines of that width, evenly spaced; one of them goes through the origin. Pixels.
    void setHatching(const QPointF &origin, int spacing, int width);

    // Corners that are no numbers, or too far away to be told from such, draw nothing.
    void fill(const Quad &quad, QRgb premultiplied, Pattern pattern = Pattern::Solid);

private:
    void addEdge(const QPointF &from, const QPointF &to);
    void fillRow(int row, QRgb premultiplied, Pattern pattern);
    void hatch(QRgb *line, int row, int first, int last, QRgb premultiplied) const;

    QRect m_area; // of the picture
    QRgb *m_pixels; // of the picture
    qsizetype m_stride; // pixels from line to line
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
