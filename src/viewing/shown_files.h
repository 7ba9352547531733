#pragma once

#include "viewing/use_registry.h"
#include "viewing/viewer.h"

#include <array>
#include <string>

namespace quelvarn {

// What stands in the viewers. A file is entered in the use registry while it is shown somewhere.
class ShownFiles
{
public:
    ShownFiles(Viewer& viewer, UseRegistry& use) : viewer_(viewer), use_(use) {}

    // False when it could not be shown; the place is empty then.
    bool show(ViewerPlace view, const std::string& filename);
    void clear(ViewerPlace view);
    // Every place lets go of its file.
    void DetachViewers();
    const std::string& file(ViewerPlace view) const { return files_[static_cast<std::size_t>(view)]; }

private:
    bool stands(const std::string& filename) const;

    Viewer& viewer_;
    UseRegistry& use_;
    std::array<std::string, VIEWER_PLACE_COUNT> files_;
};

} // namespace quelvarn
