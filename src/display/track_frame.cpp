#include "display/track_frame.h"

#include <algorithm>

namespace {

constexpr double OffScreenMargin = 500.0; // pixels round the view from which labels still reach into it

} // namespace

void TrackFrame::collect(unsigned long long selectedTrack)
{
    const double margin = OffScreenMargin * view.metresPerPixel();
    const QRectF area = view.planeRect().adjusted(-margin, -margin, margin, margin);
    tracks.clear();
    if (!snapshot) {
        return;
    }
    for (const TrackSnapshot &track : snapshot->tracks) {
        if (!track.carCoordinateValid || !area.contains(track.carCoordinate)) {
            continue;
        }
        ShownTrack shown;
        shown.track = &track;
        shown.place = view.toScreen(track.carCoordinate).toPoint();
        shown.selected = track.incarnationId == selectedTrack;
        shown.alerting = !track.alertsString.isEmpty();
        tracks.push_back(shown);
    }
    std::stable_partition(tracks.begin(), tracks.end(), [](const ShownTrack &shown) { return !shown.alerting; });
}

const QColor &TrackFrame::color(const ShownTrack &shown) const
{
    if (!look.isCompact()) {
        return look.colors.symbol;
    }
    if (shown.alerting) {
        return look.colors.labelAlert;
    }
    if (shown.selected) {
        return look.colors.labelSelected;
    }
    return shown.track->coasting ? look.colors.coasting : look.colors.symbol;
}

const QColor &TrackFrame::leaderColor(const ShownTrack &shown) const
{
    if (!look.isCompact()) {
        return look.colors.symbol;
    }
    return shown.alerting ? look.colors.labelAlert : look.colors.leader;
}
