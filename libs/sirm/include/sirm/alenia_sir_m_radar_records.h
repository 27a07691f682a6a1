#pragma once

#include <array>
#include <cstddef>

// The records of a data message. Each is a small value that keeps its octets as they are on the wire; an accessor reads
// its field there, a setter writes it there, rounded to the field's resolution and held at the ends of its range. A new
// record is all zero: nothing valid in it.

// What the radar detected in one turn of the antenna.
class AleniaSirMRadarPlotRecord {
public:
    static constexpr std::size_t Size = 12; // octets

    // 1 primary, 2 secondary, 3 both; 0 none of them.
    unsigned plotType() const;
    void setPlotType(unsigned type);

    // Slant range in kilometres, 0 to 511.99 in steps of 1/128; azimuth in degrees clockwise from north, 0 <= a < 360.
    double range() const;
    double azimuth() const;
    void setPolar(double rangeKm, double azimuthDegrees);

    // Mode 3/A code as its binary value, 0 to 4095. Setting it makes it valid.
    unsigned modeACode() const;
    bool modeACodeValid() const;
    void setModeACode(unsigned code);

    // Mode C height in feet (imperial) and metres (metric), steps of 6.25 ft. Setting it makes it valid.
    double modeCHeightImperial() const;
    double modeCHeightMetric() const;
    bool modeCHeightValid() const;
    void setModeCHeight(double feet);

    using Octets = std::array<unsigned char, Size>;
    const Octets &octets() const { return m_octets; }
    static AleniaSirMRadarPlotRecord fromOctets(const unsigned char *octets); // reads Size octets

private:
    Octets m_octets{};
};

// One track of the radar's own tracking, once a turn.
class AleniaSirMRadarTrackRecord {
public:
    static constexpr std::size_t Size = 24; // octets

    // 0 to 65535; unique among the radar's living tracks.
    unsigned trackNumber() const;
    void setTrackNumber(unsigned number);

    // 1 primary, 2 secondary, 3 both, 0 the track is over; 4 to 7 have no meaning yet.
    unsigned trackType() const;
    void setTrackType(unsigned type);

    // The radar did not see the target in this turn and predicts it.
    bool coasting() const;
    void setCoasting(bool coasting);

    // The last report of this track.
    bool trackEnd() const;
    void setTrackEnd(bool end);

    // 0 level, 1 climbing, 2 descending, 3 unknown.
    unsigned verticalTrend() const;
    void setVerticalTrend(unsigned trend);

    // Kilometres east (x) and north (y) of the radar, in steps of 1/1024.
    double x() const;
    double y() const;
    void setPosition(double eastKm, double northKm);

    // As in the plot record.
    unsigned modeACode() const;
    bool modeACodeValid() const;
    void setModeACode(unsigned code);
    double modeCHeightImperial() const;
    double modeCHeightMetric() const;
    bool modeCHeightValid() const;
    void setModeCHeight(double feet);

    // Metres per second, up is positive, steps of 1/64. Setting it makes it valid.
    double rateOfClimbDescent() const;
    bool rateOfClimbDescentValid() const;
    void setRateOfClimbDescent(double metresPerSecond);

    // Metres per second towards east (vx) and north (vy), steps of 1/8. A velocity can be present and not be valid: the
    // radar has not settled on it.
    double vx() const;
    double vy() const;
    bool velocityPresent() const;
    bool velocityValid() const;
    void setVelocity(double east, double north, bool valid = true);

    using Octets = std::array<unsigned char, Size>;
    const Octets &octets() const { return m_octets; }
    static AleniaSirMRadarTrackRecord fromOctets(const unsigned char *octets); // reads Size octets

private:
    Octets m_octets{};
};
