#include "view/text_room.h"

#include <algorithm>

void TextRoom::begin(const QRectF &view)
{
    m_view = view;
    m_taken.clear();
}

bool TextRoom::isFree(const QRectF &rect) const
{
    return m_view.contains(rect) && std::none_of(m_taken.begin(), m_taken.end(), [&rect](const QRectF &taken) {
        return taken.intersects(rect);
    });
}

bool TextRoom::takeIfFree(const QRectF &rect)
{
    const bool free = isFree(rect);
    if (free) {
        take(rect);
    }
    return free;
}
