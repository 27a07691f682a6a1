#pragma once

#include <QFlags>

// What a setting belongs to: parts of the terminal ask by group what changed, and the command line overrides by group.
enum class SettingGroup : unsigned int {
    General = 1 << 0, // style, language, clock, tool bars
    PlanView = 1 << 1, // centre and background
    Input = 1 << 2,
    Replay = 1 << 3, // how recordings are played, whichever it is
    Processor = 1 << 4,
    Sensor = 1 << 5,
    SensorFile = 1 << 6, // which file, not what it holds
    Tiles = 1 << 7,
    Weather = 1 << 8,
    Video = 1 << 9,
    StaticMaps = 1 << 10,
    SensorLayer = 1 << 11,
    RangeRings = 1 << 12,
    Tracks = 1 << 13,
    Plots = 1 << 14,
    Orientation = 1 << 15, // compass rose, scale bar, key
};
Q_DECLARE_FLAGS(SettingGroups, SettingGroup)
Q_DECLARE_OPERATORS_FOR_FLAGS(SettingGroups)

// What an input is opened with: the command line may override these, and they stay as they are while an input runs.
inline constexpr SettingGroups RunGroups = SettingGroup::Input | SettingGroup::Processor | SettingGroup::Sensor;
