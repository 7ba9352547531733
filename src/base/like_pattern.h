#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// What stands for something else in a pattern; every other character means itself.
enum class Wildcards {
    Sql,     // % any run, _ one character, [..] a class: in statements
    Percent, // % any run: in a search of a recordset
    Star,    // * any run: in a filter
};

// A piece of a pattern.
struct LikeToken
{
    enum class Kind { Char, AnyOne, AnyRun, Class } kind;
    char32_t character = 0;
    std::u32string members = {}; // Pairs: first and last of each range.
    bool negated = false;
};

// A class holds characters and ranges ("[a-cx]"), "!" or "^" in front turns it round, wildcards in it are plain
// characters ("[%]"), one of a single character is that character, an empty one is nothing. A "[" that is never closed
// is a plain character. Runs that follow one another are one.
std::vector<LikeToken> likeTokens(std::u32string_view pattern, Wildcards wildcards);
// The same pattern with the wildcards of statements.
std::string asSqlPattern(std::string_view pattern, Wildcards wildcards);

// A LIKE pattern, parsed once. Blind to case; counts every blank. Texts between runs are found in time that grows with
// the text, however many runs there are; a pattern with classes may take its own length for each character of a text.
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
    // The plain text of such a pattern, folded.
    const std::string& literal() const { return parts_[shape_ == Shape::Contains ? 1 : 0]; }
    // A folded text that stands in everything the pattern matches; "" when there is none.
    const std::string& required() const { return required_; }

private:
    void takePart(std::string& part);
    void findShape();
    std::size_t findStart(std::size_t token, std::string_view folded, std::size_t from) const;
    bool matchesParts(std::string_view folded) const;
    bool matchesTokens(std::string_view folded) const;

    // The texts between the runs, folded; those at the ends may be empty.
    std::vector<std::string> parts_;
    std::vector<LikeToken> tokens_; // Where there are classes or single characters; else empty.
    std::size_t shortest_ = 0;      // bytes of a text that can match
    Shape shape_ = Shape::Other;
    std::string required_;
};

} // namespace quelvarn
