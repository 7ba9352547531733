#include "database/column_texts.h"

#include "base/collation.h"

#include <algorithm>
#include <cstring>

namespace quelvarn {

namespace {

constexpr std::size_t FIRST_PLACES = 16;
// From this many distinct texts on the search must pay for itself.
constexpr std::size_t PROBE = 1 << 16;

std::uint32_t scatterValueOf(std::string_view text)
{
    constexpr std::uint64_t FACTOR = 0x9E3779B97F4A7C15ull;
    std::uint64_t value = text.size() * FACTOR;
    const char* position = text.data();
    std::size_t rest = text.size();
    for (; rest >= 8; rest -= 8, position += 8) {
        std::uint64_t word;
        std::memcpy(&word, position, 8);
        value = (value ^ word) * FACTOR;
        value ^= value >> 32;
    }
    std::uint64_t word = 0;
    if (rest > 0)
        std::memcpy(&word, position, rest);
    value = (value ^ word) * FACTOR;
    return static_cast<std::uint32_t>(value >> 32);
}

constexpr std::size_t BLOCK = 64;

// Lower-cases ASCII letters only. True when the block holds anything beyond ASCII. The fixed length lets the
// compiler use vector instructions.
bool foldBlock(const char* __restrict source, char* __restrict target)
{
    unsigned char high = 0;
    for (std::size_t i = 0; i < BLOCK; ++i) {
        const auto character = static_cast<unsigned char>(source[i]);
        const auto distance = static_cast<unsigned char>(character - 'A');
        target[i] = static_cast<char>(character | (distance < 26 ? 0x20 : 0));
        high |= character;
    }
    return (high & 0x80) != 0;
}

// The first place from `ab` on that holds a byte beyond ASCII; bytes.size() when there is none.
std::size_t nextHigh(const std::string& bytes, std::size_t from)
{
    while (from + 8 <= bytes.size()) {
        std::uint64_t word;
        std::memcpy(&word, bytes.data() + from, 8);
        if (word & 0x8080808080808080ull)
            break;
        from += 8;
    }
    while (from < bytes.size() && (bytes[from] & 0x80) == 0)
        ++from;
    return from;
}

} // namespace

TextCode TextPool::codeOf(std::string_view newText)
{
    if (last_ != 0 && text(last_) == newText)
        return last_;
    if (!searches_)
        return last_ = append(newText);
    if (count() * 2 >= places_.size())
        enlarge();
    const std::uint32_t scatterValue = scatterValueOf(newText);
    const std::size_t mask = places_.size() - 1;
    std::size_t place = scatterValue & mask;
    for (; places_[place].code != 0; place = (place + 1) & mask) {
        if (places_[place].scatterValue == scatterValue && text(places_[place].code) == newText) {
            ++found_;
            return last_ = places_[place].code;
        }
    }
    last_ = append(newText);
    places_[place] = {scatterValue, last_};
    if (last_ % PROBE == 0 && !paysSearch()) {
        searches_ = false;
        places_ = {};
    }
    return last_;
}

TextCode TextPool::append(std::string_view newText)
{
    bytes_.append(newText);
    beginnings_.push_back(bytes_.size());
    return static_cast<TextCode>(beginnings_.size() - 2);
}

bool TextPool::paysSearch() const
{
    return found_ * 4 >= count();
}

void TextPool::enlarge()
{
    std::vector<Place> old(std::max(FIRST_PLACES, places_.size() * 2));
    old.swap(places_);
    const std::size_t mask = places_.size() - 1;
    for (const Place& alter : old) {
        if (alter.code == 0)
            continue;
        std::size_t place = alter.scatterValue & mask;
        while (places_[place].code != 0)
            place = (place + 1) & mask;
        places_[place] = alter;
    }
}

void TextPool::commit()
{
    searches_ = false;
    places_ = {};
    bytes_.shrink_to_fit();
    beginnings_.shrink_to_fit();
}

std::size_t TextPool::memory() const
{
    return bytes_.capacity() + beginnings_.capacity() * sizeof(beginnings_[0]) + places_.capacity() * sizeof(Place) +
           folded_.bytes.capacity() + folded_.otherLength.capacity() * sizeof(TextCode);
}

const TextPool::Folded& TextPool::folded() const
{
    if (folded_.until == count())
        return folded_;
    const std::size_t first = folded_.bytes.size();
    if (foldAscii(first))
        foldOther(first);
    folded_.until = static_cast<TextCode>(count());
    return folded_;
}

// True when there is more than ASCII from this place on.
bool TextPool::foldAscii(std::size_t position) const
{
    folded_.bytes.resize(bytes_.size());
    bool other = false;
    for (; position + BLOCK <= bytes_.size(); position += BLOCK)
        other |= foldBlock(bytes_.data() + position, folded_.bytes.data() + position);
    char source[BLOCK] = {};
    char target[BLOCK];
    const std::size_t rest = bytes_.size() - position;
    bytes_.copy(source, rest, position);
    other |= foldBlock(source, target);
    std::copy_n(target, rest, folded_.bytes.data() + position);
    return other;
}

void TextPool::foldOther(std::size_t position) const
{
    for (position = nextHigh(bytes_, position); position < bytes_.size();) {
        const auto next = std::upper_bound(beginnings_.begin() + folded_.until, beginnings_.end(), position);
        const auto code = static_cast<TextCode>(next - beginnings_.begin() - 1);
        const std::string folded = foldCase(text(code));
        if (folded.size() == text(code).size())
            folded.copy(folded_.bytes.data() + beginnings_[code], folded.size());
        else
            folded_.otherLength.push_back(code);
        position = nextHigh(bytes_, *next);
    }
}

} // namespace quelvarn
