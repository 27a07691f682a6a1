#include "display/track_pens.h"

#include <algorithm>

void TrackPens::prepare(double devicePixelRatio)
{
    m_pens.clear();
    m_devicePixelRatio = devicePixelRatio;
}

const QPen &TrackPens::line(const QColor &color, bool broken)
{
    const Qt::PenStyle style = broken ? Qt::DashLine : Qt::SolidLine;
    const auto made = std::find_if(
        m_pens.begin(), m_pens.end(), [&](const QPen &pen) { return pen.style() == style && pen.color() == color; });
    if (made != m_pens.end()) {
        return *made;
    }
    QPen pen(color, m_devicePixelRatio, style);
    pen.setCosmetic(true);
    return m_pens.emplace_back(pen);
}
