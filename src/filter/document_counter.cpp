#include "filter/document_counter.h"

#include "base/collation.h"
#include "base/text.h"

#include <array>
#include <numeric>

namespace quelvarn {

namespace {

constexpr std::size_t FIRST_PLACES = 1024;

constexpr unsigned char ASCII_END = 0x80;
constexpr unsigned char BLANK = 0x02; // Its weight; alone it would be cut.

std::array<unsigned char, ASCII_END> asciiWeights()
{
    std::array<unsigned char, ASCII_END> weights{};
    for (unsigned char character = 0; character < ASCII_END; ++character) {
        const std::string key = sortKey(std::string(1, static_cast<char>(character)));
        weights[character] = key.empty() ? BLANK : static_cast<unsigned char>(key[0]);
    }
    return weights;
}

std::uint32_t mix(std::uint32_t value, char byte)
{
    return (value ^ static_cast<unsigned char>(byte)) * 16'777'619u;
}

// Equal texts give equal values: it is that of the sort key, which need not be built for plain texts.
std::uint32_t scatterValueOf(std::string_view text)
{
    static const auto WEIGHTS = asciiWeights();
    constexpr std::uint32_t BEGIN = 2'166'136'261u;
    std::uint32_t value = BEGIN;
    for (const char character : trimRightBlanks(text)) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= ASCII_END) {
            const std::string key = sortKey(text);
            return std::accumulate(key.begin(), key.end(), BEGIN, mix);
        }
        value = mix(value, static_cast<char>(WEIGHTS[byte]));
    }
    return value;
}

std::uint32_t scatterValueOf(std::string_view DokuBez, std::string_view RevBez)
{
    const std::uint32_t value = scatterValueOf(DokuBez) * 31 + scatterValueOf(RevBez);
    return value ^ (value >> 15);
}

bool equal(std::string_view left, std::string_view right)
{
    return left == right || equalText(left, right);
}

} // namespace

std::size_t DocumentCounter::placeOf(std::string_view DokuBez, std::string_view RevBez,
                                     std::uint32_t scatterValue) const
{
    std::size_t place = scatterValue % places_.size();
    while (places_[place].number != FREE) {
        const Number number = places_[place].number;
        if (places_[place].scatterValue == scatterValue && equal(this->DokuBez(number), DokuBez) &&
            equal(this->RevBez(number), RevBez))
            break;
        place = (place + 1) % places_.size();
    }
    return place;
}

void DocumentCounter::enlarge()
{
    std::vector<Place> old(places_.empty() ? FIRST_PLACES : 2 * places_.size());
    old.swap(places_);
    for (const Place& alter : old) {
        if (alter.number == FREE)
            continue;
        std::size_t place = alter.scatterValue % places_.size();
        while (places_[place].number != FREE)
            place = (place + 1) % places_.size();
        places_[place] = alter;
    }
}

void DocumentCounter::count(std::string_view DokuBez, std::string_view RevBez)
{
    if (2 * count() >= places_.size())
        enlarge();
    const std::uint32_t scatterValue = scatterValueOf(DokuBez, RevBez);
    Place& place = places_[placeOf(DokuBez, RevBez, scatterValue)];
    if (place.number == FREE) {
        place = {scatterValue, static_cast<Number>(count())};
        counter_.push_back(0);
        ends_.push_back((texts_ += DokuBez).size());
        ends_.push_back((texts_ += RevBez).size());
    }
    ++counter_[place.number];
}

std::optional<DocumentCounter::Number> DocumentCounter::find(std::string_view DokuBez, std::string_view RevBez)
{
    if (places_.empty())
        return std::nullopt;
    const Place& place = places_[placeOf(DokuBez, RevBez, scatterValueOf(DokuBez, RevBez))];
    return place.number == FREE ? std::nullopt : std::optional(place.number);
}

} // namespace quelvarn
