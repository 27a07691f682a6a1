#pragma once

#include <QRect>
#include <QSize>

#include <vector>

// Which parts of the screen lie under opaque labels, so that what they hide need not be painted. Errs on the side of
// painting: what is not reported visible is covered, or off the screen, to the last pixel.
class CoverMask {
public:
    // Nothing is covered; pixels.
    void reset(const QSize &screen);

    void cover(const QRect &rect);
    // Bounds what can be seen of a rectangle; empty when it is hidden.
    QRect visiblePart(const QRect &rect) const;

private:
    // One bit a cell; a row of cells is a whole number of words.
    using Word = quint64;
    static constexpr int CellPixels = 4;
    static constexpr int WordBits = 64;

    template <typename Visit>
    static void visitRow(int firstCell, int lastCell, Visit &&visit);

    QRect m_screen;
    int m_rowWords = 0;
    std::vector<Word> m_words;
};
