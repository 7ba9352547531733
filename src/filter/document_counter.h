#pragma once

#include "database/engine.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// Counts per document. Documents whose names differ in case or trailing blanks alone are one, as in the database.
class DocumentCounter
{
public:
    using Number = std::uint32_t;

    void count(std::string_view DokuBez, std::string_view RevBez);
    std::optional<Number> find(std::string_view DokuBez, std::string_view RevBez);

    std::size_t count() const { return counter_.size(); }
    std::uint32_t counter(Number number) const { return counter_[number]; }
    // The texts as they came first.
    std::string_view DokuBez(Number number) const { return text(2 * std::size_t{number}); }
    std::string_view RevBez(Number number) const { return text(2 * std::size_t{number} + 1); }

private:
    struct Place
    {
        std::uint32_t scatterValue = 0;
        Number number = FREE;
    };
    static constexpr Number FREE = ~Number{0};

    std::string_view text(std::size_t i) const
    {
        return std::string_view(texts_).substr(ends_[i], ends_[i + 1] - ends_[i]);
    }
    // Where the document stands, or the free place for it.
    std::size_t placeOf(std::string_view DokuBez, std::string_view RevBez, std::uint32_t scatterValue) const;
    void enlarge();

    std::vector<std::uint32_t> counter_;
    std::string texts_;
    std::vector<std::size_t> ends_{0};
    std::vector<Place> places_;
};

} // namespace quelvarn
