#pragma once

#include "display/label_placer.h"

#include <QHash>
#include <QLine>
#include <QList>
#include <QPoint>
#include <QRect>

#include <optional>
#include <vector>

struct ShownTrack;
struct TrackFrame;

// Where the labels of tracks stand: where the operator put them, else, while they arrange themselves, out of each
// other's way, else at the offset that all have in common. Offsets are in pixels from the track to the label's upper
// left corner, y upwards; tracks are named by TrackSnapshot::incarnationId.
class TrackLabelPlaces {
public:
    bool isPinned(unsigned long long id) const { return m_pinned.contains(id); }
    std::optional<QPoint> pinnedOffset(unsigned long long id) const;
    void pin(unsigned long long id, const QPoint &offset) { m_pinned.insert(id, offset); }
    // Gives up the operator's places, and finds the labels new ones.
    void reset(unsigned long long id);
    void resetAll();
    bool anyPinned() const { return !m_pinned.isEmpty(); }
    // Forgets tracks for which gone(id) holds.
    template <typename Gone>
    void removeIf(Gone &&gone)
    {
        m_pinned.removeIf([&gone](const auto &entry) { return gone(entry.key()); });
    }

    // While the view is being dragged labels keep to their tracks.
    void setViewHeld(bool held) { m_viewHeld = held; }

    // What else is on the screen, in its pixels, and labels that arrange themselves should leave free.
    struct Obstacles {
        QList<QRect> places;
        QList<QLine> lines;
    };
    // Gives each label of the frame its rectangle and the lines that there is room for; that of the track under the
    // pointer always all.
    void place(TrackFrame &frame, const Obstacles &obstacles = {});

    // Labels in view, at the last frame, that show less than they have to say.
    int shortenedCount() const { return m_arranged ? m_placer.shortenedCount() + m_placer.hiddenCount() : 0; }

private:
    void arrange(TrackFrame &frame, const Obstacles &obstacles);
    LabelPlacer::Label label(const TrackFrame &frame, const ShownTrack &shown) const;
    static LabelPlacer::Label obstacle(quint64 id, const QRect &place);
    static LabelPlacer::Label obstacle(quint64 id, const QLine &line);
    LabelPlacer::Scene scene(const TrackFrame &frame) const;
    void noteView(const TrackFrame &frame);

    QHash<unsigned long long, QPoint> m_pinned;
    LabelPlacer m_placer;
    std::vector<LabelPlacer::Label> m_labels; // kept for its memory
    bool m_viewHeld = false;
    bool m_arranged = false; // at the last frame
    // Of the last frame: another zoom or size opens places that were taken.
    double m_metresPerPixel = 0.0;
    double m_rotation = 0.0;
    QSize m_viewSize;
};
