#pragma once

#include <string>

namespace quelvarn {

// The installed CAD program, as far as it was found; both empty when it was not.
struct SolidEdgeInfo
{
    std::string version;
    std::string documentPath;

    // Only the viewer is installed: nothing can be edited from here.
    bool onlyViewer() const
    {
        return documentPath.find("SmartView") != std::string::npos || documentPath.find("Viewer") != std::string::npos;
    }
};

} // namespace quelvarn
