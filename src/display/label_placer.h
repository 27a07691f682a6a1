#pragma once

#include "display/label_candidates.h"
#include "display/label_field.h"

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>

#include <unordered_map>
#include <vector>

// Finds places for track labels so that they cover neither each other nor symbols and their leaders do not cross, as
// far as there is room. Called once a snapshot; remembers where each track's label stood, and moves a label only when
// its place has become bad. In a crowd labels give up lines, the last of them vanish. Knows rectangles alone: pixels, y
// down. GUI thread.
class LabelPlacer {
public:
    // All but normal labels stay whole. A hovered one that is not gets a place over the others, who do not give way.
    enum class Priority : quint8 { Normal, Emergency, Hovered, Selected, Alert };
    enum class Form : quint8 { Whole, Shortened, Hidden };

    struct Label {
        quint64 id = 0; // the track's key
        QPoint place; // of the symbol on the screen
        QPointF motion; // of the symbol, pixels a second; null where it is not known
        QSize whole; // empty: has no label, only the symbol
        QSize shortened; // without the lines that it can do without; the same as whole when it has none
        QPoint vectorTip; // from the symbol; null: shows none
        Priority priority = Priority::Normal;
        bool keepsVectorFree = false; // of all labels
        bool pinned = false; // stands at pinnedOffset whatever is there, whole
        QPoint pinnedOffset;
    };

    struct Scene {
        QRect view;
        int symbolReach = 10; // half the side of the square that a symbol fills
        QPoint preferredOffset; // where labels stand that have the choice
        bool panning = false; // the view is being moved: labels leave it where they stand
    };

    struct Placed {
        QPoint offset; // of the label's upper left corner from the symbol
        QSize size;
        Form form = Form::Hidden;
    };

    // The answer is in the order of the labels and valid until the next call.
    const std::vector<Placed> &place(const Scene &scene, const std::vector<Label> &labels);

    // Of the last call, symbols within the view only.
    int shortenedCount() const { return m_shortenedCount; }
    int hiddenCount() const { return m_hiddenCount; }

    // Places all labels anew with the next call, or that of one track.
    void forget();
    void forget(quint64 id);
    // The view has changed: labels that found no better place look again at once, and hidden ones are placed anew.
    void lookAgain();

private:
    // What is known of a track's label from call to call.
    struct Memory {
        QPoint offset;
        double placeCost = 0.0; // of its offset alone
        QSize size;
        Form form = Form::Hidden;
        Priority priority = Priority::Normal;
        bool isNew = true;
        int seen = 0; // the number of the call
        int retry = 0; // the call from which on it looks for a better place again
        double tolerated = 0.0; // what its place may cost until then
    };
    struct Found {
        QPoint offset;
        double placeCost = 0.0;
        double cost = 0.0; // with all that is in its way
        Form form = Form::Hidden;
    };
    struct Entry {
        const Label *label = nullptr;
        Memory *memory = nullptr;
        bool inView = false;
        int crowding = 0;
    };

    void collect(const std::vector<Label> &labels);
    void setCosts();
    void recall();
    void recall(int index);
    void sortNew();
    void placeNew();
    void findWanting();
    void improve();
    void improve(int index);
    bool exchange(int index);
    double exchangedCost(int index, const QPoint &corner);
    void report();
    Placed hovered(int index);

    double formCost(Form form) const;
    bool staysWhole(int index) const;
    bool isUrgent(int index) const;
    bool isMovable(int index) const;
    bool isGood(int index) const;
    bool isWanting(int index) const;
    Found standing(int index) const;
    double standingCost(int index, double limit) const;
    double edgeCost(int index, const QRect &rect) const;
    double vectorCost(const Label &label, const QRect &rect) const;
    Found bestForm(int index, Found best);
    Found bestPlace(int index, Form form, Found best);
    Found inPlace(int index, Form form, Found best) const;
    double placeCost(int index, const QRect &rect, double cost, double limit) const;
    void settle(int index, const Found &found);
    QRect rectOf(int index) const;

    const Entry &entry(int index) const { return m_entries[static_cast<std::size_t>(index)]; }

    std::unordered_map<quint64, Memory> m_memories;
    LabelCandidates m_candidates;
    LabelField m_field;
    Scene m_scene;
    std::vector<Entry> m_entries;
    std::vector<int> m_wanting; // in a bad place or not whole; the least important first
    std::vector<int> m_new; // the most important first
    std::vector<Placed> m_placed;
    quint64 m_hovered = 0; // the track that is shown over the others
    Placed m_hoveredPlace;
    int m_call = 0;
    double m_hiddenCost = 0.0; // of not being shown, in this call
    double m_shortenedCost = 0.0; // of giving up lines
    double m_horizonCost = 0.0; // of a place that is about to be taken
    double m_nearerCost = 0.0; // what a move to a nearer place has to be worth
    int m_work = 0; // candidates looked at in this call
    int m_shortenedCount = 0;
    int m_hiddenCount = 0;
};
