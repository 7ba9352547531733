#include "scenario_runner/script.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <fstream>

namespace quelvarn::scenario {

namespace {

// Words are split at blanks; "..." keeps blanks, and "" inside is one quote. No other escapes: paths are full
// of backslashes.
std::vector<std::string> splitWords(const std::string& line, const std::string& place)
{
    std::vector<std::string> words;
    std::size_t i = 0;
    while (i < line.size()) {
        if (line[i] == ' ' || line[i] == '\t') {
            ++i;
            continue;
        }
        std::string word;
        if (line[i] == '"') {
            for (++i;; ++i) {
                if (i >= line.size())
                    throw Difference(place + ": a quote is not closed");
                if (line[i] != '"') {
                    word += line[i];
                } else if (i + 1 < line.size() && line[i + 1] == '"') {
                    word += line[++i];
                } else {
                    ++i;
                    break;
                }
            }
        } else {
            while (i < line.size() && line[i] != ' ' && line[i] != '\t')
                word += line[i++];
        }
        words.push_back(word);
    }
    return words;
}

} // namespace

const std::string& Step::word(std::size_t index) const
{
    if (!has(index))
        throw Difference(fmt::format("the step \"{}\" needs more words", words.front()));
    return words[index];
}

std::string Step::joinedText() const
{
    return fmt::format("{}", fmt::join(text, "\n"));
}

Difference Difference::between(std::string_view what, std::string_view expected, std::string_view found)
{
    return Difference(fmt::format("{}\n  expected: {}\n  found:    {}", what, expected, found));
}

std::vector<Step> readScript(const std::string& file)
{
    std::ifstream input(file);
    if (!input)
        throw Difference(fmt::format("{}: cannot be read", file));
    std::vector<Step> steps;
    std::string line;
    for (int number = 1; std::getline(input, line); ++number) {
        const std::string place = fmt::format("{}:{}", file, number);
        const auto start = line.find_first_not_of(" \t");
        if (start == std::string::npos || line[start] == '#')
            continue;
        if (line[start] == '|') {
            if (steps.empty())
                throw Difference(place + ": a text line without a step above it");
            const auto begin = line.size() > start + 1 && line[start + 1] == ' ' ? start + 2 : start + 1;
            steps.back().text.push_back(line.substr(std::min(begin, line.size())));
            continue;
        }
        steps.push_back({file, number, splitWords(line, place), {}});
    }
    return steps;
}

} // namespace quelvarn::scenario
