#pragma once

#include "display/geo_track_display.h"
#include "display/track_display_format.h"

#include <QWidget>

// Sample tracks, painted by the track layer itself: one that climbs and is selected, one in an alert, one that coasts.
class TrackFormatPreview final : public QWidget {
    Q_OBJECT

public:
    explicit TrackFormatPreview(QWidget *parent = nullptr);

    void setFormat(const TrackDisplayFormat &format);
    // Takes over what a format leaves out, and the ground on which the tracks stand.
    void setColors(const GeoTrackDisplay &display, const QColor &ground);

    QSize sizeHint() const override { return {380, 560}; }
    QSize minimumSizeHint() const override { return {340, 420}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    GeoTrackDisplay m_display;
    QColor m_ground = QColor(173, 173, 173);
};
