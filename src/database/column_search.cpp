#include "database/column_search.h"

#include "base/collation.h"
#include "base/text.h"

#include <algorithm>
#include <cstring>
#include <future>

namespace quelvarn {

namespace {

constexpr unsigned BLOCKBITS = 12;         // 4,096 texts are judged at once.
constexpr std::size_t BLOCKS_FOR_TWO = 16; // From this many blocks on two threads judge them.
constexpr std::size_t WINDOW = 128;
constexpr std::size_t LONGEST_SOUGHT = 64; // bytes; a longer text is looked for in each text by itself

// Marks the places of a window where a text may begin, going by three of its bytes. False when there is none. The
// fixed length lets the compiler use vector instructions.
bool rememberBeginnings(const char* window, std::string_view sought, std::uint8_t* __restrict beginnings)
{
    const std::size_t last = sought.size() - 1;
    const std::size_t middle = sought.size() / 2;
    const char a = sought.front();
    const char b = sought[middle];
    const char c = sought.back();
    std::uint8_t one = 0;
    for (std::size_t i = 0; i < WINDOW; ++i) {
        beginnings[i] = static_cast<std::uint8_t>(window[i] == a) & static_cast<std::uint8_t>(window[i + middle] == b) &
                        static_cast<std::uint8_t>(window[i + last] == c);
        one |= beginnings[i];
    }
    return one != 0;
}

std::uint8_t* next(std::uint8_t* from, std::uint8_t* until)
{
    void* found = std::memchr(from, 1, static_cast<std::size_t>(until - from));
    return found ? static_cast<std::uint8_t*>(found) : until;
}

// LIKE over the folded texts of a column: the plain shapes by comparing bytes, the others by the pattern where the
// text can match at all.
class LikeHits : public TextHits
{
public:
    LikeHits(const TextColumn& column, LikePattern pattern, bool negated)
        : TextHits(column, negated), pattern_(std::move(pattern))
    {}

protected:
    void evaluate(TextCode from, TextCode until, std::vector<std::uint8_t>& verdict) override
    {
        const auto& folded = texts().folded();
        const bool front =
            pattern_.shape() == LikePattern::Shape::Exact || pattern_.shape() == LikePattern::Shape::Prefix;
        const std::string& required = pattern_.required();
        if (!front && !required.empty() && required.size() <= LONGEST_SOUGHT)
            evaluateHits(from, until, verdict);
        else
            for (TextCode code = from; code < until; ++code)
                verdict[code] = meets(texts().foldedText(code));
        const auto& other = folded.otherLength;
        for (auto code = std::lower_bound(other.begin(), other.end(), from); code != other.end() && *code < until;
             ++code)
            verdict[*code] = pattern_.matches(texts().text(*code));
    }

private:
    bool meets(std::string_view folded) const
    {
        switch (pattern_.shape()) {
        case LikePattern::Shape::Exact:
            return folded == pattern_.literal();
        case LikePattern::Shape::Prefix: {
            const std::string& text = pattern_.literal();
            return folded.size() >= text.size() && std::memcmp(folded.data(), text.data(), text.size()) == 0;
        }
        case LikePattern::Shape::Contains:
        case LikePattern::Shape::Other:
            break;
        }
        return pattern_.matchesFolded(folded);
    }

    // Looks only at the texts that hold what every match must hold.
    void evaluateHits(TextCode from, TextCode until, std::vector<std::uint8_t>& verdict)
    {
        const auto& beginnings = texts().beginnings();
        const std::string_view bytes = std::string_view(texts().folded().bytes).substr(0, beginnings[until]);
        const std::string& text = pattern_.required();
        TextCode code = from;
        for (std::size_t position = beginnings[from];;) {
            position = findBytes(bytes, text, position);
            if (position == std::string_view::npos)
                return;
            while (beginnings[code + 1] <= position)
                ++code;
            // What runs over the end of the text does so from each later place as well.
            if (position + text.size() <= beginnings[code + 1])
                verdict[code] = pattern_.shape() == LikePattern::Shape::Contains ||
                                pattern_.matchesFolded(texts().foldedText(code));
            position = beginnings[code + 1];
        }
    }

    LikePattern pattern_;
};

// Most texts differ from the wanted one by a plain letter or digit, which their bytes tell; the collation decides
// about the others.
class EqualHits : public TextHits
{
public:
    EqualHits(const TextColumn& column, std::string_view text, bool negated)
        : TextHits(column, negated), text_(text), folded_(foldCase(trimRightBlanks(text)))
    {}

protected:
    void evaluate(TextCode from, TextCode until, std::vector<std::uint8_t>& verdict) override
    {
        texts().folded();
        for (TextCode code = from; code < until; ++code)
            verdict[code] = canEqualBe(texts().foldedText(code)) && equalText(texts().text(code), text_);
    }

private:
    bool canEqualBe(std::string_view folded) const
    {
        const auto [here, there] = std::mismatch(folded.begin(), folded.end(), folded_.begin(), folded_.end());
        const bool herePlain = here == folded.end() || isPlain(*here);
        const bool plainThere = there == folded_.end() || isPlain(*there);
        const bool bothAtEnd = here == folded.end() && there == folded_.end();
        return bothAtEnd || !herePlain || !plainThere;
    }

    static bool isPlain(char character)
    {
        return (character >= 'a' && character <= 'z') || (character >= '0' && character <= '9');
    }

    std::string text_;
    std::string folded_;
};

class CheckHits : public TextHits
{
public:
    CheckHits(const TextColumn& column, std::function<bool(std::string_view)> check)
        : TextHits(column, false), check_(std::move(check))
    {}

protected:
    void evaluate(TextCode from, TextCode until, std::vector<std::uint8_t>& verdict) override
    {
        for (TextCode code = from; code < until; ++code)
            verdict[code] = check_(texts().text(code));
    }

private:
    std::function<bool(std::string_view)> check_;
};

} // namespace

std::size_t findBytes(std::string_view bytes, std::string_view sought, std::size_t from)
{
    std::uint8_t beginnings[WINDOW];
    std::uint8_t* const end = beginnings + WINDOW;
    for (; from + WINDOW + sought.size() <= bytes.size(); from += WINDOW) {
        if (!rememberBeginnings(bytes.data() + from, sought, beginnings))
            continue;
        for (std::uint8_t* position = next(beginnings, end); position != end; position = next(position + 1, end)) {
            const std::size_t hits = from + static_cast<std::size_t>(position - beginnings);
            if (bytes.compare(hits, sought.size(), sought) == 0)
                return hits;
        }
    }
    return bytes.find(sought, from);
}

TextHits::TextHits(const TextColumn& column, bool negated)
    : column_(column), negated_(negated), verdict_(column.texts().count()),
      evaluated_((verdict_.size() >> BLOCKBITS) + 1)
{}

void TextHits::keep(std::vector<RowNumber>& rows)
{
    const TextCode* codes = column_.codes().data();
    std::size_t stay = 0;
    for (const RowNumber row : rows) {
        const TextCode code = codes[row];
        if (!evaluated_[code >> BLOCKBITS])
            evaluateBlock(code >> BLOCKBITS);
        rows[stay] = row;
        stay += verdict_[code];
    }
    rows.resize(stay);
}

bool TextHits::nowhere()
{
    const std::size_t blocks = evaluated_.size();
    if (blocks < BLOCKS_FOR_TWO) {
        evaluateBlocks(0, blocks);
    } else {
        column_.texts().folded(); // Made when first asked for, which only one may do.
        std::future<void> half = std::async(std::launch::async, [&] { evaluateBlocks(blocks / 2, blocks); });
        evaluateBlocks(0, blocks / 2);
        half.get();
    }
    return std::memchr(verdict_.data(), 1, verdict_.size()) == nullptr;
}

void TextHits::evaluateBlocks(std::size_t from, std::size_t until)
{
    for (std::size_t block = from; block < until; ++block)
        if (!evaluated_[block])
            evaluateBlock(block);
}

void TextHits::evaluateBlock(std::size_t block)
{
    evaluated_[block] = 1;
    const auto from = static_cast<TextCode>(block << BLOCKBITS);
    const auto until =
        static_cast<TextCode>(std::min<std::size_t>(from + (std::size_t{1} << BLOCKBITS), verdict_.size()));
    evaluate(from, until, verdict_);
    if (negated_)
        for (TextCode code = from; code < until; ++code)
            verdict_[code] ^= 1;
    if (from == 0)
        verdict_[0] = 0;
}

std::unique_ptr<TextHits> likeHits(const TextColumn& column, std::string_view pattern, Wildcards placeholder,
                                   bool negated)
{
    return std::make_unique<LikeHits>(column, LikePattern(pattern, placeholder), negated);
}

std::unique_ptr<TextHits> equalHits(const TextColumn& column, std::string_view text, bool negated)
{
    return std::make_unique<EqualHits>(column, text, negated);
}

std::unique_ptr<TextHits> checkHits(const TextColumn& column, std::function<bool(std::string_view)> check)
{
    return std::make_unique<CheckHits>(column, std::move(check));
}

} // namespace quelvarn
