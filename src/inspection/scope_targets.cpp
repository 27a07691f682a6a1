#include "inspection/scope_targets.h"

#include "display/geo_track_display.h"
#include "display/track_label_lines.h"
#include "geo/projector.h"
#include "geo/wgs84.h"
#include "plan_view/geo_widget.h"

#include <algorithm>

namespace {

bool matches(const IdentityQuery &query, const TrackSnapshot &track)
{
    const auto modeA = track.modeACodeValid ? std::optional(static_cast<quint16>(track.modeACode)) : std::nullopt;
    return query.matches(track.callsignValid ? track.callsign : QString(), modeA,
        track.icaoAddrValid ? track.icaoAddr : 0, {track.trackNumber});
}

const ShownTrack *shownTrack(const TrackFrame &frame, quint64 id)
{
    const auto found = std::find_if(frame.tracks.begin(), frame.tracks.end(),
        [id](const ShownTrack &shown) { return shown.track->incarnationId == id; });
    return found == frame.tracks.end() ? nullptr : &*found;
}

// Labels of those that are raised are painted over the symbols of the others.
const ShownTrack *coverOf(const TrackFrame &frame, const ShownTrack &covered)
{
    for (const ShownTrack &other : frame.raised()) {
        if (other.track != covered.track && !covered.isRaised() && other.labelRect.contains(covered.place)) {
            return &other;
        }
    }
    return nullptr;
}

void noteDirection(LiveTarget &target, const TrackSnapshot &track, const GeoWidget &plan, Projector &projector)
{
    const QPointF middle = plan.screenTransform().inverted().map(QPointF(plan.rect().center()));
    const GeoCoordinate centre = projector.toWgs84(middle);
    if (centre.isValid() && track.geoCoordinateValid) {
        target.distance = centre.distanceTo(track.geoCoordinate) / wgs84::MetresPerNauticalMile;
        target.bearing = centre.azimuthTo(track.geoCoordinate);
    }
}

void noteLabel(LiveTarget &target, const TrackFrame &frame)
{
    const ShownTrack *shown = shownTrack(frame, target.track);
    if (!shown) {
        return; // not painted yet
    }
    if (const ShownTrack *cover = coverOf(frame, *shown)) {
        target.symbolCovered = true;
        target.coveredBy = trackName(*cover->track);
    }
    target.labelShown = shown->isRaised() || !shown->label || !shown->labelVisible.isEmpty();
}

LiveTarget targetOf(const TrackSnapshot &track, const QDateTime &now)
{
    LiveTarget target;
    target.track = track.incarnationId;
    target.name = trackName(track);
    target.callsign = track.callsignValid ? track.callsign : QString();
    target.address = track.icaoAddrValid ? track.icaoAddr : 0;
    target.number = track.trackNumber;
    target.hasPlace = track.carCoordinateValid;
    target.coasting = track.coasting;
    target.silentMs = std::max<qint64>(0, track.lastUpdate.msecsTo(now));
    return target;
}

} // namespace

QList<LiveTarget> findOnScope(
    const IdentityQuery &query, const DisplaySnapshot &snapshot, const GeoWidget &plan, Projector &projector)
{
    QList<LiveTarget> found;
    for (const TrackSnapshot &track : snapshot.tracks) {
        if (!matches(query, track)) {
            continue;
        }
        LiveTarget target = targetOf(track, snapshot.time);
        if (target.hasPlace) {
            const QPointF place = plan.screenTransform().map(track.carCoordinate);
            target.inView = QRectF(plan.rect()).contains(place);
            noteDirection(target, track, plan, projector);
            noteLabel(target, plan.trackDisplay()->frame());
        }
        found.append(target);
    }
    return found;
}
