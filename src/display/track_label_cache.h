#pragma once

#include "display/track_label_lines.h"

#include <QHash>
#include <QRectF>
#include <QSize>
#include <QStaticText>

#include <vector>

struct TrackLook;

// A track's label as it was last laid out; pixels.
struct TrackLabelLayout {
    enum class Kind { Alert, Caution, Plain, Identity, Detail };

    struct Mark {
        QChar character; // that the font lacks
        QRectF cell; // where it would stand, from the line's upper left corner
    };
    struct Line {
        Kind kind = Kind::Plain;
        QString text;
        QStaticText staticText;
        std::vector<Mark> marks;
        double width = 0.0;
        double y = 0.0; // below the label's top
    };

    quint64 contentRevision = 0; // of what the text was made from; 0 before the first
    TrackLabelLines content;
    std::vector<Line> lines;
    QSize size;
    int alertHeight = 0; // of the alert line, 0 without one
};

// The laid-out labels of all tracks, by TrackSnapshot::incarnationId: laying out is what a label costs most, and mostly
// its text is what it was at the last frame.
class TrackLabelCache {
public:
    // The tracks or the choice of fields changed: texts are made again, and laid out again where they differ.
    void noteContentChange() { ++m_contentRevision; }
    // The font changed.
    void clear() { m_labels.clear(); }
    // Forgets tracks for which gone(id) holds.
    template <typename Gone>
    void removeIf(Gone &&gone)
    {
        m_labels.removeIf([&gone](const auto &entry) { return gone(entry.key()); });
    }

    // The time is the picture's.
    void refresh(const TrackSnapshot &track, const TrackLook &look, const QDateTime &time);
    // Null for a track that was not refreshed, and for a label without text. Stays valid until the next refresh.
    const TrackLabelLayout *find(unsigned long long id) const;

private:
    quint64 m_contentRevision = 1;
    QHash<unsigned long long, TrackLabelLayout> m_labels;
};
