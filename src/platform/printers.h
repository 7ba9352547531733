#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quelvarn {

struct DefaultPrinter
{
    std::string name;
    int paperCode = 9; // 9 is A4; 256 is "not told"
    int copies = 1;
    int orientation = 1; // 1 upright, 2 across
};

class Printers
{
public:
    virtual ~Printers() = default;
    virtual std::vector<std::string> names() const = 0;
    // Nothing when no printer is installed.
    virtual std::optional<DefaultPrinter> standard() const = 0;
};

} // namespace quelvarn
