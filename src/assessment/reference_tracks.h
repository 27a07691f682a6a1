#pragma once

#include "assessment/radar_plot.h"

#include <QtGlobal>

#include <array>
#include <functional>
#include <optional>
#include <unordered_map>
#include <vector>

// Where a target was, as another source than the radar says.
struct ReferencePoint {
    double time = 0.0; // seconds on the axis of the assessment
    double latitude = 0.0; // degrees
    double longitude = 0.0;
    std::optional<double> height; // metres: geometric where it is sent, else of the flight level

    // Between two points at a time; the height where both have one.
    static ReferencePoint between(const ReferencePoint &before, const ReferencePoint &after, double time);
};

// Keeps the last places of the targets of one kind of reference and holds plots until the place at their time is
// known. Plots are matched by 24-bit address; those without, by a Mode 3/A code that one reference target alone has.
class ReferenceTracks {
public:
    struct Report {
        quint64 key = 0; // of the target within the kind
        std::optional<unsigned> address;
        std::optional<unsigned> squawk;
        ReferencePoint point;
    };
    struct Waiting {
        int radar = 0;
        RadarPlot plot;
    };
    // A plot with the reference points before and after it.
    using Match =
        std::function<void(const Waiting &, quint64 target, const ReferencePoint &before, const ReferencePoint &after)>;

    // longestGap: seconds between two reports within which a target flies straight enough.
    ReferenceTracks(double longestGap, Match onMatch) : m_longestGap(longestGap), m_onMatch(std::move(onMatch)) { }

    void add(const Report &report);
    void await(const Waiting &waiting);
    // Forgets targets that are not heard any more. Now and then.
    void prune(double now);

private:
    static constexpr std::size_t Points = 24;

    struct Target {
        std::array<ReferencePoint, Points> points; // a ring
        std::size_t count = 0; // of all that were ever added
        std::optional<unsigned> address;
        std::vector<Waiting> waiting;

        const ReferencePoint &last() const { return points[(count - 1) % Points]; }
    };
    struct SquawkHolder {
        quint64 key = 0;
        double time = -1e9;
        double sharedUntil = -1e9; // another target was heard with the same code
    };

    Target *find(const RadarPlot &plot);
    void holdSquawk(unsigned squawk, quint64 key, double time);
    void resolve(Target &target, quint64 key);
    bool tryMatch(const Target &target, quint64 key, const Waiting &waiting) const;

    double m_longestGap;
    Match m_onMatch;
    std::unordered_map<quint64, Target> m_targets;
    std::unordered_map<unsigned, quint64> m_byAddress;
    std::array<SquawkHolder, 4096> m_squawks;
};
