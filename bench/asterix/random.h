#pragma once

#include <random>

// Values of records, the same ones in every run.
class Random {
public:
    explicit Random(unsigned seed) : m_engine(seed) { }

    double real(double low, double high) { return std::uniform_real_distribution<double>(low, high)(m_engine); }
    unsigned whole(unsigned limit) { return std::uniform_int_distribution<unsigned>(0, limit - 1)(m_engine); }

private:
    std::mt19937 m_engine;
};
