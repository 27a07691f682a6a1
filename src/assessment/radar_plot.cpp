#include "assessment/radar_plot.h"

#include "geo/wgs84.h"

namespace {

constexpr double MetresPerLevelQuarter = 25 * 0.3048;

template <typename Record>
RadarPlot measured(const Record &record)
{
    RadarPlot plot;
    plot.range = record.i040.rho * wgs84::MetresPerNauticalMile;
    plot.azimuth = record.i040.theta;
    if (record.i161.present) {
        plot.trackNumber = record.i161.trackNumber;
    }
    if (record.i070.present && !record.i070.g && !record.i070.l) {
        plot.squawk = record.i070.code;
    }
    if (record.i090.present && !record.i090.g) {
        plot.altitude = record.i090.level * MetresPerLevelQuarter;
    }
    return plot;
}

std::optional<RadarPlot> plotOf(const _ast_datarecord_048_t &record)
{
    const unsigned typ = record.i020.present ? record.i020.typ : 0;
    if (!record.valid || !record.i040.present || typ == 0 || record.i020.tst || record.i020.rab) {
        return std::nullopt;
    }
    RadarPlot plot = measured(record);
    plot.primary = typ == 1 || typ == 3 || typ >= 6;
    plot.secondary = typ >= 2;
    if (record.i220.present) {
        plot.address = record.i220.address;
    }
    return plot;
}

std::optional<RadarPlot> plotOf(const _ast_datarecord_001_t &record)
{
    const unsigned detection = record.i020.present ? record.i020.ssrpsr : 0;
    if (!record.valid || !record.i040.present || detection == 0 || record.i020.tst || record.i020.rab) {
        return std::nullopt;
    }
    RadarPlot plot = measured(record);
    plot.primary = detection & 1;
    plot.secondary = detection & 2;
    return plot;
}

template <typename Record>
std::optional<RadarPlot> expand(
    const _ast_datarecord_t &record, void (*disassemble)(Record *, const _ast_datarecord_t &))
{
    Record typed;
    disassemble(&typed, record);
    return plotOf(typed);
}

} // namespace

std::optional<RadarPlot> RadarPlot::of(int category, const _ast_datarecord_t &record)
{
    switch (category) {
    case 1:
        return expand(record, ast_datarecord_001_disassemble);
    case 48:
        return expand(record, ast_datarecord_048_disassemble);
    default:
        return std::nullopt;
    }
}
