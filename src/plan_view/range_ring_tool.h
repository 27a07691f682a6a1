#pragma once

#include "plan_view/geo_pointer_tool.h"

#include <functional>

// Places the centre of the range rings: the left button's next release says where. Selects nothing meanwhile.
class RangeRingTool final : public GeoPointerTool {
public:
    // Called with the plane point (metres) of each release.
    explicit RangeRingTool(std::function<void(const QPointF &planePoint)> placed);

    bool pressed(const QPointF &pixel, const QTransform &screenTransform) override;
    bool moved(const QPointF &pixel, const QTransform &screenTransform) override;
    bool released(const QPointF &pixel, const QTransform &screenTransform) override;
    bool doubleClicked(const QPointF &pixel, const QTransform &screenTransform) override;
    bool keyPressed(const QKeyEvent &event) override;
    Qt::CursorShape cursorShape() const override;

private:
    std::function<void(const QPointF &)> m_placed;
};
