#pragma once

#include <string>
#include <vector>

namespace quelvarn {

struct Drive
{
    std::string letter;  // "W:"
    std::string release; // "\\server\share" of a mapped share, else ""

    // As the drive list shows it: "w:" or "w: [\\server\share]".
    std::string entry() const;
};

class Drives
{
public:
    virtual ~Drives() = default;
    // In order of the letters.
    virtual std::vector<Drive> list() const = 0;
};

} // namespace quelvarn
