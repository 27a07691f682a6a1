#pragma once

#include <QChar>
#include <QRectF>
#include <QString>

class QFont;
class QPainter;

// The arrows of track labels for fonts that have none: drawn as wide as the font's other characters.
namespace tracklabel {

// Which of them the font itself lacks, whatever other fonts could stand in.
QString marksToDraw(const QFont &font);

// In the painter's pen; the cell reaches from the line's top to its base.
void paintMark(QPainter *painter, QChar mark, const QRectF &cell);

} // namespace tracklabel
