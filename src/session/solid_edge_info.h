#pragma once

#include <string>

namespace quelvarn {

// The installed CAD program, as far as it was found; both empty when it was not.
struct SolidEdgeInfo
{
    std::string version;
    std::string pfad;

    // Only the viewer is installed: nothing can be edited from here.
    bool nurViewer() const
    {
        return pfad.find("SmartView") != std::string::npos || pfad.find("Viewer") != std::string::npos;
    }
};

} // namespace quelvarn
