#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::scenario {

// One step of a scenario: a verb with its arguments, and the text lines (begun with '|') under it.
struct Step
{
    std::string file;
    int line = 0;
    std::vector<std::string> words; // The verb is the first; quoted words are kept whole.
    std::vector<std::string> text;

    const std::string& word(std::size_t index) const; // Throws Difference when there are fewer.
    bool has(std::size_t index) const { return index < words.size(); }
    std::string joinedText() const;
};

// The first difference ends a scenario.
class Difference : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
    static Difference between(std::string_view what, std::string_view expected, std::string_view found);
};

// The scenario cannot run here (something it needs is not on this machine).
class Skipped : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

std::vector<Step> readScript(const std::string& file);

} // namespace quelvarn::scenario
