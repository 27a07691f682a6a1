#pragma once

#include <QLine>
#include <QPoint>
#include <QPointF>
#include <QRect>

#include <vector>

// What stands on the screen while labels are being placed: symbols, labels with their leaders, and lines that are to
// stay free. Answers what a label would run into. Screen pixels; motions in pixels a second. An owner is an index of
// the caller's that has one symbol and at most one label.
class LabelField {
public:
    // Empties the field. Symbols are squares of twice the reach.
    void reset(const QRect &area, int owners, int symbolReach);
    // Before anything else of that owner.
    void addSymbol(int owner, const QPoint &place, const QPointF &motion);
    // Whether its label gets out of the way of one that does not yield. All do until told otherwise.
    void setYields(int owner, bool yields);
    // A line from an owner's symbol that the labels of all leave free.
    void addFreeLine(int owner, const QPoint &tip);
    // The owner's label; of one that has a label already, instead of that.
    void put(int owner, const QRect &rect);
    void remove(int owner);

    // How much the label would be in the way at that place, and others in its: 0 where it is free, else roughly the
    // pixels of text that are hard to read. Once the limit is reached the answer is any figure from there on.
    double cost(int owner, const QRect &rect, double limit) const;
    // An owner whose leader crosses that of the owner's label; -1: none.
    int crossing(int owner) const;
    // How many symbols there are around a place.
    int crowding(const QPoint &place) const;
    // A quick guess at the cost from what stands on the same pixels.
    double roughCost(const QRect &rect) const;
    // Seconds until the label would run into another label or symbol, up to the limit, if all keep moving as they do.
    // Where it comes to no more than the least that is worth knowing the answer is any figure up to that.
    double freeFor(int owner, const QRect &rect, double limit, double least = 0.0) const;

    // Where a leader ends: the label's pixel that is nearest to the place.
    static QPoint leaderEnd(const QPoint &place, const QRect &rect);

private:
    struct Owner {
        QPoint place;
        QPointF motion;
        QRect bounds; // of label and leader
        QRect rect; // of the label; null: none
        QLine leader;
        QRect leaderBounds;
        bool yields = true;
    };

    QRect cellsOf(const QRect &rect) const;
    template <typename Visit>
    static bool visit(const std::vector<std::vector<int>> &cells, int columns, const QRect &range, Visit &&visit);
    QRect symbolRect(const Owner &owner) const;
    static double inTheWay(const Owner &label, const Owner &other);
    double freeLineCost(const QRect &rect) const;
    void addDensity(const QRect &rect, int costOfPixel);

    QRect m_area;
    int m_columns = 0;
    int m_symbolReach = 0;
    double m_speed = 0.0; // of the quickest
    std::vector<Owner> m_owners;
    std::vector<QLine> m_freeLines;
    std::vector<std::vector<int>> m_symbolCells; // each symbol in the cell of its place
    std::vector<std::vector<int>> m_labelCells; // each label in all cells that it or its leader reaches
    int m_densityColumns = 0;
    std::vector<int> m_density; // cost of the pixels of each small cell, in DensityUnits
    mutable std::vector<unsigned int> m_visited; // by owner: the number of the last question that came across it
    mutable unsigned int m_question = 0;
};
