#pragma once

#include <QRectF>

#include <vector>

// The places that texts have taken in one frame, so that none lies under another. Pixels. GUI thread.
class TextRoom {
public:
    // A new frame: nothing is taken, and texts stay within this rectangle.
    void begin(const QRectF &view);
    // True when the rectangle lies within the view and on nothing that is taken.
    bool isFree(const QRectF &rect) const;
    // Whatever is there.
    void take(const QRectF &rect) { m_taken.push_back(rect); }
    // Takes a place that is free; false, and nothing taken, when it is not.
    bool takeIfFree(const QRectF &rect);

    const QRectF &view() const { return m_view; }

private:
    QRectF m_view;
    std::vector<QRectF> m_taken;
};
