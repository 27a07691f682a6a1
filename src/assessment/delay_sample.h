#pragma once

#include "assessment/even_sample.h"
#include "assessment/sensor_report.h"

// Delays from the time that a record is stamped with to its arrival.
class DelaySample {
public:
    void note(double seconds) { m_sample.add(seconds); }

    DelayReport report() const;

private:
    EvenSample<double> m_sample{8192};
};
