#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

enum class Wildcards {
    Sql,    // % any run, _ one character, [..] a class
    Filter, // the same, and * any run as well
};

// A LIKE pattern, parsed once. Blind to case; counts every blank.
// A class holds characters and ranges ("[a-cx]"), "!" or "^" in front turns it round, wildcards in it are plain
// characters ("[%]"), an empty one is nothing. A "[" that is never closed is a plain character.
class LikePattern
{
public:
    LikePattern(std::string_view pattern, Wildcards wildcards);

    bool matches(std::string_view text) const;
    // The same for a text that went through foldCase already.
    bool matchesFolded(std::string_view folded) const;

    // Set when the pattern is a plain text (folded), one followed by a run, or one between two runs:
    // the shapes that a column search can answer without looking at each text.
    enum class Shape { Exact, Prefix, Contains, Other };
    Shape shape() const { return shape_; }
    const std::string& literal() const { return literal_; }
    // A folded text that stands in everything the pattern matches; "" when there is none.
    const std::string& required() const { return required_; }

private:
    struct Token
    {
        enum class Kind { Char, AnyOne, AnyRun, Class } kind;
        char32_t character = 0;
        std::u32string members; // Pairs: first and last of each range.
        bool negated = false;

        bool isAscii() const { return kind == Kind::Char && character < 0x80; }
        bool accepts(char32_t candidate) const;
    };

    void addClass(std::u32string_view members);
    void findRequired();
    void findShape();
    std::size_t findStart(std::size_t token, std::string_view folded, std::size_t from) const;
    bool matchesTokens(std::string_view folded) const;

    std::vector<Token> tokens_;
    Shape shape_ = Shape::Other;
    std::string literal_;
    std::string required_;
};

} // namespace quelvarn
