#pragma once

#include <string_view>

namespace quelvarn {

inline constexpr int USE_VIEWING = 2; // Shown in a viewer.

// Tells the office who has which file open.
class UseRegistry
{
public:
    virtual ~UseRegistry() = default;
    virtual void add(std::string_view filename, int code) = 0;
    virtual void remove(std::string_view filename, int code) = 0;
};

// Keeps nothing.
class NoUseRegistry final : public UseRegistry
{
public:
    void add(std::string_view, int) override {}
    void remove(std::string_view, int) override {}
};

} // namespace quelvarn
