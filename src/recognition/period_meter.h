#pragma once

#include <QtGlobal>

#include <optional>
#include <unordered_map>
#include <vector>

// Finds the time that an antenna takes for one turn from what recurs once a turn: north markers, crossings of the same
// sector, reports of the same target.
class PeriodMeter {
public:
    // An event of a kind, at a time in milliseconds of any clock. Kinds are any numbers, such as 0 for north.
    void note(int kind, qint64 ms);

    // Seconds; nothing while too few events have recurred.
    std::optional<double> period() const;

private:
    std::unordered_map<int, qint64> m_lastMs; // by kind
    std::vector<qint64> m_turnsMs; // between two of a kind
};
