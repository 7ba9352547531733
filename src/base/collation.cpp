#include "base/collation.h"

#include "base/collation_table.h"
#include "base/text.h"
#include "base/utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace quelvarn {
namespace {

constexpr char32_t smallSharpS = 0xDF;
constexpr char32_t capitalSharpS = 0x1E9E;

constexpr bool isAscii(unsigned char byte)
{
    return byte < 0x80;
}

constexpr char smallAscii(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
}

constexpr char capitalAscii(char letter)
{
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
}

constexpr std::array<std::uint8_t, 128> makeAsciiWeights()
{
    std::array<std::uint8_t, 128> weights{};
    std::uint8_t punctuation = 0x03;
    for (int byte = 0; byte < 128; ++byte) {
        const bool digit = byte >= '0' && byte <= '9';
        const bool letter = smallAscii(static_cast<char>(byte)) >= 'a' && smallAscii(static_cast<char>(byte)) <= 'z';
        if (byte <= 0x20 || byte == 0x7F)
            weights[byte] = 0x02;
        else if (digit || letter)
            weights[byte] = static_cast<std::uint8_t>(smallAscii(static_cast<char>(byte)));
        else
            weights[byte] = punctuation++;
    }
    return weights;
}

constexpr auto asciiWeights = makeAsciiWeights();

struct Weight
{
    char32_t primary = 0; // 0 behind the last character
    std::uint8_t accent = 0;
};

// Walks over the weights of a text, character by character.
class Weights
{
public:
    explicit Weights(std::string_view text) : text_(text) {}

    Weight next()
    {
        if (secondS_) {
            secondS_ = false;
            return {U's', 0};
        }
        if (position_ >= text_.size())
            return {};
        const auto byte = static_cast<unsigned char>(text_[position_]);
        if (isAscii(byte)) {
            ++position_;
            return {asciiWeights[byte], 0};
        }
        return weightOf(nextCodePoint(text_, position_));
    }

private:
    Weight weightOf(char32_t character)
    {
        if (character == smallSharpS || character == capitalSharpS) {
            secondS_ = true;
            return {U's', 0};
        }
        const CollationCharacter* row = findCollationCharacter(character);
        if (!row)
            return {character, 0};
        return {row->basis < 0x80 ? asciiWeights[row->basis] : row->basis, row->accent};
    }

    std::string_view text_;
    std::size_t position_ = 0;
    bool secondS_ = false;
};

// How far two texts are the same bytes, cut back to the start of a character.
std::size_t commonCharacters(std::string_view left, std::string_view right)
{
    const std::size_t limit = std::min(left.size(), right.size());
    std::size_t same = 0;
    std::uint64_t leftWord = 0;
    std::uint64_t rightWord = 0;
    while (same + sizeof leftWord <= limit) {
        std::memcpy(&leftWord, left.data() + same, sizeof leftWord);
        std::memcpy(&rightWord, right.data() + same, sizeof rightWord);
        if (leftWord != rightWord)
            break;
        same += sizeof leftWord;
    }
    while (same < limit && left[same] == right[same])
        ++same;

    const auto insideCharacter = [&](std::string_view text) {
        return same < text.size() && (static_cast<unsigned char>(text[same]) & 0xC0) == 0x80;
    };
    while (same > 0 && (insideCharacter(left) || insideCharacter(right)))
        --same;
    return same;
}

template <typename AsciiCase, typename OtherCase>
std::string mapCharacters(std::string_view utf8, AsciiCase asciiCase, OtherCase otherCase)
{
    std::string result;
    result.reserve(utf8.size());
    const auto asciiAt = [utf8](std::size_t position) { return isAscii(static_cast<unsigned char>(utf8[position])); };
    for (std::size_t position = 0; position < utf8.size();) {
        std::size_t end = position;
        while (end < utf8.size() && asciiAt(end))
            ++end;
        result.append(utf8, position, end - position);
        const auto run = result.end() - static_cast<std::ptrdiff_t>(end - position);
        std::transform(run, result.end(), run, asciiCase);
        position = end;
        while (position < utf8.size() && !asciiAt(position))
            appendUtf8(result, otherCase(nextCodePoint(utf8, position)));
    }
    return result;
}

// One column of the table; a character without a row stands for itself.
auto column(char32_t CollationCharacter::*member)
{
    return [member](char32_t character) {
        const CollationCharacter* row = findCollationCharacter(character);
        return row ? row->*member : character;
    };
}

} // namespace

std::string sortKey(std::string_view utf8)
{
    Weights weights(trimRightBlanks(utf8));
    std::string key;
    key.reserve(utf8.size());
    std::string accents; // up to the last one
    std::size_t count = 0;
    for (Weight weight = weights.next(); weight.primary != 0; weight = weights.next(), ++count) {
        appendUtf8(key, weight.primary);
        if (weight.accent != 0) {
            accents.resize(count, '\x02');
            accents += static_cast<char>(2 + weight.accent);
        }
    }
    if (!accents.empty())
        key.append(1, '\x01').append(accents);
    return key;
}

int compareText(std::string_view left, std::string_view right)
{
    left = trimRightBlanks(left);
    right = trimRightBlanks(right);
    const std::size_t common = commonCharacters(left, right);
    Weights leftWeights(left.substr(common));
    Weights rightWeights(right.substr(common));
    int accents = 0;
    while (true) {
        const Weight leftWeight = leftWeights.next();
        const Weight rightWeight = rightWeights.next();
        if (leftWeight.primary != rightWeight.primary)
            return leftWeight.primary < rightWeight.primary ? -1 : 1;
        if (leftWeight.primary == 0)
            return accents;
        if (accents == 0)
            accents = static_cast<int>(leftWeight.accent) - static_cast<int>(rightWeight.accent);
    }
}

bool equalText(std::string_view left, std::string_view right)
{
    return compareText(left, right) == 0;
}

std::string foldCase(std::string_view utf8)
{
    return mapCharacters(utf8, smallAscii, column(&CollationCharacter::fold));
}

char32_t foldCase(char32_t character)
{
    if (character < 0x80)
        return static_cast<char32_t>(smallAscii(static_cast<char>(character)));
    return column(&CollationCharacter::fold)(character);
}

std::string toUpper(std::string_view utf8)
{
    return mapCharacters(utf8, capitalAscii, column(&CollationCharacter::large));
}

std::string toLower(std::string_view utf8)
{
    return mapCharacters(utf8, smallAscii, column(&CollationCharacter::small));
}

} // namespace quelvarn
