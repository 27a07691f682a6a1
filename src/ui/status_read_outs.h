#pragma once

#include "geo/geo_coordinate.h"

#include <QLabel>
#include <QPointF>
#include <QTimeZone>

class Projector;
class QStatusBar;

#include <array>

// The read-outs at the right of the status bar: cursor position and where it lies from the sensor, scale, rotation,
// alert indicators and clock. Each is as wide as its widest text, so that nothing moves when a figure changes. What a
// narrow bar has no room for is left out: rotation first, then scale, the pointer's place and local time.
class StatusReadOuts final : public QObject {
    Q_OBJECT

public:
    // The read-outs become the bar's; the projector must outlive this object.
    StatusReadOuts(QStatusBar *bar, Projector *projector);

    // Where the sensor stands from which bearing and distance are shown; invalid: they are not.
    void setSensorPlace(const GeoCoordinate &place);
    // Plane metres; empty where the plane point is off the globe.
    void showCursorPosition(const QPointF &planePoint);
    void showZoom(double metresPerPixel);
    // Degrees clockwise.
    void showRotation(double degrees);
    // Types are Alert::Type; any other number is ignored.
    void showAlertStatus(int type, bool on);
    // Beside the indicators, which keep what they last showed. Empty: the safety nets are heard.
    void showNetsUnheard(const QString &explanation);
    // An IANA id, or "LCL" for the system's own zone under just that label; an unknown id gives UTC alone.
    void setTimeZone(const QString &name);
    void showTime(const QDateTime &now);
    // Of a recording that is being played; looks so that nobody takes it for the present.
    void showRecordedTime(const QDateTime &time);

    QLabel *cursor() const { return m_cursor; }
    // True bearing and distance over the ground.
    QLabel *fromSensor() const { return m_fromSensor; }
    QLabel *scale() const { return m_scale; }
    QLabel *rotation() const { return m_rotation; }
    QLabel *localClock() const { return m_localClock; }
    QLabel *utcClock() const { return m_utcClock; }
    // MSAW, APW, STCA.
    QLabel *alertIndicator(int index) const { return m_alerts.at(static_cast<std::size_t>(index)); }

protected:
    // The bar's size, and that what needs room has come or gone.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeRoom();
    QLabel *addReadOut(QStatusBar *bar, const QString &widestText, const QString &toolTip);
    void showClocks(const QDateTime &time, const QString &utcPattern, const QString &utcToolTip, const QString &look);
    QString zoneLabel(const QDateTime &now) const;

    QStatusBar *m_bar;
    Projector *m_projector;
    GeoCoordinate m_sensorPlace;
    QTimeZone m_zone;
    bool m_systemZone = false;
    bool m_ownZone = false; // beside UTC
    QLabel *m_cursor;
    QLabel *m_fromSensor;
    QLabel *m_scale;
    QLabel *m_rotation;
    std::array<QLabel *, 3> m_alerts = {};
    QLabel *m_netsMark;
    QLabel *m_localClock;
    QLabel *m_utcClock;
};
