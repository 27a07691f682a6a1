#pragma once

#include "display/alert_board.h"

#include <QCoreApplication>
#include <QHash>
#include <QLineF>
#include <QList>
#include <QRect>
#include <QString>

#include <vector>

class QPainter;
struct ConflictGeometry;
struct TrackFrame;

// The lines between the two tracks of each short-term conflict alert, with their distance, the difference of their
// levels and the time to their closest approach.
class ConflictLinePainter {
    Q_DECLARE_TR_FUNCTIONS(ConflictLinePainter)

public:
    using Tracks = QHash<unsigned long long, const TrackSnapshot *>; // by TrackSnapshot::incarnationId

    // Takes the conflicts of a frame. Figures go where they cover neither symbols nor each other, nor labels that have
    // been placed, nor the places to be kept free; where there is no such place, to the most usual one.
    void prepare(const TrackFrame &frame, const QList<AlertBoard::Entry> &alerts, const Tracks &tracks,
        const QList<QRect> &keptFree);
    void clear() { m_conflicts.clear(); }

    void paintLines(QPainter *painter, const TrackFrame &frame) const;
    // Above all labels.
    void paintTexts(QPainter *painter, const TrackFrame &frame) const;

    // Of the frame, in pixels: what labels should leave free.
    QList<QRect> textPlaces() const;
    QList<QLine> lines() const;

    // "3.2 NM 400 ft 45 s", without what is not known.
    static QString text(const ConflictGeometry &geometry);

private:
    struct Conflict {
        QLineF line; // between the symbols; null where they touch
        QString words; // empty: nothing is known
        QRect place; // of the words
    };

    void add(const TrackFrame &frame, AlertBoard::Key alert, const TrackSnapshot &one, const TrackSnapshot &other,
        const QList<QRect> &keptFree);
    bool isFree(const TrackFrame &frame, const QRect &place, const QList<QRect> &keptFree) const;

    std::vector<Conflict> m_conflicts;
    QHash<AlertBoard::Key, int> m_sides; // where the figures of an alert stood last: they stay while they can
};
