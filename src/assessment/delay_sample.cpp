#include "assessment/delay_sample.h"

#include <algorithm>

DelayReport DelaySample::report() const
{
    std::vector<double> delays = m_sample.values();
    if (delays.empty()) {
        return {};
    }
    std::sort(delays.begin(), delays.end());
    const auto at = [&delays](double part) {
        return delays[static_cast<std::size_t>(part * static_cast<double>(delays.size() - 1))];
    };
    return {m_sample.count(), delays.front(), at(0.5), at(0.95)};
}
