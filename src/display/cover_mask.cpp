#include "display/cover_mask.h"

#include <algorithm>
#include <bit>

void CoverMask::reset(const QSize &screen, int layers)
{
    m_screen = QRect(QPoint(0, 0), screen);
    m_rowWords = screen.width() / CellPixels / WordBits + 1;
    m_layerWords = static_cast<std::size_t>(m_rowWords) * static_cast<std::size_t>(screen.height() / CellPixels + 1);
    m_words.assign(m_layerWords * static_cast<std::size_t>(std::clamp(layers, 1, MostLayers)), 0);
}

// Calls visit(word index in the row, mask of the cells in that word) for the words that hold the cells.
template <typename Visit>
void CoverMask::visitRow(int firstCell, int lastCell, Visit &&visit)
{
    for (int word = firstCell / WordBits; word <= lastCell / WordBits; ++word) {
        const int from = std::max(firstCell - word * WordBits, 0);
        const int to = std::min(lastCell - word * WordBits, WordBits - 1);
        visit(static_cast<std::size_t>(word), (~Word(0) >> (WordBits - 1 - to)) & (~Word(0) << from));
    }
}

// Cells that were covered already are covered once more, in the next layer.
void CoverMask::coverCells(std::size_t word, Word cells)
{
    for (; word < m_words.size() && cells != 0; word += m_layerWords) {
        const Word before = m_words[word];
        m_words[word] |= cells;
        cells &= before;
    }
}

// Only cells that lie wholly inside. A label that reaches over the screen's edge covers the cells cut by the edge too.
void CoverMask::cover(const QRect &rect)
{
    const QRect seen = rect & m_screen;
    if (seen.isEmpty()) {
        return;
    }
    const auto lastCell = [](int seenEnd, int screenEnd) {
        return seenEnd == screenEnd ? seenEnd / CellPixels : (seenEnd + 1) / CellPixels - 1;
    };
    const int left = (seen.left() + CellPixels - 1) / CellPixels;
    const int right = lastCell(seen.right(), m_screen.right());
    const int top = (seen.top() + CellPixels - 1) / CellPixels;
    const int bottom = lastCell(seen.bottom(), m_screen.bottom());
    for (int row = top; row <= bottom && left <= right; ++row) {
        const std::size_t start = static_cast<std::size_t>(row) * static_cast<std::size_t>(m_rowWords);
        visitRow(left, right, [this, start](std::size_t index, Word cells) { coverCells(start + index, cells); });
    }
}

QRect CoverMask::visiblePart(const QRect &rect) const
{
    const QRect seen = rect & m_screen;
    QRect cells; // that can be seen
    for (int row = seen.top() / CellPixels; row <= seen.bottom() / CellPixels && !seen.isEmpty(); ++row) {
        const Word *words = m_words.data() + (m_words.size() - m_layerWords)
            + static_cast<std::size_t>(row) * static_cast<std::size_t>(m_rowWords);
        visitRow(seen.left() / CellPixels, seen.right() / CellPixels, [&](std::size_t index, Word wanted) {
            const Word open = ~words[index] & wanted;
            if (open == 0) {
                return;
            }
            const int base = static_cast<int>(index) * WordBits;
            const int first = base + std::countr_zero(open);
            const int last = base + WordBits - 1 - std::countl_zero(open);
            cells |= QRect(QPoint(first, row), QPoint(last, row));
        });
    }
    if (cells.isEmpty()) {
        return QRect();
    }
    return QRect(cells.topLeft() * CellPixels, cells.size() * CellPixels) & seen;
}
