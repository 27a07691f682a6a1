#pragma once

#include "explanation/value_sources.h"
#include "tracking/track_snapshot.h"

#include <QString>

// "Ground speed"
QString trackValueName(TrackValue value);
// As the display has it, with its unit; noValueText() where it has none, and for what it does not show.
QString trackValueText(const TrackSnapshot &track, TrackValue value);
// A dash.
QString noValueText();
