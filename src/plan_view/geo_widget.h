#pragma once

#include "plan_view/range_ring_tool.h"
#include "view/geo_view.h"
#include "view/paint_stats.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QTransform>
#include <QWidget>

class GeoMapDisplay;
class GeoTrackDisplay;

// The plan view: owns the transform between the projection plane (metres, x east, y north) and the screen, paints the
// map and the tracks through it and turns mouse, wheel and keys into view changes, selection and label drags. Zoom is
// in metres per pixel; rotation in degrees clockwise, in (-180, 180].
class GeoWidget final : public QWidget {
    Q_OBJECT

public:
    static constexpr double MinimumZoom = 0.3;
    static constexpr double MaximumZoom = 14000.0;
    static constexpr int RefreshIntervalMs = 200;

    explicit GeoWidget(QWidget *parent = nullptr);

    // The displays stay the caller's.
    GeoMapDisplay *mapDisplay() const;
    GeoTrackDisplay *trackDisplay() const;

    double currentZoom() const;
    double currentRotation() const;
    // From plane to widget pixels: flip, then the view, then the move to the widget centre.
    QTransform screenTransform() const;

    // The view transform alone: from plane points with y turned over to pixels from the widget centre.
    void saveViewport(QTransform &viewTransform) const;

    // Offers the left button and the keys to the tool first; it stays the caller's, who takes it back (null) before it
    // goes. Also to be called when the tool's cursor has changed. While the centre of the range rings is being placed,
    // the tool rests.
    void setPointerTool(GeoPointerTool *tool);
    GeoPointerTool *pointerTool() const { return m_pointerTool; }

    bool followsSelectedTrack() const { return m_followSelectedTrack; }

public Q_SLOTS:
    void setMapDisplay(GeoMapDisplay *display); // null is ignored
    void setTrackDisplay(GeoTrackDisplay *display); // null is ignored

    // The limits are looked at before the step, so one step may go past them.
    void zoomIn();
    void zoomOut();
    void rotate(const double &degrees);
    void rotateClockWise();
    void rotateCounterClockWise();
    void rotateNorthUp();
    void move(int dx, int dy); // pixels
    void moveLeft();
    void moveRight();
    void moveUp();
    void moveDown();
    void moveTo(int x, int y); // brings this widget pixel to the centre
    void jumpTo(const double &x, const double &y); // brings this plane point to the centre
    // Brings the track to the centre, if it has a position.
    void showTrack(unsigned long long id);
    // North up; the zoom is brought into its limits.
    void setView(const double &x, const double &y, const double &zoom);
    void changeViewPort(const QTransform &viewTransform);
    // The next release of the left button says where.
    void startSettingRangeRingsCenter();
    // Holds the selected track in the centre, until the view is dragged.
    void setFollowSelectedTrack(bool follow);

    // Ends what its track has left, follows the selected track, asks for a repaint. Comes with each beat of the repaint
    // timer.
    void refresh();
    void refreshMap(bool);
    void refreshTrack(bool);
    void updateMap();
    void updateTrack();

Q_SIGNALS:
    void cursorMoved(const QPointF &planePoint, const QPoint &screenPoint);
    void zoomChanged(double metresPerPixel);
    void rotationChanged(double degrees);
    // The corners are (least x, greatest y) and (greatest x, least y) of what is visible, in whole plane metres.
    void viewRectChanged(const QPoint &corner1, const QPoint &corner2, double metresPerPixel);
    void rangeRingsCenterSet(const QPointF &planePoint);
    // 0 when the selected track has gone.
    void trackSelected(unsigned long long id);
    void followSelectedTrackChanged(bool follow);
    // The pointer has come onto another track, by its symbol or its label; 0: onto none.
    void trackHovered(unsigned long long id);
    // The right button was clicked on a track, by its symbol or its label.
    void trackMenuRequested(unsigned long long id, const QPoint &globalPosition);
    // The right button was clicked where there is none.
    void placeMenuRequested(const QPointF &planePoint, const QPoint &globalPosition);
    void paintStats(const PaintStats &stats);
    void geoPointerMoveEvent(QPointF planePoint);
    void geoPointerClickEvent(QPointF planePoint);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    // Under notes and the like.
    QList<QRect> coveredPlaces() const;
    QPoint centerPixel() const;
    // The anchor, in pixels from the widget centre, stays where it is.
    void zoomBy(double factor, const QPointF &anchor);
    void translateView(double dx, double dy);
    void notifyViewRectChange();
    void beat();
    void updateSoon();
    void followPicture();
    void dropLostTracks();
    void keepSelectedTrackCentred();
    void startRightDrag(const QPointF &position);
    void endRightDrag();
    void holdView(bool held);
    void selectTrackAt(const QPoint &pixel);
    void panTo(const QPointF &position);
    void requestMenuAt(const QPointF &position, const QPoint &globalPosition);
    void noteHover(unsigned long long id);
    void dragLabel(const QPoint &delta);
    void placeRangeRings(const QPointF &planePoint);
    GeoPointerTool *toolAtWork() const { return m_passingTool ? m_passingTool : m_pointerTool; }
    void showIdleCursor();
    bool toolTakes(const QMouseEvent &event, bool (GeoPointerTool::*handler)(const QPointF &, const QTransform &));

    QTimer m_repaintTimer;
    QTimer m_frameTimer; // runs while news wait for a frame
    QElapsedTimer m_sincePaint;
    QTransform m_viewTransform;
    GeoView m_view;
    QPointer<GeoMapDisplay> m_mapDisplay;
    QPointer<GeoTrackDisplay> m_trackDisplay;
    GeoPointerTool *m_pointerTool = nullptr; // the caller's
    RangeRingTool m_rangeRingTool;
    GeoPointerTool *m_passingTool = nullptr; // goes before the caller's until its work is done
    bool m_panning = false;
    bool m_draggingLabel = false;
    QPointF m_lastMousePosition;
    QPointF m_rightPress; // where the right button went down
    unsigned long long m_draggedTrack = 0; // 0: none
    bool m_followSelectedTrack = false;
    PaintStatsCollector m_paintStats;
    QElapsedTimer m_clock;
};
