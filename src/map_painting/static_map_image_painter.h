#pragma once

#include "map_painting/static_map_painter.h"

#include <QHash>
#include <QImage>

struct MapImageElement;
struct StaticMapImage;

// Draws images between their corners. Keeps a picture of each whose rows lie where the projection wants them.
class StaticMapImagePainter final : public StaticMapPainter {
public:
    void paint(QPainter &painter, const StaticMapFrame &frame, const StaticMapGroup &group,
        const MapStyleClass &style) override;
    void forget() override { m_pictures.clear(); }

private:
    const QImage &picture(const StaticMapImage &image);

    QHash<const MapImageElement *, QImage> m_pictures;
};
