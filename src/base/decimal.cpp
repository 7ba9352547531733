#include "base/decimal.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>
#include <limits>

namespace quelvarn {
namespace {

constexpr std::int64_t ONE = 10000;
constexpr std::int64_t LARGEST = 9'000'000'000'000'000'000;

std::optional<Decimal> withinRange(std::int64_t units)
{
    return units > LARGEST || units < -LARGEST ? std::nullopt : std::optional(Decimal::ofUnits(units));
}

// Larger numbers of units have hardly a fifth place, and a hair would be a whole unit.
constexpr double WITH_FIFTH_PLACE = 1e14;
constexpr double HAIR = 4 * std::numeric_limits<double>::epsilon();

// The first number above 0 that rounds to this one, which is above 0: a five that lies a hair below itself counts.
double edge(std::int64_t units)
{
    const double half = (static_cast<double>(units) - 0.5) / ONE;
    return static_cast<double>(units) < WITH_FIFTH_PLACE ? half * (1 - HAIR) : half;
}

double upwards(double number)
{
    return std::nextafter(number, std::numeric_limits<double>::infinity());
}

} // namespace

std::optional<Decimal> Decimal::from(double number)
{
    double scaled = number * ONE;
    if (!(std::fabs(scaled) <= static_cast<double>(LARGEST)))
        return std::nullopt;
    if (std::fabs(scaled) < WITH_FIFTH_PLACE)
        scaled *= 1 + HAIR;
    return ofUnits(std::llround(scaled));
}

std::optional<Decimal> Decimal::plus(Decimal other) const
{
    const bool upwards = other.units_ > 0;
    if (upwards ? units_ > LARGEST - other.units_ : units_ < -LARGEST - other.units_)
        return std::nullopt;
    return withinRange(units_ + other.units_);
}

std::optional<Decimal> Decimal::minus(Decimal other) const
{
    return plus(Decimal(-other.units_));
}

std::string Decimal::text() const
{
    const std::int64_t size = units_ < 0 ? -units_ : units_;
    std::string text = fmt::format("{}{}", units_ < 0 ? "-" : "", size / ONE);
    if (size % ONE == 0)
        return text;
    text += fmt::format(",{:04}", size % ONE);
    text.erase(text.find_last_not_of('0') + 1);
    return text;
}

double Decimal::firstDouble() const
{
    const double first = units_ > 0 ? edge(units_) : upwards(-edge(1 - units_));
    return std::min(first, static_cast<double>(units_) / ONE);
}

// Where binary numbers lie wider apart than the places, at least the next one.
double Decimal::behindDoubles() const
{
    const double behind = units_ >= 0 ? edge(units_ + 1) : upwards(-edge(-units_));
    return std::max(behind, upwards(static_cast<double>(units_) / ONE));
}

} // namespace quelvarn
