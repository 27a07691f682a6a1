#include "vyxdisplay/picture_json.h"

#include "display/geo_map_display.h"
#include "display/geo_plot_map.h"
#include "display/geo_track_display.h"
#include "plan_view/geo_widget.h"

#include <QJsonArray>

namespace {

// From the scope's pixels to those of a picture of its window.
struct PicturePlace {
    QPoint origin;
    double ratio = 1.0;

    QJsonArray point(const QPoint &place) const
    {
        return {(origin.x() + place.x()) * ratio, (origin.y() + place.y()) * ratio};
    }

    QJsonArray rect(const QRect &rect) const
    {
        QJsonArray values = point(rect.topLeft());
        values += rect.width() * ratio;
        values += rect.height() * ratio;
        return values;
    }
};

QJsonObject labelObject(const GeoTrackDisplay &tracks, const ShownTrack &shown, const PicturePlace &picture)
{
    return {{"trackNumber", static_cast<qint64>(shown.track->trackNumber)},
        {"rect", picture.rect(tracks.frame().look.padded(shown.labelRect))}, {"lines", shown.lines},
        {"pinned", !tracks.trackLabelOffsetDefault(shown.track->incarnationId)}};
}

QJsonObject viewObject(const GeoView &view, double ratio)
{
    const QSize size = view.screenRect().size();
    return {{"size", QJsonArray{size.width() * ratio, size.height() * ratio}},
        {"metresPerPixel", view.metresPerPixel() / ratio}, {"rotation", view.rotation()}};
}

} // namespace

QJsonObject pictureJson(const GeoWidget &scope)
{
    const GeoTrackDisplay &tracks = *scope.trackDisplay();
    const TrackFrame &frame = tracks.frame();
    const PicturePlace picture{scope.mapTo(scope.window(), QPoint(0, 0)), frame.view.devicePixelRatio()};
    const QRect screen = frame.view.screenRect();
    QJsonArray labels;
    QJsonArray symbols;
    for (const ShownTrack &shown : frame.tracks) {
        if (shown.label && screen.intersects(frame.look.padded(shown.labelRect))) {
            labels += labelObject(tracks, shown, picture);
        }
        if (screen.contains(shown.place)) {
            symbols += QJsonObject{
                {"trackNumber", static_cast<qint64>(shown.track->trackNumber)}, {"place", picture.point(shown.place)}};
        }
    }
    const auto plots = static_cast<qint64>(scope.mapDisplay()->plotMap()->shownPlots());
    return {
        {"labels", labels}, {"symbols", symbols}, {"plots", plots}, {"view", viewObject(frame.view, picture.ratio)}};
}
