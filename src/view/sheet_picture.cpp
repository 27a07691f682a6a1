#include "view/sheet_picture.h"

#include <QPainter>
#include <QRegion>

#include <algorithm>
#include <cmath>

namespace {

constexpr int SheetMargin = 64; // device pixels that are drawn ahead

int modulo(int value, int size)
{
    const int rest = value % size;
    return rest < 0 ? rest + size : rest;
}

// What is held along one axis when that much is seen: as it was, where that will do.
int heldFrom(int seen, int seenSize, int held, int size)
{
    const bool enough = held <= seen && seen + seenSize <= held + size;
    return enough ? held : seen - (size - seenSize) / 2;
}

bool isBlank(const QImage &image, const QRect &part)
{
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        if (std::any_of(line + part.left(), line + part.right() + 1, [](QRgb pixel) { return pixel != 0; })) {
            return false;
        }
    }
    return true;
}

} // namespace

void SheetPicture::turnTo(const GeoView &view, const Draw &draw)
{
    const bool sameSheet = m_sheet.follow(view);
    const QRect &seen = m_sheet.seen();
    const QSize size = seen.size() + QSize(2 * SheetMargin, 2 * SheetMargin);
    if (!sameSheet || m_image.size() != size) {
        invalidate();
    }
    if (m_image.size() != size) {
        m_image = QImage(size, QImage::Format_ARGB32_Premultiplied);
        m_columns = (size.width() + CellWidth - 1) / CellWidth;
        m_ink.assign(static_cast<std::size_t>(m_columns)
                * static_cast<std::size_t>((size.height() + CellHeight - 1) / CellHeight),
            false);
    }
    QRect holds(seen.topLeft() - QPoint(SheetMargin, SheetMargin), size);
    if (m_held.isEmpty()) {
        m_origin = holds.topLeft();
    } else {
        holds.moveTo(heldFrom(seen.x(), seen.width(), m_held.x(), size.width()),
            heldFrom(seen.y(), seen.height(), m_held.y(), size.height()));
    }
    const QRegion lacking = QRegion(holds) - m_held;
    m_held = holds;
    for (const QRect &part : lacking) {
        forPieces(part, [&](const QRect &piece, const QPoint &at) { drawPiece(view, piece, at, draw); });
    }
}

QRectF SheetPicture::held() const
{
    if (m_held.isEmpty()) {
        return {};
    }
    const double ratio = m_sheet.devicePixelRatio();
    const QPointF origin(m_sheet.fromPlane().dx(), m_sheet.fromPlane().dy());
    return QRectF((QPointF(m_held.topLeft()) - origin) / ratio, QSizeF(m_held.size()) / ratio);
}

template <typename Visit>
void SheetPicture::forPieces(const QRect &part, Visit &&visit) const
{
    const QSize size = m_image.size();
    for (int y = part.top(); y <= part.bottom();) {
        const int imageY = modulo(y - m_origin.y(), size.height());
        const int height = std::min(part.bottom() + 1 - y, size.height() - imageY);
        for (int x = part.left(); x <= part.right();) {
            const int imageX = modulo(x - m_origin.x(), size.width());
            const int width = std::min(part.right() + 1 - x, size.width() - imageX);
            visit(QRect(x, y, width, height), QPoint(imageX, imageY));
            x += width;
        }
        y += height;
    }
}

void SheetPicture::drawPiece(const GeoView &view, const QRect &piece, const QPoint &corner, const Draw &draw)
{
    const double ratio = m_sheet.devicePixelRatio();
    QImage part(
        m_image.scanLine(corner.y()) + static_cast<qsizetype>(corner.x()) * static_cast<qsizetype>(sizeof(QRgb)),
        piece.width(), piece.height(), m_image.bytesPerLine(), m_image.format());
    part.fill(Qt::transparent);
    part.setDevicePixelRatio(ratio);
    const QPointF away = QPointF(m_sheet.seen().topLeft() - piece.topLeft()) / ratio;
    const QSize logical(
        static_cast<int>(std::ceil(piece.width() / ratio)), static_cast<int>(std::ceil(piece.height() / ratio)));
    draw(part, GeoView(view.screenTransform() * QTransform::fromTranslate(away.x(), away.y()), logical, ratio));
    noteInk(QRect(corner, piece.size()));
}

// In the cells that a part of the image touches.
void SheetPicture::noteInk(const QRect &part)
{
    for (int row = part.top() / CellHeight; row <= part.bottom() / CellHeight; ++row) {
        for (int column = part.left() / CellWidth; column <= part.right() / CellWidth; ++column) {
            const QRect cell(column * CellWidth, row * CellHeight, CellWidth, CellHeight);
            m_ink[static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns)
                + static_cast<std::size_t>(column)] = !isBlank(m_image, cell & m_image.rect());
        }
    }
}

void SheetPicture::paint(QPainter &painter, const QList<QRect> &gaps) const
{
    const double ratio = m_sheet.devicePixelRatio();
    painter.setWorldTransform(QTransform::fromScale(1.0 / ratio, 1.0 / ratio));
    QRegion holes;
    for (const QRect &gap : gaps) {
        const QRectF onDevice(QPointF(gap.topLeft()) * ratio, QSizeF(gap.size()) * ratio);
        holes += onDevice.toAlignedRect();
    }
    forPieces(m_sheet.seen() & m_held,
        [&](const QRect &piece, const QPoint &corner) { paintPiece(painter, piece, corner, holes); });
}

// Neighbours in a row of cells are drawn at once.
void SheetPicture::paintPiece(QPainter &painter, const QRect &piece, const QPoint &corner, const QRegion &gaps) const
{
    const QRect part(corner, piece.size()); // of the image
    const QPoint toDevice = piece.topLeft() - m_sheet.seen().topLeft() - corner;
    const auto draw = [&](const QRect &inked) {
        const QRect target = (inked & part).translated(toDevice);
        if (!gaps.intersects(target)) {
            painter.drawImage(target.topLeft(), m_image, target.translated(-toDevice));
            return;
        }
        for (const QRect &rect : QRegion(target) - gaps) {
            painter.drawImage(rect.topLeft(), m_image, rect.translated(-toDevice));
        }
    };
    const int lastColumn = part.right() / CellWidth;
    for (int row = part.top() / CellHeight; row <= part.bottom() / CellHeight; ++row) {
        for (int column = part.left() / CellWidth; column <= lastColumn; ++column) {
            const int first = column;
            while (column <= lastColumn && hasInk(column, row)) {
                ++column;
            }
            if (column > first) {
                draw(QRect(first * CellWidth, row * CellHeight, (column - first) * CellWidth, CellHeight));
            }
        }
    }
}
