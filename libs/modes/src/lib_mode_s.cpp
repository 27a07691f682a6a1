#include "modes/lib_mode_s.h"

namespace korvane::modes {

std::string LibModeS::version()
{
    return KORVANE_MODES_VERSION;
}

} // namespace korvane::modes
