#pragma once

#include <QtGlobal>

#include <array>
#include <vector>

// How often a radar had to see a target, and did, by range and azimuth.
//
// Probability of detection is the ratio of blips to scans: of the turns between two detections of a target, those in
// which it was detected (M. I. Skolnik, Introduction to Radar Systems). The turn of a track's first detection is not
// counted, since without a detection there would be no track; nor are those after its last.
class DetectionGrid {
public:
    static constexpr double RingWidth = 18520.0; // metres, ten nautical miles
    static constexpr int Rings = 26;
    static constexpr int Sectors = 36; // of ten degrees

    struct Cell {
        qint64 looks = 0; // turns in which the target was there
        qint64 hits = 0; // in which it was detected in any way
        qint64 primaryHits = 0;
        qint64 secondaryLooks = 0; // looks at targets with a transponder
        qint64 secondaryHits = 0;
        qint64 falsePlots = 0;

        Cell &operator+=(const Cell &other);
    };

    DetectionGrid() : m_cells(static_cast<std::size_t>(Rings) * Sectors) { }

    // Metres and degrees. What lies beyond the last ring counts as in it.
    Cell &at(double range, double azimuth);
    const Cell &cell(int ring, int sector) const;

    Cell ring(int ring) const;
    Cell sector(int sector) const;
    Cell total() const;
    // Rings from the middle to the outermost in which anything was looked at.
    int usedRings() const;

private:
    std::vector<Cell> m_cells; // ring by ring
};

// Wilson's interval of a proportion at 95 % (Journal of the American Statistical Association 22, 1927), which holds
// near one and for small numbers too. Of nothing: 0 to 1.
struct ProportionInterval {
    double low = 0.0;
    double high = 1.0;

    static ProportionInterval of(qint64 hits, qint64 looks);
};
