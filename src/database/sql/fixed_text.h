#pragma once

#include <concepts>
#include <string_view>

namespace quelvarn::sql {

// A statement as it stands in the source: the compiler must know the whole text, so none with a value pasted into it
// ever comes here. Values go into trees (conditions.h). What a person types as a statement is read by parser.h.
class FixedText
{
public:
    template <class Text>
    requires std::convertible_to<const Text&, std::string_view>
    consteval FixedText(const Text& text) : text_(text) // NOLINT(google-explicit-constructor): as a literal is one.
    {}

    constexpr std::string_view text() const { return text_; }

private:
    std::string_view text_;
};

} // namespace quelvarn::sql
