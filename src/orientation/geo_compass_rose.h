#pragma once

#include "view/geo_layer.h"

#include <QColor>
#include <QLineF>
#include <QPolygonF>
#include <QTransform>

#include <vector>

class GeoRangeRingMap;
class Projector;

// True bearings from the centre of the range rings: a tick every 10 degrees, longer and with its figure every 30, at
// the outermost ring where the view shows all of it, else at the rim of the view.
class GeoCompassRose final : public GeoLayer {
    Q_OBJECT

public:
    // Both must outlive the layer.
    GeoCompassRose(Projector *projector, GeoRangeRingMap *rings, QObject *parent = nullptr);

    void placeTexts(const GeoView &view, TextRoom &room) override;
    void paint(QPainter &painter, const GeoView &view) override;
    void applyConfig(const Config &config) override;
    SettingGroups settings() const override;

private:
    struct Mark {
        int bearing = 0; // degrees, 10 to 360
        QPointF foot; // pixels, on the ring or the rim
        QPointF toText; // unit vector from the foot to where the figure goes
        QLineF tick;
        QPointF text;
        bool textShown = false;
    };

    void makeMarks(const GeoView &view);
    void marksOnRing(const QPolygonF &ring);
    void marksOnRim(const GeoView &view);
    void markBetween(const QPointF &one, double oneBearing, const QPointF &other, double otherBearing,
        const QPointF &inward, const QPointF &middle);

    Projector *m_projector;
    GeoRangeRingMap *m_rings;
    QColor m_color;
    QColor m_ground;

    // What the marks were made for.
    QTransform m_markedTransform;
    QSize m_markedSize;
    QPointF m_markedCenter;
    QPolygonF m_markedRing;
    std::vector<Mark> m_marks;
};
