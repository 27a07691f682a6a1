#pragma once

#include "asterix/asterix.h"
#include "tracking/track.h"

#include <optional>

// Which kind of sensor sees the aircraft of a system track, by the ages of its updates (I062/290), else by the flags of
// its status (I062/080), else by its last measured report (I062/340). Radar and interrogated transponder come before
// what the aircraft says of itself, since they are measured. Empty where the record does not tell, or where nothing has
// seen the aircraft for long.
std::optional<Track::Type> systemTrackDetection(const _ast_datarecord_062_t &record);
