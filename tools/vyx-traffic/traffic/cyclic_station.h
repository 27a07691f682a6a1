#pragma once

#include "traffic/datagram_packer.h"
#include "traffic/day_clock.h"
#include "traffic/scenario.h"
#include "traffic/track_number_pool.h"
#include "traffic/traffic_station.h"

#include "asterix/encoder.h"

#include <map>
#include <string>

// A source that reports each target once in an interval, in blocks of one category. The interval is divided into slots
// among which the targets are shared out by their ids, so that it sends evenly.
class CyclicStation : public TrafficStation {
public:
    double nextTime() const final;
    const std::vector<QByteArray> &next(const AirTraffic &traffic) final;
    double lookInterval() const final { return m_interval; }
    std::uint16_t trackNumber(std::uint64_t target) const final;

protected:
    struct Sight {
        const AirTarget &target;
        double time = 0; // seconds from the scenario's start
        std::uint16_t trackNumber = 0;
        bool tentative = false; // one of the first two reports of the track
        bool coasting = false; // not detected
        bool last = false; // of the track: the flight has ended or leaves the coverage

        const Aircraft::State &state() const { return target.aircraft.state(); }
        bool hasModeS() const { return target.flight->transponder == ScenarioFlight::Transponder::ModeS; }
        bool hasTransponder() const { return target.flight->transponder != ScenarioFlight::Transponder::None; }
    };
    // Of the category: what its blocks need.
    struct Format {
        int category = 0;
        std::string edition; // empty: the standard one
        std::uint16_t lastTrackNumber = 4095;
        std::size_t largestRecord = 100; // octets
    };

    CyclicStation(const ScenarioSource &source, const QDateTime &startTime, double interval, const Format &format);

    virtual bool sees(const AirTarget &target) const = 0;
    // Appends a record to encoder()'s block, or none.
    virtual void report(const Sight &sight) = 0;
    // Before the first slot of each interval.
    virtual void beginCycle(double) { }

    korvane::asterix::BlockEncoder &encoder() { return m_encoder; }
    const DayClock &clock() const { return m_clock; }
    // Begins a record with the data source.
    void beginRecord();
    // A field that is a whole item in one edition and part of it in another.
    void setEither(const char *path, const char *otherPath, double value);
    // In degrees; 360 becomes 0.
    void setAngle(const char *path, double degrees);
    double milesTo(const AirTarget &target) const;
    double interval() const { return m_interval; }

private:
    struct Track {
        std::uint16_t number = 0;
        int reports = 0;
    };

    void look(const AirTarget &target, double time);

    ScenarioSource m_source;
    DayClock m_clock;
    double m_interval = 1;
    int m_slots = 1;
    std::int64_t m_slot = 0; // since the start
    korvane::asterix::BlockEncoder m_encoder;
    DatagramPacker m_packer;
    TrackNumberPool m_numbers;
    std::map<std::uint64_t, Track> m_tracks; // by target
};
