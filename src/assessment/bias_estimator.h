#pragma once

#include "assessment/even_sample.h"
#include "assessment/sensor_report.h"

#include <array>

// Estimates what a radar adds to all that it measures, from plots whose true places are known.
//
// With the reference's slant range r and azimuth a at the plot's time stamp, their rates r' and a', and unknown range
// bias b, range gain g, azimuth bias c and time offset t, the differences measured minus reference are, to first order,
//     dr = b + g r - r' t
//     da = c - a' t
// for all plots at once: a linear least squares problem in four unknowns, weighted by the variances of the two kinds of
// rows (textbook least squares; the same model of errors is used by the multi-radar registration literature). Outliers
// are kept out by Huber's weights first (P. J. Huber, Robust Statistics, 1981), with the median absolute deviation as
// scale, and then by leaving out what is beyond four deviations, until the same plots remain. Confidence follows from
// the sandwich of the normal matrix by aircraft (Liang and Zeger, Biometrika 73, 1986): an aircraft whose reference is
// wrong is wrong in all its plots, so that they are no independent witnesses.
class BiasEstimator {
public:
    struct Pair {
        float range; // metres, the reference's at the plot's time
        float rangeRate; // metres per second
        float azimuth; // degrees
        float azimuthRate; // degrees per second
        float rangeError; // metres, measured minus reference
        float azimuthError; // degrees
        quint32 aircraft; // tells one from another
    };

    // Pairs that are too far apart to be of the same target are left out.
    void add(const Pair &pair);
    qint64 matched() const { return m_pairs.count(); }

    BiasReport report(ReferenceKind reference) const;

private:
    EvenSample<Pair> m_pairs{100000}; // 2.8 MB
};
