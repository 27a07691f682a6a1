#include "recognition/report_facts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr unsigned char NorthMarker = 1;
constexpr unsigned char SectorCrossing = 2;

template <typename Item>
std::optional<int> numberOf(const Item &item)
{
    return item.present ? std::optional<int>(item.trackNumber) : std::nullopt;
}

// System trackers send zero for "none".
template <typename Item>
std::optional<int> systemNumberOf(const Item &item)
{
    return item.present && item.trackNumber != 0 ? std::optional<int>(item.trackNumber) : std::nullopt;
}

template <typename Item>
std::optional<ReportFacts::Wgs84> placeOf(const Item &item)
{
    return item.present ? std::optional(ReportFacts::Wgs84{item.latitude, item.longitude}) : std::nullopt;
}

template <typename Item>
std::optional<ReportFacts::Offset> offsetOf(const Item &item)
{
    return item.present ? std::optional(ReportFacts::Offset{item.x, item.y}) : std::nullopt;
}

ReportFacts factsOf(const _ast_datarecord_001_t &record)
{
    ReportFacts facts;
    facts.isTarget = true;
    facts.trackNumber = numberOf(record.i161);
    facts.polar = record.i040.present;
    facts.cartesian = record.i042.present;
    facts.primary = record.i020.present && (record.i020.ssrpsr & 1);
    facts.secondary = record.i020.present && (record.i020.ssrpsr & 2);
    return facts;
}

ReportFacts factsOf(const _ast_datarecord_048_t &record)
{
    ReportFacts facts;
    facts.isTarget = true;
    facts.trackNumber = numberOf(record.i161);
    facts.address = record.i220.present;
    facts.polar = record.i040.present;
    facts.cartesian = record.i042.present;
    const unsigned typ = record.i020.present ? record.i020.typ : 0;
    facts.primary = typ == 1 || typ == 3 || typ >= 6;
    facts.secondary = typ >= 2;
    facts.modeS = typ >= 4 || record.i220.present;
    return facts;
}

// Service messages of radars.
template <typename Service>
ReportFacts serviceFacts(const Service &record)
{
    ReportFacts facts;
    if (record.i000.present && record.i000.type == NorthMarker) {
        facts.turnMark = 0;
    } else if (record.i000.present && record.i000.type == SectorCrossing && record.i020.present) {
        facts.turnMark = 1 + static_cast<int>(std::lround(record.i020.azimuth));
    }
    if (record.i041.present && record.i041.period > 0.0) {
        facts.rotationPeriod = record.i041.period;
    }
    return facts;
}

ReportFacts factsOf(const _ast_datarecord_002_t &record)
{
    return serviceFacts(record);
}

ReportFacts factsOf(const _ast_datarecord_034_t &record)
{
    ReportFacts facts = serviceFacts(record);
    facts.site = placeOf(record.i120);
    return facts;
}

ReportFacts factsOf(const _ast_datarecord_010_t &record)
{
    constexpr unsigned char TargetReport = 1;
    ReportFacts facts;
    facts.isTarget = !record.i000.present || record.i000.type == TargetReport;
    facts.trackNumber = numberOf(record.i161);
    facts.address = record.i220.present;
    facts.polar = record.i040.present;
    facts.cartesian = record.i042.present;
    facts.wgs84 = placeOf(record.i041);
    facts.offset = offsetOf(record.i042);
    return facts;
}

ReportFacts factsOf(const _ast_datarecord_020_t &record)
{
    ReportFacts facts;
    facts.isTarget = true;
    facts.trackNumber = systemNumberOf(record.i161);
    facts.address = record.i220.present;
    facts.cartesian = record.i042.present;
    facts.wgs84 = placeOf(record.i041);
    facts.offset = offsetOf(record.i042);
    return facts;
}

ReportFacts factsOf(const _ast_datarecord_062_t &record)
{
    ReportFacts facts;
    facts.isTarget = true;
    facts.trackNumber = systemNumberOf(record.i040);
    facts.address = record.i380.addressPresent;
    facts.cartesian = record.i100.present;
    facts.wgs84 = placeOf(record.i105);
    facts.offset = offsetOf(record.i100);
    return facts;
}

ReportFacts adsbFacts(const _ast_datarecord_t &record)
{
    ReportFacts facts;
    facts.isTarget = true;
    facts.address = ast_datarecord_get_icaoaddr(record).present;
    facts.wgs84 = placeOf(ast_datarecord_get_wgs84coord(record));
    return facts;
}

template <typename Typed>
ReportFacts expand(const _ast_datarecord_t &record, void (*disassemble)(Typed *, const _ast_datarecord_t &))
{
    Typed typed;
    disassemble(&typed, record);
    return typed.valid ? factsOf(typed) : ReportFacts();
}

struct CategoryRow {
    int category;
    SensorType sensor;
    bool targets;
};

constexpr std::array CategoryRows = {CategoryRow{1, RadarSensor, true}, CategoryRow{2, RadarSensor, false},
    CategoryRow{10, SmrSensor, true}, CategoryRow{19, MlatSensor, false}, CategoryRow{20, MlatSensor, true},
    CategoryRow{21, AdsbSensor, true}, CategoryRow{23, AdsbSensor, false}, CategoryRow{34, RadarSensor, false},
    CategoryRow{48, RadarSensor, true}, CategoryRow{62, SdpsSensor, true}, CategoryRow{63, SdpsSensor, false},
    CategoryRow{65, SdpsSensor, false}};

const CategoryRow *rowOf(int category)
{
    const auto *const row = std::find_if(CategoryRows.begin(), CategoryRows.end(),
        [category](const CategoryRow &candidate) { return candidate.category == category; });
    return row == CategoryRows.end() ? nullptr : row;
}

} // namespace

ReportFacts ReportFacts::of(int category, const _ast_datarecord_t &record)
{
    switch (category) {
    case 1:
        return expand(record, ast_datarecord_001_disassemble);
    case 2:
        return expand(record, ast_datarecord_002_disassemble);
    case 10:
        return expand(record, ast_datarecord_010_disassemble);
    case 20:
        return expand(record, ast_datarecord_020_disassemble);
    case 21:
        return adsbFacts(record);
    case 34:
        return expand(record, ast_datarecord_034_disassemble);
    case 48:
        return expand(record, ast_datarecord_048_disassemble);
    case 62:
        return expand(record, ast_datarecord_062_disassemble);
    default:
        return {};
    }
}

bool ReportFacts::trackable(SensorType tracker) const
{
    switch (tracker) {
    case RadarSensor:
        return (trackNumber || address) && (polar || cartesian);
    case AdsbSensor:
        return address && wgs84;
    case MlatSensor:
    case SdpsSensor:
        return (trackNumber || address) && (wgs84 || cartesian);
    case SmrSensor:
        return trackNumber && polar;
    case UnknownSensor:
        break;
    }
    return false;
}

SensorType sensorTypeOf(int category)
{
    const CategoryRow *row = rowOf(category);
    return row ? row->sensor : UnknownSensor;
}

bool isTargetCategory(int category)
{
    const CategoryRow *row = rowOf(category);
    return row && row->targets;
}
