#pragma once

// Values of reports that others are compared with: when a position was so, and how high above the Earth.

#include "asterix/report_time.h"
#include "asterix/report_values.h"

// The moment that the position is of: I021/071 else 073, of other editions and categories as
// ast_datarecord_get_timeofday() has it.
_ast_time_of_day_t ast_datarecord_get_positiontime(const _ast_datarecord_t &record);
// Geometric, in feet: I021/140 and I020/105 above WGS-84, I062/130 above mean sea level.
_ast_altitude_t ast_datarecord_get_geometricaltitude(const _ast_datarecord_t &record);
