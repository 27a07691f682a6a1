#pragma once

#include <QColor>
#include <QPen>

// A line one pixel wide. Cosmetic lines of up to one pixel take the painter's quickest way; their widths count device
// pixels.
inline QPen trackLinePen(const QColor &color, double devicePixelRatio, Qt::PenStyle style = Qt::SolidLine)
{
    QPen pen(color, devicePixelRatio, style);
    pen.setCosmetic(true);
    return pen;
}
