#pragma once

#include "asterix/encoder.h"
#include "traffic/radar_model.h"
#include "traffic/scenario.h"

#include <memory>

// Writes target reports as records of one category.
class TargetWriter {
public:
    // For the radar's category.
    static std::unique_ptr<TargetWriter> create(const ScenarioRadar &radar);
    virtual ~TargetWriter() = default;

    // Appends a record to the block of encoder(). secondsOfDay: when the radar looked, 0 to 86400 (excluded), UTC.
    virtual void write(const TargetReport &report, double secondsOfDay) = 0;

    korvane::asterix::BlockEncoder &encoder() { return m_encoder; }

protected:
    using Handle = korvane::asterix::BlockEncoder::Handle;

    TargetWriter(int category, const char *variation, const ScenarioRadar &radar);

    // Begins a record with what all categories have alike.
    void beginRecord();
    void writePosition(const TargetReport &report, double cartesianLimit);
    void writeVelocity(const TargetReport &report);
    void writeCodes(const TargetReport &report);

    korvane::asterix::BlockEncoder m_encoder;

private:
    ScenarioRadar m_radar;
    Handle m_sac;
    Handle m_sic;
    Handle m_rho;
    Handle m_theta;
    Handle m_x;
    Handle m_y;
    Handle m_groundSpeed;
    Handle m_heading;
    Handle m_squawk;
    Handle m_level;
};

// The sixteen bits of an angle in degrees, 360 degrees wrapped to 0.
std::uint64_t angleBits(double degrees);
// A time of day in 1/128 s, midnight wrapped to 0.
std::uint64_t timeBits(double secondsOfDay);
