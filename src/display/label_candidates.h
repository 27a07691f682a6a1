#pragma once

#include <QPoint>
#include <QSize>

#include <map>
#include <utility>
#include <vector>

// The places round a symbol at which a label may stand, the most welcome first: close to the symbol, and on the side
// where the operator wants labels.
class LabelCandidates {
public:
    struct Candidate {
        QPoint offset; // of the label's upper left corner from the symbol's place, pixels, y down
        float cost = 0.0f; // 0: the preferred place itself
    };

    // The preferred offset of a label's corner, and half the size of a symbol, pixels.
    void setUp(const QPoint &preferred, int symbolReach);
    // Valid until the next setUp() that changes something.
    const std::vector<Candidate> &of(const QSize &size);
    // Of any place, in the measure of the candidates' costs.
    float cost(const QPoint &offset, const QSize &size) const;

private:
    std::vector<Candidate> make(const QSize &size) const;
    void addRing(std::vector<Candidate> &candidates, const QSize &size, int distance) const;

    QPoint m_preferred;
    int m_symbolReach = 0;
    std::map<std::pair<int, int>, std::vector<Candidate>> m_bySize;
};
