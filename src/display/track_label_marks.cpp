#include "display/track_label_marks.h"

#include "display/track_label_text.h"

#include <QLineF>
#include <QPainter>
#include <QPen>
#include <QRawFont>

#include <algorithm>
#include <array>

namespace {

// From the tail to the tip, in cells.
QLineF shaft(QChar mark)
{
    if (mark == tracklabel::ClimbingMark) {
        return {0.5, 1.0, 0.5, 0.3};
    }
    if (mark == tracklabel::DescendingMark) {
        return {0.5, 0.3, 0.5, 1.0};
    }
    return {0.1, 0.45, 0.85, 0.95};
}

} // namespace

QString tracklabel::marksToDraw(const QFont &font)
{
    const QRawFont face = QRawFont::fromFont(font);
    QString marks;
    for (const QChar mark : {ClimbingMark, DescendingMark, CoastingMark}) {
        if (!face.supportsCharacter(mark)) {
            marks += mark;
        }
    }
    return marks;
}

void tracklabel::paintMark(QPainter *painter, QChar mark, const QRectF &cell)
{
    const QLineF unit = shaft(mark);
    const auto inCell = [&cell](const QPointF &point) {
        return QPointF(cell.x() + point.x() * cell.width(), cell.y() + point.y() * cell.height());
    };
    const QLineF line(inCell(unit.p1()), inCell(unit.p2()));
    const auto barb = [&line, &cell](double degrees) {
        QLineF side = QLineF::fromPolar(cell.width() * 0.45, line.angle() + degrees);
        return side.translated(line.p2());
    };
    const QPen before = painter->pen();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(before.color(), std::max(1.0, cell.width() / 6.0), Qt::SolidLine, Qt::RoundCap));
    const std::array lines{line, barb(145.0), barb(-145.0)};
    painter->drawLines(lines.data(), static_cast<int>(lines.size()));
    painter->restore();
}
