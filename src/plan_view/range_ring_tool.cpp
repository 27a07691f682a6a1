#include "plan_view/range_ring_tool.h"

#include <utility>

RangeRingTool::RangeRingTool(std::function<void(const QPointF &)> placed) : m_placed(std::move(placed)) { }

bool RangeRingTool::pressed(const QPointF &, const QTransform &)
{
    return true;
}

bool RangeRingTool::moved(const QPointF &, const QTransform &)
{
    return false;
}

bool RangeRingTool::released(const QPointF &pixel, const QTransform &screenTransform)
{
    m_placed(screenTransform.inverted().map(pixel));
    return true;
}

bool RangeRingTool::doubleClicked(const QPointF &, const QTransform &)
{
    return true;
}

bool RangeRingTool::keyPressed(const QKeyEvent &)
{
    return false;
}

Qt::CursorShape RangeRingTool::cursorShape() const
{
    return Qt::CrossCursor;
}
