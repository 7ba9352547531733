#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quelvarn {

struct Standarddrucker
{
    std::string name;
    int papiercode = 9; // 9 is A4; 256 is "not told"
    int exemplare = 1;
    int ausrichtung = 1; // 1 upright, 2 across
};

class Drucker
{
public:
    virtual ~Drucker() = default;
    virtual std::vector<std::string> namen() const = 0;
    // Nothing when no printer is installed.
    virtual std::optional<Standarddrucker> standard() const = 0;
};

} // namespace quelvarn
