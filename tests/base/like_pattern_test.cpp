#include "base/like_pattern.h"

#include <gtest/gtest.h>

using namespace quelvarn;

namespace {

struct LikeCase
{
    const char* pattern;
    const char* text;
    bool matches;
};

} // namespace

TEST(LikePattern, MatchesAsTheDatabaseDoes)
{
    const LikeCase cases[] = {
        {"", "", true},
        {"", " ", false},
        {"abc", "ABC", true},
        {"abc", "abc ", false},
        {"GRÖẞE%", "größer", true},
        {"%", "", true},
        {"%%", "x", true},
        {"a%", "Abc", true},
        {"%c", "abc", true},
        {"%c", "abcd", false},
        {"%b%", "aBc", true},
        {"%b%", "ac", false},
        {"a%c%e", "abcde", true},
        {"a%c%e", "abcdef", false},
        {"%ab%ab", "abxab", true},
        {"%ab%ab", "ab", false},
        {"a_c", "aäc", true},
        {"a_c", "ac", false},
        {"_%", "", false},
        {"%_", "ß", true},
        {"[a-c]x", "Bx", true},
        {"[a-c]x", "dx", false},
        {"[A-C]%", "beta", true},
        {"[ä-ü]", "Ö", true},
        {"[!a-c]x", "dx", true},
        {"[^a-c]x", "ax", false},
        {"x[!0-9]%", "x", false},
        {"[abx-z]", "Y", true},
        {"[a-]", "-", true},
        {"[-a]", "b", false},
        {"100[%]", "100%", true},
        {"100[%]", "100 Stück", false},
        {"[[]x]", "[x]", true},
        {"[_]", "a", false},
        {"[!]", "!", true},
        {"a[]b", "ab", true},
        {"a[b", "A[B", true},
        {"a]b", "a]b", true},
        {"a*", "a*", true},
        {"a*", "abc", false},
        {"W:\\%\\x.par", "w:\\Konstruktion\\X.PAR", true},
    };
    for (const LikeCase& c : cases)
        EXPECT_EQ(LikePattern(c.pattern, Wildcards::Sql).matches(c.text), c.matches) << c.pattern << " / " << c.text;
}

TEST(LikePattern, FiltersKnowTheStarToo)
{
    EXPECT_TRUE(LikePattern("*flansch*", Wildcards::Filter).matches("Der Flansch"));
    EXPECT_TRUE(LikePattern("a*b%c", Wildcards::Filter).matches("a--b--c"));
    EXPECT_FALSE(LikePattern("*flansch", Wildcards::Filter).matches("Flansch 2"));
    EXPECT_TRUE(LikePattern("[*]", Wildcards::Filter).matches("*"));
    EXPECT_FALSE(LikePattern("[*]", Wildcards::Filter).matches("x"));
}

TEST(LikePattern, TellsShapesThatAnIndexCanAnswer)
{
    using Shape = LikePattern::Shape;
    struct
    {
        const char* pattern;
        Shape shape;
        const char* literal;
    } const cases[] = {
        {"Welle", Shape::Exact, "welle"}, {"", Shape::Exact, ""},        {"Ä%%", Shape::Prefix, "ä"},
        {"%", Shape::Prefix, ""},         {"%Ä%", Shape::Contains, "ä"}, {"5[%]%", Shape::Prefix, "5%"},
        {"%a", Shape::Other, ""},         {"a%b", Shape::Other, ""},     {"a_", Shape::Other, ""},
        {"%[ab]%", Shape::Other, ""},
    };
    for (const auto& c : cases) {
        const LikePattern pattern(c.pattern, Wildcards::Sql);
        EXPECT_EQ(pattern.shape(), c.shape) << c.pattern;
        EXPECT_EQ(pattern.literal(), c.literal) << c.pattern;
    }
}

// A backtracking over every run would not end within the life of a person.
TEST(LikePattern, ManyRunsOverALongTextStayQuick)
{
    EXPECT_FALSE(LikePattern("%a%a%a%a%a%a%a%a%a%a%b", Wildcards::Sql).matches(std::string(20000, 'a')));
}
