#pragma once

#include "recognition/stream_findings.h"

#include <array>
#include <vector>

// Where many positions lie, from an even sample of them.
class PositionSample {
public:
    // Degrees, WGS-84; what is no place on Earth is not counted.
    void add(double latitude, double longitude);

    PositionArea area() const;

private:
    using Direction = std::array<double, 3>; // from the middle of the Earth: there is no date line to take care of

    std::vector<Direction> m_directions;
    qint64 m_count = 0;
    qint64 m_stride = 1; // every so many are kept
};
