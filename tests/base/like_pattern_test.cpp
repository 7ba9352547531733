#include "base/like_pattern.h"

#include <chrono>
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

// In filters and searches one sign alone is a wildcard; as a pattern of a statement it means the same.
TEST(LikePattern, FiltersKnowTheStarAloneAndSearchesThePercentSign)
{
    const struct
    {
        const char* pattern;
        Wildcards wildcards;
        const char* text;
        bool matches;
    } cases[] = {
        {"*flansch*", Wildcards::Star, "Der Flansch", true},
        {"*flansch", Wildcards::Star, "Flansch 2", false},
        {"a*b%c", Wildcards::Star, "a--B%c", true},
        {"a*b%c", Wildcards::Star, "a--b--c", false},
        {"20_50", Wildcards::Star, "20_50", true},
        {"20_50", Wildcards::Star, "20x50", false},
        {"Vorlage [NG6]", Wildcards::Star, "vorlage [ng6]", true},
        {"Vorlage [NG6]", Wildcards::Star, "Vorlage N", false},
        {"[*]", Wildcards::Star, "[x]", true},
        {"[*]", Wildcards::Star, "*", false},
        {"[!a-c", Wildcards::Star, "[!a-c", true},
        {"*Ä*ä", Wildcards::Star, "xäÄ", true},
        {"*Ä*ä", Wildcards::Star, "xÄ", false},
        {"ab*ba", Wildcards::Star, "aba", false},
        {"*]*[*_*", Wildcards::Star, "a]b[c_d", true},
        {"%TEST[01]%", Wildcards::Percent, "ein Test[01].par", true},
        {"%TEST[01]%", Wildcards::Percent, "Test0", false},
        {"a_*%", Wildcards::Percent, "a_*b", true},
        {"a_*%", Wildcards::Percent, "ab*", false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(LikePattern(c.pattern, c.wildcards).matches(c.text), c.matches) << c.pattern << " / " << c.text;
        const std::string sql = asSqlPattern(c.pattern, c.wildcards);
        EXPECT_EQ(LikePattern(sql, Wildcards::Sql).matches(c.text), c.matches) << sql << " / " << c.text;
        EXPECT_EQ(LikePattern(sql, Wildcards::Sql).shape(), LikePattern(c.pattern, c.wildcards).shape()) << sql;
    }
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
        if (c.shape != Shape::Other) {
            EXPECT_EQ(pattern.literal(), c.literal) << c.pattern;
        }
    }
}

// Each of these took minutes or longer where brackets were searched again and again, parts compared at every place, or
// runs tried in every length.
TEST(LikePattern, LongTextsAndPatternsTakeTimeByTheirLength)
{
    constexpr std::size_t LENGTH = 1 << 18;
    const auto repeated = [](std::string_view part, std::size_t bytes) {
        std::string text;
        while (text.size() < bytes)
            text += part;
        return text;
    };
    const std::string as(LENGTH, 'a');
    const std::string brackets = repeated("[", LENGTH);
    const auto start = std::chrono::steady_clock::now();
    for (const Wildcards wildcards : {Wildcards::Sql, Wildcards::Star, Wildcards::Percent}) {
        EXPECT_TRUE(LikePattern(brackets, wildcards).matches(brackets));
        EXPECT_FALSE(LikePattern(brackets + "]", wildcards).matches(as));
        const std::string run = wildcards == Wildcards::Star ? "*" : "%";
        EXPECT_TRUE(LikePattern(repeated(run + "a", LENGTH), wildcards).matches(as));
        EXPECT_FALSE(LikePattern(repeated(run + "a", LENGTH) + run + "b", wildcards).matches(as));
        EXPECT_FALSE(LikePattern(repeated(run + "a", LENGTH) + run + "b" + run, wildcards).matches(as));
        const std::string half(LENGTH / 2, 'a');
        EXPECT_FALSE(LikePattern(run + half + "b" + run, wildcards).matches(as));
        EXPECT_FALSE(LikePattern(run + "b" + half + run, wildcards).matches(as));
        EXPECT_FALSE(LikePattern(run + half + "b" + half + run + "a", wildcards).matches(as));
        EXPECT_TRUE(LikePattern(run + half + run + half + run, wildcards).matches(as));
        EXPECT_TRUE(LikePattern(as, wildcards).matches(as));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}
