#include "engine/replay_speed.h"

#include <algorithm>
#include <array>

namespace {

struct SpeedRow {
    ReplaySpeed::Speed speed;
    const char *name;
    qint64 multiplier; // of the recorded delay; 0: do not wait
    qint64 divisor;
};

constexpr std::array Rows = {
    SpeedRow{ReplaySpeed::Half, "0.5x", 2, 1},
    SpeedRow{ReplaySpeed::Normal, "1x", 1, 1},
    SpeedRow{ReplaySpeed::Double, "2x", 1, 2},
    SpeedRow{ReplaySpeed::Quadruple, "4x", 1, 4},
    SpeedRow{ReplaySpeed::Octuple, "8x", 1, 8},
    SpeedRow{ReplaySpeed::Max, "Max", 0, 1},
};

const SpeedRow *rowOf(ReplaySpeed::Speed speed)
{
    const auto row = std::find_if(Rows.begin(), Rows.end(), [speed](const SpeedRow &r) { return r.speed == speed; });
    return row == Rows.end() ? nullptr : &*row;
}

} // namespace

QString ReplaySpeed::name(Speed speed)
{
    const SpeedRow *row = rowOf(speed);
    return row ? QString::fromLatin1(row->name) : QString();
}

QList<ReplaySpeed::Speed> ReplaySpeed::values()
{
    QList<Speed> speeds;
    for (const SpeedRow &row : Rows) {
        speeds += row.speed;
    }
    return speeds;
}

qint64 ReplaySpeed::delay(qint64 recordedMs, Speed speed)
{
    const SpeedRow *row = rowOf(speed);
    return row ? std::max<qint64>(0, recordedMs * row->multiplier / row->divisor) : std::max<qint64>(0, recordedMs);
}

qint64 ReplaySpeed::recorded(qint64 realMs, Speed speed)
{
    const SpeedRow *row = rowOf(speed);
    return row && row->multiplier > 0 ? realMs * row->divisor / row->multiplier : 0;
}
