#include "display/track_label_places.h"

#include "display/track_frame.h"
#include "geo/wgs84.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double MetresPerSecondPerKnot = wgs84::MetresPerNauticalMile / 3600.0;
constexpr int CasingReach = 2; // pixels that a symbol's casing reaches beyond the symbol

// What is urgent, and who it is.
int shortenedLines(const TrackLabelLayout &layout)
{
    using Kind = TrackLabelLayout::Kind;
    const auto isUrgent = [](const TrackLabelLayout::Line &line) {
        return line.kind == Kind::Alert || line.kind == Kind::Caution;
    };
    const auto name = std::find_if_not(layout.lines.begin(), layout.lines.end(), isUrgent);
    return static_cast<int>(name - layout.lines.begin()) + (name == layout.lines.end() ? 0 : 1);
}

// Of that many lines from the top, without padding.
QSize textSize(const TrackLabelLayout &layout, int lines)
{
    const auto all = layout.lines.size();
    const auto kept = static_cast<std::size_t>(lines);
    if (kept >= all) {
        return layout.size;
    }
    double width = 0.0;
    for (std::size_t i = 0; i < kept; ++i) {
        width = std::max(width, layout.lines[i].width);
    }
    const double below = layout.lines[all - 1].y - layout.lines[kept - 1].y;
    return QSize(static_cast<int>(std::ceil(width)), layout.size.height() - static_cast<int>(std::floor(below)));
}

// From a label's padded corner to that of its text.
QPoint paddingCorner(const TrackLook &look)
{
    const QRect text(0, 0, 1, 1);
    return text.topLeft() - look.padded(text).topLeft();
}

QSize paddedSize(const TrackLook &look, const QSize &text)
{
    return look.padded(QRect(QPoint(0, 0), text)).size();
}

// That many metres in the direction of flight, in pixels.
QPointF ahead(const GeoView &view, const TrackSnapshot &track, double metres)
{
    const double radians = qDegreesToRadians(track.heading + view.rotation());
    return QPointF(std::sin(radians), -std::cos(radians)) * metres / view.metresPerPixel();
}

// In pixels a second.
QPointF motionOf(const GeoView &view, const TrackSnapshot &track)
{
    const bool known = track.headingValid && track.groundSpeedValid;
    return known ? ahead(view, track, track.groundSpeed * MetresPerSecondPerKnot) : QPointF();
}

QPoint vectorTip(const TrackFrame &frame, const TrackSnapshot &track)
{
    const TrackLook &look = frame.look;
    if (!look.vectorVisible || !track.headingValid) {
        return {};
    }
    const QPointF unit = look.vectorTimeMode ? motionOf(frame.view, track) * 60.0
                                             : ahead(frame.view, track, wgs84::MetresPerNauticalMile);
    return (unit * look.vectorRangeOf(track.incarnationId == frame.selectedTrack)).toPoint();
}

LabelPlacer::Priority priorityOf(const ShownTrack &shown)
{
    using Priority = LabelPlacer::Priority;
    if (shown.alerting) {
        return Priority::Alert;
    }
    if (shown.selected) {
        return Priority::Selected;
    }
    if (shown.hovered) {
        return Priority::Hovered;
    }
    return shown.inDistress ? Priority::Emergency : Priority::Normal;
}

// Half a text tells nothing of an aircraft that is not seen either.
bool isCut(const GeoView &view, const ShownTrack &shown, const LabelPlacer::Placed &placed)
{
    const QRect screen = view.screenRect();
    return !screen.contains(shown.place) && !screen.contains(QRect(shown.place + placed.offset, placed.size));
}

void show(ShownTrack &shown, const QPoint &corner, int lines)
{
    shown.lines = lines;
    shown.labelRect = QRect(shown.place + corner, textSize(*shown.label, lines));
}

} // namespace

std::optional<QPoint> TrackLabelPlaces::pinnedOffset(unsigned long long id) const
{
    const auto pinned = m_pinned.constFind(id);
    return pinned == m_pinned.constEnd() ? std::nullopt : std::optional(*pinned);
}

void TrackLabelPlaces::reset(unsigned long long id)
{
    m_pinned.remove(id);
    m_placer.forget(id);
}

void TrackLabelPlaces::resetAll()
{
    m_pinned.clear();
    m_placer.forget();
}

void TrackLabelPlaces::place(TrackFrame &frame, const Obstacles &obstacles)
{
    m_arranged = frame.look.autoPlace;
    if (m_arranged) {
        arrange(frame, obstacles);
        return;
    }
    m_placer.forget();
    for (ShownTrack &shown : frame.tracks) {
        if (shown.label) {
            const QPoint offset = m_pinned.value(shown.track->incarnationId, frame.look.labelOffset);
            show(shown, QPoint(offset.x(), -offset.y()), static_cast<int>(shown.label->lines.size()));
        }
    }
}

void TrackLabelPlaces::arrange(TrackFrame &frame, const Obstacles &obstacles)
{
    noteView(frame);
    m_labels.clear();
    for (const ShownTrack &shown : frame.tracks) {
        m_labels.push_back(label(frame, shown));
    }
    quint64 id = ~quint64(0); // no track has so high a key
    for (const QRect &place : obstacles.places) {
        m_labels.push_back(obstacle(id--, place));
    }
    for (const QLine &line : obstacles.lines) {
        m_labels.push_back(obstacle(id--, line));
    }
    const std::vector<LabelPlacer::Placed> &placed = m_placer.place(scene(frame), m_labels);
    const QPoint padding = paddingCorner(frame.look);
    for (std::size_t i = 0; i < frame.tracks.size(); ++i) {
        ShownTrack &shown = frame.tracks[i];
        const bool cut = !m_labels[i].pinned && isCut(frame.view, shown, placed[i]);
        if (!shown.label || placed[i].form == LabelPlacer::Form::Hidden || cut) {
            shown.label = nullptr;
            continue;
        }
        const bool whole = placed[i].form == LabelPlacer::Form::Whole;
        show(shown, placed[i].offset + padding,
            whole ? static_cast<int>(shown.label->lines.size()) : shortenedLines(*shown.label));
    }
}

void TrackLabelPlaces::noteView(const TrackFrame &frame)
{
    const GeoView &view = frame.view;
    if (view.metresPerPixel() != m_metresPerPixel || view.rotation() != m_rotation
        || view.screenRect().size() != m_viewSize) {
        m_placer.lookAgain();
    }
    m_metresPerPixel = view.metresPerPixel();
    m_rotation = view.rotation();
    m_viewSize = view.screenRect().size();
}

// A track without a label has a symbol that those of the others leave free.
LabelPlacer::Label TrackLabelPlaces::label(const TrackFrame &frame, const ShownTrack &shown) const
{
    const TrackSnapshot &track = *shown.track;
    LabelPlacer::Label label;
    label.id = track.incarnationId;
    label.place = shown.place;
    label.motion = motionOf(frame.view, track);
    label.vectorTip = vectorTip(frame, track);
    label.priority = priorityOf(shown);
    label.keepsVectorFree = shown.selected;
    if (shown.label) {
        label.whole = paddedSize(frame.look, shown.label->size);
        label.shortened = paddedSize(frame.look, textSize(*shown.label, shortenedLines(*shown.label)));
    }
    if (const std::optional<QPoint> pinned = pinnedOffset(track.incarnationId)) {
        label.pinned = true;
        label.pinnedOffset = QPoint(pinned->x(), -pinned->y()) - paddingCorner(frame.look);
    }
    return label;
}

// A label that does not give way.
LabelPlacer::Label TrackLabelPlaces::obstacle(quint64 id, const QRect &place)
{
    LabelPlacer::Label label;
    label.id = id;
    label.place = place.center();
    label.whole = place.size();
    label.shortened = place.size();
    label.pinned = true;
    label.pinnedOffset = place.topLeft() - place.center();
    return label;
}

LabelPlacer::Label TrackLabelPlaces::obstacle(quint64 id, const QLine &line)
{
    LabelPlacer::Label label;
    label.id = id;
    label.place = line.p1();
    label.vectorTip = line.p2() - line.p1();
    label.keepsVectorFree = true;
    return label;
}

LabelPlacer::Scene TrackLabelPlaces::scene(const TrackFrame &frame) const
{
    LabelPlacer::Scene scene;
    scene.view = frame.view.screenRect();
    scene.symbolReach = (frame.look.symbolSize + 1) / 2 + CasingReach;
    scene.preferredOffset = QPoint(frame.look.labelOffset.x(), -frame.look.labelOffset.y()) - paddingCorner(frame.look);
    scene.panning = m_viewHeld;
    return scene;
}
