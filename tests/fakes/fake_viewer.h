#pragma once

#include "viewing/shown_files.h"

#include <array>
#include <set>
#include <string>

namespace quelvarn {

// Shows every file but those of `kaputt`, and tells what stands where.
class FakeViewer : public Viewer
{
public:
    bool show(ViewerPlace view, std::string_view filename) override
    {
        const bool can = !broken.contains(std::string(filename));
        stands(view) = can ? filename : "";
        return can;
    }
    void clear(ViewerPlace view) override { stands(view).clear(); }

    std::string& stands(ViewerPlace view) { return shown_[static_cast<std::size_t>(view)]; }

    std::set<std::string> broken;

private:
    std::array<std::string, VIEWER_PLACE_COUNT> shown_;
};

// The viewers of a test, with a use registry that keeps nothing.
struct FakeScreen
{
    FakeViewer viewer;
    NoUseRegistry use;
    ShownFiles shown{viewer, use};
};

} // namespace quelvarn
