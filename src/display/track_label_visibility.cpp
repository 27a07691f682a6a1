#include "display/track_label_visibility.h"

#include "display/track_frame.h"

// From the topmost label down.
void TrackLabelVisibility::find(TrackFrame &frame)
{
    const int layers = frame.look.coveringLabels();
    m_cover.reset(frame.view.screenRect().size(), layers);
    for (auto shown = frame.tracks.rbegin(); shown != frame.tracks.rend(); ++shown) {
        if (!shown->label) {
            continue;
        }
        const QRect padded = frame.look.padded(shown->labelRect);
        shown->labelVisible = m_cover.visiblePart(padded.adjusted(-1, -1, 1, 1)); // an alert's frame stands outside
        if (shown->labelVisible.isEmpty()) {
            continue;
        }
        shown->hiddenLines = hiddenLines(*shown, padded);
        if (layers > 0) {
            m_cover.cover(padded);
        }
    }
}

bool TrackLabelVisibility::isHidden(const QRectF &boundsOfLine) const
{
    return m_cover.visiblePart(boundsOfLine.toAlignedRect().adjusted(-1, -1, 1, 1)).isEmpty();
}

unsigned int TrackLabelVisibility::hiddenLines(const ShownTrack &shown, const QRect &padded) const
{
    unsigned int hidden = 0;
    const std::vector<TrackLabelLayout::Line> &lines = shown.label->lines;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const int top = shown.labelRect.top() + static_cast<int>(lines[i].y);
        const int bottom =
            i + 1 < lines.size() ? shown.labelRect.top() + static_cast<int>(lines[i + 1].y) : padded.bottom();
        // Glyphs may lean out of their line a little.
        const QRect line(QPoint(padded.left(), top - 2), QPoint(padded.right(), bottom + 2));
        hidden |= static_cast<int>(i) >= shown.lines || m_cover.visiblePart(line).isEmpty() ? 1u << i : 0u;
    }
    return hidden;
}
