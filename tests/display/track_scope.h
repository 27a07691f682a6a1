#pragma once

#include "app/config.h"
#include "display/geo_track_display.h"
#include "painted_view.h"

// A track that is drawn as a small filled box.
inline TrackSnapshot flightAt(const QPointF &place = {}, quint64 id = 1, const QString &callsign = "ABC123")
{
    TrackSnapshot track;
    track.incarnationId = id;
    track.trackNumber = static_cast<unsigned int>(id);
    track.type = Track::Smr;
    track.carCoordinate = place;
    track.geoCoordinate = GeoCoordinate(place.y() / 111320.0, place.x() / 111320.0);
    track.callsign = callsign;
    track.level = 35000;
    track.carCoordinateValid = track.geoCoordinateValid = track.callsignValid = track.levelValid = true;
    return track;
}

// Tracks, and what is painted of them: at first with no vectors and no trails.
class TrackScope {
public:
    explicit TrackScope(const Config &config = {})
    {
        display.applyConfig(config);
        display.showVector(false);
        display.showTrail(false);
    }

    void show(const QList<TrackSnapshot> &tracks, const QList<AlertSnapshot> &alerts = {})
    {
        auto snapshot = QSharedPointer<DisplaySnapshot>::create();
        snapshot->tracks = tracks;
        snapshot->alerts = alerts;
        display.setSnapshot(snapshot);
    }

    void paint(PaintedView &view, int frames = 1)
    {
        for (int i = 0; i < frames; ++i) {
            view.paint([this](QPainter &painter, const GeoView &shown) { display.paint(&painter, shown); });
        }
    }

    PaintedView painted(double metresPerPixel = 100.0, double rotation = 0.0)
    {
        PaintedView view(metresPerPixel, {}, rotation);
        paint(view);
        return view;
    }

    GeoTrackDisplay display;
};
