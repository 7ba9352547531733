#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>

namespace quelvarn {

// A number with four decimal places, counted in ten-thousandths: sums and differences of such numbers are exact.
class Decimal
{
public:
    constexpr Decimal() = default;
    static constexpr Decimal ofUnits(std::int64_t tenThousandths) { return Decimal(tenThousandths); }
    // The nearest one; a five in the fifth place goes away from zero, as on paper. Nothing beyond nine hundred
    // trillions, and for what is no number.
    static std::optional<Decimal> from(double number);

    // Nothing where the result is too large.
    std::optional<Decimal> plus(Decimal other) const;
    std::optional<Decimal> minus(Decimal other) const;

    bool isZero() const { return units_ == 0; }
    std::string text() const; // "1234,5": a decimal comma, no thousands marks, no zeros at the end

    // The binary numbers that count as this one: from the first one up to, not including, the other.
    double firstDouble() const;
    double behindDoubles() const;

    auto operator<=>(const Decimal&) const = default;

private:
    constexpr explicit Decimal(std::int64_t units) : units_(units) {}
    std::int64_t units_ = 0;
};

} // namespace quelvarn
