#pragma once

#include "map_editor/map_editor_document.h"
#include "map_editor/map_editor_geometry.h"
#include "plan_view/geo_pointer_tool.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <optional>

class GeoWidget;
class Projector;

// Edits the chosen element on the plan view. Its points are dragged with the left button, a double-click on a line puts
// a point there, and while drawing each click sets a point. GUI thread.
class MapEditorPlanTool final : public QObject, public GeoPointerTool {
    Q_OBJECT

public:
    // Document and projector must outlive the tool; the widget may go first.
    MapEditorPlanTool(MapEditorDocument *document, GeoWidget *widget, Projector *projector, QObject *parent = nullptr);
    ~MapEditorPlanTool() override;

    // While active, the tool handles the left button on the plan view and the edited map is shown there.
    void setActive(bool active);
    // Stays with the element when its index changes because others are inserted or removed.
    void setElement(const MapElementRef &ref);
    void setCurrentPoint(qsizetype index); // -1: none
    // Whether the plan view shows the map in its own layer already.
    void setShownElsewhere(bool shown);

    // Clicks go into a line or area before this point, or set the place of another element, until Enter or a
    // double-click; Escape ends without a trace.
    void startDrawing(qsizetype before);
    bool isDrawing() const { return m_drawing; }
    void finishDrawing();
    void cancelDrawing();

    // Brings the element, or its point when the index is not -1, to the centre of the view.
    void center(qsizetype point);

    bool pressed(const QPointF &pixel, const QTransform &screenTransform) override;
    bool moved(const QPointF &pixel, const QTransform &screenTransform) override;
    bool released(const QPointF &pixel, const QTransform &screenTransform) override;
    bool doubleClicked(const QPointF &pixel, const QTransform &screenTransform) override;
    bool keyPressed(const QKeyEvent &event) override;
    Qt::CursorShape cursorShape() const override;

Q_SIGNALS:
    void pointPicked(qsizetype index);
    void drawingChanged(bool drawing);

private:
    MapEditorLayer *layer() const;
    void follow(const MapEditorChange &change);
    void showElement();
    void showBackdrop();
    void showDraft();
    void addDraftPoint(const QPointF &planePoint);
    void endDrawing();
    void dragTo(const QPointF &planePoint);
    void cancelDrag();
    void removeCurrentPoint();
    void setCursor(Qt::CursorShape shape);

    MapEditorDocument *m_document;
    QPointer<GeoWidget> m_widget;
    MapEditorGeometry m_geometry;
    MapElementRef m_ref;
    bool m_active = false;
    bool m_shownElsewhere = false;
    qsizetype m_currentPoint = -1;
    QTimer m_backdropTimer; // delays showBackdrop(): a drag changes the map many times a second

    bool m_dragging = false;
    quint64 m_drag = 0; // number of the current or last drag
    GeoCoordinate m_dragStart;
    QPointF m_grip; // from the pointer to the point, in plane metres

    bool m_drawing = false;
    qsizetype m_drawBefore = 0;
    QList<GeoCoordinate> m_draft;
    std::optional<QPointF> m_pointer; // plane point, while drawing
    Qt::CursorShape m_cursor = Qt::ArrowCursor;
};
