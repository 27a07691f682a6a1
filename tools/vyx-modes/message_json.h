#pragma once

#include "modes/adsb_target.h"
#include "modes/mode_s_message.h"

#include <string>

// Appends a valid message as one line. target: what the message belongs to, null for none; its position is printed with
// the report that gave it.
void appendMessageJson(
    std::string &out, const korvane::modes::ModeSMessage &message, const korvane::modes::ADSBTarget *target);
