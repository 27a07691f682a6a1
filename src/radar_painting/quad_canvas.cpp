#include "radar_painting/quad_canvas.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double Farthest = 1e7; // pixels

} // namespace

QuadCanvas::QuadCanvas(QImage &picture)
    : m_area(picture.rect()), m_pixels(reinterpret_cast<QRgb *>(picture.bits())),
      m_stride(picture.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb)))
{
}

void QuadCanvas::setHatching(const QPointF &origin, int spacing, int width)
{
    m_hatchSpacing = std::max(spacing, 1);
    m_hatchWidth = width;
    const double start =
        std::fmod(std::floor(origin.x()) + std::floor(origin.y()), static_cast<double>(m_hatchSpacing));
    m_hatchStart = std::isfinite(start) ? static_cast<int>(start < 0.0 ? start + m_hatchSpacing : start) : 0;
}

void QuadCanvas::fill(const Quad &quad, QRgb premultiplied, Pattern pattern)
{
    double left = Farthest;
    double right = -Farthest;
    double top = Farthest;
    double bottom = -Farthest;
    for (const QPointF &corner : quad) {
        if (!(std::abs(corner.x()) < Farthest && std::abs(corner.y()) < Farthest)) {
            return;
        }
        left = std::min(left, corner.x());
        right = std::max(right, corner.x());
        top = std::min(top, corner.y());
        bottom = std::max(bottom, corner.y());
    }
    if (right < m_area.left() || left >= m_area.right() + 1 || bottom < m_area.top() || top >= m_area.bottom() + 1) {
        return;
    }
    m_top = std::max(static_cast<int>(std::floor(top)), m_area.top());
    const int last = std::min(static_cast<int>(std::floor(bottom)), m_area.bottom());
    m_rows.assign(static_cast<std::size_t>(last - m_top + 1),
        {std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest()});
    for (std::size_t i = 0; i < quad.size(); ++i) {
        addEdge(quad[i], quad[(i + 1) % quad.size()]);
    }
    for (int row = m_top; row <= last; ++row) {
        fillRow(row, premultiplied, pattern);
    }
}

void QuadCanvas::addEdge(const QPointF &from, const QPointF &to)
{
    const QPointF &upper = from.y() < to.y() ? from : to;
    const QPointF &lower = from.y() < to.y() ? to : from;
    if (lower.y() < m_top || upper.y() >= m_top + static_cast<double>(m_rows.size())) {
        return;
    }
    // Numbers that are not negative any more: the integer is the floor.
    const int first = static_cast<int>(std::max(upper.y(), static_cast<double>(m_top)));
    const int last = std::min(static_cast<int>(lower.y()), m_top + static_cast<int>(m_rows.size()) - 1);
    const double height = lower.y() - upper.y();
    const double slope = height > 0.0 ? (lower.x() - upper.x()) / height : 0.0;
    const auto xAt = [&](int row) { return upper.x() + (row - upper.y()) * slope; };
    double enters = first > upper.y() ? xAt(first) : upper.x();
    for (int row = first; row <= last; ++row) {
        const double leaves = row + 1 < lower.y() ? xAt(row + 1) : lower.x();
        Extent &extent = m_rows[static_cast<std::size_t>(row - m_top)];
        extent.left = std::min(extent.left, std::min(enters, leaves));
        extent.right = std::max(extent.right, std::max(enters, leaves));
        enters = leaves;
    }
}

void QuadCanvas::fillRow(int row, QRgb premultiplied, Pattern pattern)
{
    const Extent &extent = m_rows[static_cast<std::size_t>(row - m_top)];
    if (extent.right < m_area.left() || extent.left >= m_area.right() + 1) {
        return;
    }
    const int first = static_cast<int>(std::max(extent.left, static_cast<double>(m_area.left())));
    const int last = static_cast<int>(std::min(extent.right, static_cast<double>(m_area.right())));
    QRgb *line = m_pixels + row * m_stride;
    if (pattern == Pattern::Solid) {
        std::fill(line + first, line + last + 1, premultiplied);
    } else {
        hatch(line, row, first, last, premultiplied);
    }
}

void QuadCanvas::hatch(QRgb *line, int row, int first, int last, QRgb premultiplied) const
{
    int phase = (first + row - m_hatchStart + m_hatchSpacing) % m_hatchSpacing;
    for (int column = first; column <= last; ++column) {
        if (phase < m_hatchWidth) {
            line[column] = premultiplied;
        }
        phase = phase + 1 == m_hatchSpacing ? 0 : phase + 1;
    }
}
