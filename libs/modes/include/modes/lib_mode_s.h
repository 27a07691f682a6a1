#pragma once

#include <string>

namespace korvane::modes {

class LibModeS {
public:
    static std::string version();
};

} // namespace korvane::modes
