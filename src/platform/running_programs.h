#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// The windows of programs that run on this computer, known to one another by their captions.
class RunningPrograms
{
public:
    virtual ~RunningPrograms() = default;
    // The captions of all top-level windows, this program's own among them.
    virtual std::vector<std::string> windowTitles() const = 0;
    // Tells the caption of this program's own window, from now until the object goes.
    virtual void ownTitle(std::string_view title) = 0;
};

} // namespace quelvarn
