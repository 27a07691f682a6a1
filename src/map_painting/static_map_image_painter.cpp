#include "map_painting/static_map_image_painter.h"

#include "map_painting/static_map_frame.h"

#include <QPainter>

#include <cstring>

namespace {

QImage withRows(const QImage &image, const std::vector<int> &rows)
{
    QImage result(image.width(), static_cast<int>(rows.size()), image.format());
    for (int y = 0; y < result.height(); ++y) {
        std::memcpy(result.scanLine(y), image.constScanLine(rows[static_cast<std::size_t>(y)]),
            static_cast<std::size_t>(image.bytesPerLine()));
    }
    return result;
}

} // namespace

const QImage &StaticMapImagePainter::picture(const StaticMapImage &image)
{
    QImage &picture = m_pictures[image.element];
    if (picture.isNull()) {
        picture = image.element->pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(1.0);
        if (!image.rows.empty()) {
            picture = withRows(picture, image.rows);
        }
    }
    return picture;
}

void StaticMapImagePainter::paint(
    QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group, const MapStyleClass &)
{
    for (const StaticMapImage &image : group.images) {
        if (!image.box.touches(frame.sight)) {
            continue;
        }
        const QImage &source = picture(image);
        QTransform toPlane = QTransform::fromTranslate(image.box.west, image.box.north);
        toPlane.scale(
            (image.box.east - image.box.west) / source.width(), (image.box.south - image.box.north) / source.height());
        // Far enlarged images are drawn from what is seen of them: the rest would be too far away to count pixels to.
        const PlaneBox &sight = frame.sight;
        const QRectF seen =
            toPlane.inverted().mapRect(QRectF(QPointF(sight.west, sight.south), QPointF(sight.east, sight.north)));
        const QRectF part = QRectF(seen.toAlignedRect().adjusted(-2, -2, 2, 2)).intersected(QRectF(source.rect()));
        painter.save();
        painter.setRenderHint(QPainter::SmoothPixmapTransform, frame.smoothImages);
        painter.setTransform(toPlane * frame.toScreen);
        painter.drawImage(part, source, part);
        painter.restore();
    }
}
