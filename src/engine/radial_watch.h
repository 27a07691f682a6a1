#pragma once

#include "tracking/kept_report.h"

#include <QList>

#include <optional>

// A direction of one radar's video.
struct RadialQuestion {
    quint8 sac = 0; // 0/0: whoever sends no source
    quint8 sic = 0;
    double azimuth = 0.0; // degrees clockwise from north
    double reach = 0.0; // degrees to either side, for radials that are narrower than that or state no width

    bool operator==(const RadialQuestion &other) const = default;
};

// Keeps the records of radar video that cover one direction, for as long as somebody asks for it: all of a turn would
// be megabytes that hardly anybody ever looks at. Costs a comparison a record while nobody does. Engine's thread.
class RadialWatch {
public:
    static constexpr int MaximumRecords = 16;
    static constexpr int PatienceSeconds = 3; // for the next asking

    // What has come since this direction was asked for first; newest first.
    QList<KeptReport> ask(const RadialQuestion &question);
    void take(const TakenReport &report, qint64 timeMs)
    {
        if (m_question) {
            look(report, timeMs);
        }
    }
    // To be called once a second.
    void endSecond();
    void clear() { m_question.reset(); }

private:
    void look(const TakenReport &report, qint64 timeMs);

    std::optional<RadialQuestion> m_question;
    QList<KeptReport> m_records;
    int m_secondsUnasked = 0;
};
