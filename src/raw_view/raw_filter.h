#pragma once

#include "raw_view/raw_record.h"

#include <QString>

#include <optional>

// Which records of the stream are listed.
struct RawFilter {
    enum class Fate { Any, Used, Dropped, Malformed };

    std::optional<int> category = std::nullopt; // of ASTERIX
    std::optional<quint16> source = std::nullopt; // SAC * 256 + SIC
    Fate fate = Fate::Any;
    QString identity = {}; // part of call sign, code, address or "#" with a track number, whatever its case; empty: any

    bool matches(const RawRecord &record) const;
    bool operator==(const RawFilter &other) const = default;
};
