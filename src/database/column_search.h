#pragma once

#include "base/like_pattern.h"
#include "database/column.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// The first place of `sought` in `bytes` at or behind `ab`; std::string_view::npos when there is none.
std::size_t findBytes(std::string_view bytes, std::string_view sought, std::size_t from);

// Tells for each text of a column whether it meets a condition, and by that which rows do. Each text is judged
// once, in blocks, when a row with a text of that block is first asked for.
class TextHits
{
public:
    virtual ~TextHits() = default;
    // Removes the rows that do not meet the condition; the others stay in their order. Null never meets one.
    void keep(std::vector<RowNumber>& rows);
    // True when no text of the column meets the condition. Judges all of them, on two processors when they are many.
    bool nowhere();

protected:
    TextHits(const TextColumn& column, bool negated);
    // Sets verdict[code] to 1 for the codes from `from` up to, not including, `bis` that meet the condition; all
    // are 0 before. May run for different codes at the same time.
    virtual void evaluate(TextCode from, TextCode until, std::vector<std::uint8_t>& verdict) = 0;
    const TextPool& texts() const { return column_.texts(); }

private:
    void evaluateBlock(std::size_t block);
    void evaluateBlocks(std::size_t from, std::size_t until);

    const TextColumn& column_;
    bool negated_;
    std::vector<std::uint8_t> verdict_;
    std::vector<std::uint8_t> evaluated_; // by block
};

std::unique_ptr<TextHits> likeHits(const TextColumn& column, std::string_view pattern, Wildcards placeholder,
                                   bool negated);
// Texts equal to this one, blind to case and to trailing blanks.
std::unique_ptr<TextHits> equalHits(const TextColumn& column, std::string_view text, bool negated);
// Texts of which the test is true.
std::unique_ptr<TextHits> checkHits(const TextColumn& column, std::function<bool(std::string_view)> check);

} // namespace quelvarn
