#include "display/track_frame.h"

#include <algorithm>
#include <functional>

namespace {

constexpr double OffScreenMargin = 500.0; // pixels round the view from which labels still reach into it

} // namespace

void TrackFrame::collect(const AlertBoard &alerts)
{
    const double margin = OffScreenMargin * view.metresPerPixel();
    const QRectF area = view.planeRect().adjusted(-margin, -margin, margin, margin);
    tracks.clear();
    if (!snapshot) {
        return;
    }
    const auto isOverdue = [this](const TrackSnapshot &track) {
        return track.coasting && look.longestCoastingMs > 0
            && track.lastUpdate.msecsTo(snapshot->time) > look.longestCoastingMs;
    };
    for (const TrackSnapshot &track : snapshot->tracks) {
        if (!track.carCoordinateValid || !area.contains(track.carCoordinate)) {
            continue;
        }
        ShownTrack shown;
        shown.track = &track;
        shown.place = view.toScreen(track.carCoordinate).toPoint();
        shown.selected = track.incarnationId == selectedTrack;
        shown.hovered = track.incarnationId == hoveredTrack;
        shown.alerting = !track.alertsString.isEmpty();
        shown.inDistress = track.emergency != Track::NoEmergency;
        shown.overdue = isOverdue(track);
        shown.asking = alerts.attention(track.incarnationId) == AlertBoard::Attention::Asked;
        shown.blinkedOff = shown.asking && !blinkOn;
        tracks.push_back(shown);
    }
    const auto isUrgent = [](const ShownTrack &shown) { return shown.alerting || shown.inDistress; };
    std::stable_partition(tracks.begin(), tracks.end(), std::not_fn(isUrgent));
    // The one that the operator works with, on top.
    std::stable_partition(
        tracks.begin(), tracks.end(), [](const ShownTrack &shown) { return !shown.selected && !shown.hovered; });
}

std::span<const ShownTrack> TrackFrame::raised() const
{
    return std::span(tracks).subspan(ordinary().size());
}

std::span<const ShownTrack> TrackFrame::ordinary() const
{
    const auto end =
        std::partition_point(tracks.begin(), tracks.end(), [](const ShownTrack &shown) { return !shown.isRaised(); });
    return {tracks.begin(), end};
}

const QColor &TrackFrame::color(const ShownTrack &shown) const
{
    if (!look.isCompact()) {
        return look.colors.symbol;
    }
    if (shown.alerting) {
        return look.colors.labelAlert;
    }
    if (shown.inDistress) {
        return look.colors.caution;
    }
    if (shown.selected) {
        return look.colors.labelSelected;
    }
    if (shown.overdue) {
        return look.colors.caution;
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
