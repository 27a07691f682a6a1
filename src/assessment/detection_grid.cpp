#include "assessment/detection_grid.h"

#include <algorithm>
#include <cmath>

DetectionGrid::Cell &DetectionGrid::Cell::operator+=(const Cell &other)
{
    looks += other.looks;
    hits += other.hits;
    primaryHits += other.primaryHits;
    secondaryLooks += other.secondaryLooks;
    secondaryHits += other.secondaryHits;
    falsePlots += other.falsePlots;
    return *this;
}

DetectionGrid::Cell &DetectionGrid::at(double range, double azimuth)
{
    const int ring = std::clamp(static_cast<int>(range / RingWidth), 0, Rings - 1);
    const int sector = std::clamp(static_cast<int>(azimuth * Sectors / 360.0), 0, Sectors - 1);
    return m_cells[static_cast<std::size_t>(ring * Sectors + sector)];
}

const DetectionGrid::Cell &DetectionGrid::cell(int ring, int sector) const
{
    return m_cells[static_cast<std::size_t>(ring * Sectors + sector)];
}

DetectionGrid::Cell DetectionGrid::ring(int ring) const
{
    Cell sum;
    for (int sector = 0; sector < Sectors; ++sector) {
        sum += cell(ring, sector);
    }
    return sum;
}

DetectionGrid::Cell DetectionGrid::sector(int sector) const
{
    Cell sum;
    for (int ring = 0; ring < Rings; ++ring) {
        sum += cell(ring, sector);
    }
    return sum;
}

DetectionGrid::Cell DetectionGrid::total() const
{
    Cell sum;
    for (const Cell &cell : m_cells) {
        sum += cell;
    }
    return sum;
}

int DetectionGrid::usedRings() const
{
    for (int ring = Rings; ring > 0; --ring) {
        if (const Cell sum = this->ring(ring - 1); sum.looks > 0 || sum.falsePlots > 0) {
            return ring;
        }
    }
    return 0;
}

ProportionInterval ProportionInterval::of(qint64 hits, qint64 looks)
{
    constexpr double Z = 1.959964; // of the normal distribution, 95 % on both sides
    if (looks <= 0) {
        return {};
    }
    const auto n = static_cast<double>(looks);
    const double p = static_cast<double>(hits) / n;
    const double middle = (p + Z * Z / (2 * n)) / (1 + Z * Z / n);
    const double half = Z / (1 + Z * Z / n) * std::sqrt(p * (1 - p) / n + Z * Z / (4 * n * n));
    return {std::max(middle - half, 0.0), std::min(middle + half, 1.0)};
}
