#pragma once

#include "sirm/alenia_sir_m_radar_records.h"

#include <vector>

// What all messages of the radar have in common. Messages are plain values behind a base class: copy them, hold them in
// any smart pointer. No member function locks or fails. Like records, they keep the octets that they begin with as they
// are on the wire: accessors read there, setters write there.
class AleniaSirMRadarMessage {
public:
    // Also the octet that names the type on the wire.
    enum class Type : unsigned char { NorthMarker = 1, Data = 2 };

    virtual ~AleniaSirMRadarMessage() = default;
    virtual Type type() const = 0;

    // Which radar of a site, 0 to 255.
    unsigned radarId() const;
    void setRadarId(unsigned id);

    // Milliseconds since midnight UTC, by the radar's clock; not valid from 86,400,000 on, as in a new message.
    unsigned timeOfDay() const;
    bool timeOfDayValid() const { return timeOfDay() < 86'400'000; }
    void setTimeOfDay(unsigned milliseconds);

    // Of the whole message, octets.
    unsigned length() const;

    // What comes before the records; of messages that have none, all of it.
    static constexpr std::size_t FixedSize = 12; // octets
    using FixedOctets = std::array<unsigned char, FixedSize>;
    const FixedOctets &fixedOctets() const { return m_octets; }
    // As received, in a message of this type. Length and counts are what they say until a record is added.
    void setFixedOctets(const unsigned char *octets); // reads FixedSize octets

protected:
    explicit AleniaSirMRadarMessage(Type type);
    AleniaSirMRadarMessage(const AleniaSirMRadarMessage &) = default;
    AleniaSirMRadarMessage &operator=(const AleniaSirMRadarMessage &) = default;

    FixedOctets m_octets{};
};

// Sent whenever the antenna passes north.
class AleniaSirMRadarNorthMarkerMessage final : public AleniaSirMRadarMessage {
public:
    AleniaSirMRadarNorthMarkerMessage() : AleniaSirMRadarMessage(Type::NorthMarker) { }

    Type type() const final { return Type::NorthMarker; }

    // The radar's azimuths do not start at true north.
    bool northNotSynchronized() const;
    void setNorthNotSynchronized(bool notSynchronized);

    // The radar's time of day follows no reference.
    bool clockNotSynchronized() const;
    void setClockNotSynchronized(bool notSynchronized);

    // One turn of the antenna in milliseconds, 0 to 65535; 0 when the radar does not say.
    unsigned rotationPeriod() const;
    void setRotationPeriod(unsigned milliseconds);
};

// The plots and tracks of one sector.
class AleniaSirMRadarDataMessage final : public AleniaSirMRadarMessage {
public:
    // Of each kind of record; the counts on the wire are single octets.
    static constexpr std::size_t MaximumRecords = 255;

    AleniaSirMRadarDataMessage() : AleniaSirMRadarMessage(Type::Data) { }

    Type type() const final { return Type::Data; }

    // One of the sixteen sectors of 22.5 degrees, 0 to 15, the first one beginning at north. Setting it makes it valid.
    unsigned sector() const;
    bool sectorValid() const;
    void setSector(unsigned sector);

    // How many records of each kind it says that it has.
    unsigned plotCount() const;
    unsigned trackCount() const;
    const std::vector<AleniaSirMRadarPlotRecord> &plotRecords() const { return m_plotRecords; }
    const std::vector<AleniaSirMRadarTrackRecord> &trackRecords() const { return m_trackRecords; }

    // False, with nothing added, when the message is full.
    bool addPlotRecord(const AleniaSirMRadarPlotRecord &record);
    bool addTrackRecord(const AleniaSirMRadarTrackRecord &record);
    // Room for so many records in all; spares later growth.
    void reserve(std::size_t plots, std::size_t tracks);

private:
    void countRecords();

    std::vector<AleniaSirMRadarPlotRecord> m_plotRecords;
    std::vector<AleniaSirMRadarTrackRecord> m_trackRecords;
};
