#pragma once

#include "view/geo_layer.h"

#include <QList>
#include <QPolygonF>
#include <QSize>
#include <QTransform>

// The map that is being edited: the whole of it faintly, the selected element with a handle on each of its points, and
// what is being drawn but not yet part of the map. Hidden while no map is edited.
class MapEditorLayer final : public GeoLayer {
    Q_OBJECT

public:
    enum class Join { None, Line, Ring, Box }; // box: between two opposite corners

    // Plane metres. A point that is not finite has no place: it is not drawn and cannot be hit, and keeps its index.
    struct Shape {
        QPolygonF points;
        Join join = Join::None;
    };
    struct Backdrop {
        QList<Shape> shapes;
        QPolygonF places; // of labels and symbols
    };

    explicit MapEditorLayer(QObject *parent = nullptr);

    void setShape(const Shape &shape);
    const Shape &shape() const { return m_shape; }
    // -1: none.
    void setCurrentPoint(qsizetype index);
    // A line that goes before the map has it; its last point follows the pointer.
    void setDraft(const QPolygonF &points);
    void setBackdrop(const Backdrop &backdrop);

    // The handle, or the point after which the line passes, nearest to the pixel and within reach; -1: none.
    qsizetype handleAt(const QPointF &pixel, const QTransform &screenTransform) const;
    qsizetype segmentAt(const QPointF &pixel, const QTransform &screenTransform) const;

    void paint(QPainter &painter, const GeoView &view) override;

private:
    // Screen lines of the view for which they were made.
    struct Lines {
        QTransform transform;
        QSize size;
        QList<QPolygonF> runs;
    };

    void updateLines(Lines &lines, const QList<Shape> &shapes, const GeoView &view) const;
    void paintBackdrop(QPainter &painter, const GeoView &view);
    void paintHandles(QPainter &painter, const GeoView &view) const;

    Shape m_shape;
    qsizetype m_currentPoint = -1;
    QPolygonF m_draft;
    Backdrop m_backdrop;
    Lines m_shapeLines;
    Lines m_backdropLines;
};
