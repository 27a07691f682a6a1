#pragma once

#include <QRect>
#include <QSize>

#include <vector>

// Which parts of the screen lie under labels, so that what they hide need not be painted. Errs on the side of painting:
// what is not reported visible is covered as often as it takes, or off the screen, to the last pixel.
class CoverMask {
public:
    static constexpr int MostLayers = 12;

    // Nothing is covered; pixels. What is covered so many times counts as hidden, 1 to MostLayers: translucent grounds
    // hide when enough of them lie on each other.
    void reset(const QSize &screen, int layers = 1);

    void cover(const QRect &rect);
    // Bounds what can be seen of a rectangle; empty when it is hidden.
    QRect visiblePart(const QRect &rect) const;

private:
    // One bit a cell; a row of cells is a whole number of words.
    using Word = quint64;
    static constexpr int CellPixels = 4;
    static constexpr int WordBits = 64;

    void coverCells(std::size_t word, Word cells);
    template <typename Visit>
    static void visitRow(int firstCell, int lastCell, Visit &&visit);

    QRect m_screen;
    int m_rowWords = 0;
    std::size_t m_layerWords = 0;
    std::vector<Word> m_words; // layer after layer: what is covered once, twice and so on
};
