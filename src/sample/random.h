#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

namespace quelvarn::sample {

// Numbers that look random and are the same on every system for the same start.
class Random
{
public:
    // Each set of numbers starts a series of its own, so that any part of a register can be made by itself.
    Random(std::initializer_list<std::uint64_t> start)
    {
        for (const auto number : start)
            state_ = mix(state_ ^ (number + 0x9E3779B97F4A7C15));
    }

    std::uint32_t below(std::uint32_t limit)
    {
        state_ += 0x9E3779B97F4A7C15;
        return static_cast<std::uint32_t>(((mix(state_) >> 32) * limit) >> 32);
    }
    std::int64_t between(std::int64_t from, std::int64_t until)
    {
        return from + below(static_cast<std::uint32_t>(until - from + 1));
    }
    bool percent(std::uint32_t probability) { return below(100) < probability; }

    template <typename List> const auto& out(const List& list)
    {
        return list[below(static_cast<std::uint32_t>(std::size(list)))];
    }
    // One of the parts of "a|b|c".
    std::string_view part(std::string_view selection)
    {
        std::uint32_t count = 1;
        for (const char character : selection)
            count += character == '|' ? 1 : 0;
        for (auto skip = below(count); skip > 0; --skip)
            selection.remove_prefix(selection.find('|') + 1);
        return selection.substr(0, selection.find('|'));
    }

private:
    static constexpr std::uint64_t mix(std::uint64_t x)
    {
        x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9;
        x = (x ^ (x >> 27)) * 0x94D049BB133111EB;
        return x ^ (x >> 31);
    }
    std::uint64_t state_ = 0;
};

} // namespace quelvarn::sample
