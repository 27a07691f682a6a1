#pragma once

#include "sirm/alenia_sir_m_radar_records.h"

#include <vector>

// What all messages of the radar have in common. Messages are plain values behind a base class: copy them, hold them in
// any smart pointer. No member function locks or fails.
class AleniaSirMRadarMessage {
public:
    // Also the octet that names the type on the wire.
    enum class Type : unsigned char { NorthMarker = 1, Data = 2 };

    virtual ~AleniaSirMRadarMessage() = default;
    virtual Type type() const = 0;

    // Which radar of a site, 0 to 255.
    unsigned radarId() const { return m_radarId; }
    void setRadarId(unsigned id) { m_radarId = id & 0xFF; }

    // Milliseconds since midnight UTC, by the radar's clock; not valid from 86,400,000 on.
    unsigned timeOfDay() const { return m_timeOfDay; }
    bool timeOfDayValid() const { return m_timeOfDay < 86'400'000; }
    void setTimeOfDay(unsigned milliseconds) { m_timeOfDay = milliseconds; }

protected:
    AleniaSirMRadarMessage() = default;
    AleniaSirMRadarMessage(const AleniaSirMRadarMessage &) = default;
    AleniaSirMRadarMessage &operator=(const AleniaSirMRadarMessage &) = default;

private:
    unsigned m_radarId = 0;
    unsigned m_timeOfDay = 86'400'000;
};

// Sent whenever the antenna passes north.
class AleniaSirMRadarNorthMarkerMessage final : public AleniaSirMRadarMessage {
public:
    Type type() const final { return Type::NorthMarker; }

    // The radar's azimuths do not start at true north.
    bool northNotSynchronized() const { return m_northNotSynchronized; }
    void setNorthNotSynchronized(bool notSynchronized) { m_northNotSynchronized = notSynchronized; }

    // The radar's time of day follows no reference.
    bool clockNotSynchronized() const { return m_clockNotSynchronized; }
    void setClockNotSynchronized(bool notSynchronized) { m_clockNotSynchronized = notSynchronized; }

    // One turn of the antenna in milliseconds, 0 to 65535; 0 when the radar does not say.
    unsigned rotationPeriod() const { return m_rotationPeriod; }
    void setRotationPeriod(unsigned milliseconds);

private:
    bool m_northNotSynchronized = false;
    bool m_clockNotSynchronized = false;
    unsigned m_rotationPeriod = 0;
};

// The plots and tracks of one sector.
class AleniaSirMRadarDataMessage final : public AleniaSirMRadarMessage {
public:
    // Of each kind of record; the counts on the wire are single octets.
    static constexpr std::size_t MaximumRecords = 255;

    Type type() const final { return Type::Data; }

    // One of the sixteen sectors of 22.5 degrees, 0 to 15, the first one beginning at north. Setting it makes it valid.
    unsigned sector() const { return m_sector; }
    bool sectorValid() const { return m_sectorValid; }
    void setSector(unsigned sector);

    const std::vector<AleniaSirMRadarPlotRecord> &plotRecords() const { return m_plotRecords; }
    const std::vector<AleniaSirMRadarTrackRecord> &trackRecords() const { return m_trackRecords; }

    // False, with nothing added, when the message is full.
    bool addPlotRecord(const AleniaSirMRadarPlotRecord &record);
    bool addTrackRecord(const AleniaSirMRadarTrackRecord &record);
    // Room for so many records in all; spares later growth.
    void reserve(std::size_t plots, std::size_t tracks);

private:
    unsigned m_sector = 0;
    bool m_sectorValid = false;
    std::vector<AleniaSirMRadarPlotRecord> m_plotRecords;
    std::vector<AleniaSirMRadarTrackRecord> m_trackRecords;
};
