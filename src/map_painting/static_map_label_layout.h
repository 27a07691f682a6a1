#pragma once

#include "map_painting/static_map_frame.h"
#include "map_painting/static_map_region.h"

#include <QHash>
#include <QSizeF>

#include <map>
#include <utility>
#include <vector>

class MapStyleSheet;

// Which labels are shown, and where, so that none covers another one or a symbol. A label beside a symbol takes the
// first free side of right, left, above and below; any other stands over its place. Labels of higher priority come
// first, then those of earlier maps, then as they come in the file.
class StaticMapLabelLayout {
public:
    struct Placed {
        const StaticMapLabel *label = nullptr;
        QPointF offset; // of the top left corner from the label's pixel; whole pixels, y down
        QSizeF size; // whole pixels
    };

    // Maps in drawing order; their geometries must live until forget().
    void layOut(
        const StaticMapRegion &region, const std::vector<ShownMap> &maps, const MapStyleSheet &styles, int symbolSize);

    // Of one group in one copy of the world.
    const std::vector<Placed> &placed(const StaticMapGroup &group, int copy) const;

    // All that are shown, in pixels of the region's sheet.
    const std::vector<QRectF> &boxes() const { return m_boxes; }

    // Maps or styles change.
    void forget();

private:
    class Taken;

    void takeSymbols(Taken &taken, const ShownMap &map) const;
    void placeLabels(Taken &taken, const ShownMap &map, const MapStyleSheet &styles);
    void placeGroup(Taken &taken, const StaticMapGroup &group, double period, const MapStyleSheet &styles);
    // Calls the function with every copy of the place in the region, and its pixel.
    template <typename Function>
    void forCopies(const QPointF &place, double period, Function &&function) const;

    StaticMapRegion m_region;
    int m_symbolSize = 0;
    std::map<std::pair<const StaticMapGroup *, int>, std::vector<Placed>> m_placed;
    std::vector<QRectF> m_boxes;
    QHash<const StaticMapLabel *, QSizeF> m_sizes;
};
