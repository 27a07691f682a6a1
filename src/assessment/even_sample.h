#pragma once

#include <QtGlobal>

#include <random>
#include <vector>

// Some of many values, each of them kept with the same probability (J. S. Vitter's reservoir, ACM TOMS 11, 1985); the
// same ones for the same values in the same order.
template <typename Value>
class EvenSample {
public:
    explicit EvenSample(std::size_t most) : m_most(most) { }

    void add(const Value &value)
    {
        ++m_count;
        if (m_values.size() < m_most) {
            m_values.push_back(value);
        } else if (const quint64 place = m_random() % static_cast<quint64>(m_count); place < m_most) {
            m_values[place] = value;
        }
    }

    qint64 count() const { return m_count; } // of all that were added
    const std::vector<Value> &values() const { return m_values; }

private:
    std::size_t m_most;
    std::vector<Value> m_values;
    qint64 m_count = 0;
    std::mt19937_64 m_random; // its default seed
};
