#include "base/decimal.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace quelvarn {
namespace {

TEST(Decimal, SumsAreExactAndReadAsTheyAreWritten)
{
    const struct
    {
        double value;
        double band;
        const char* from;
        const char* to;
    } cases[] = {
        {0.7, 0.1, "0,6", "0,8"},
        {0.3, 0.2, "0,1", "0,5"},
        {1.1, 2.2, "-1,1", "3,3"},
        {0.1, 0.1, "0", "0,2"},
        {1234.5, 0, "1234,5", "1234,5"},
        {0.00005, 0.00004, "0,0001", "0,0001"}, // A five goes up, a four down.
        {2.67455, -0.0001, "2,6747", "2,6745"},
        {123456789012.3456, 0.0001, "123456789012,3455", "123456789012,3457"},
    };
    for (const auto& c : cases) {
        const Decimal value = *Decimal::from(c.value);
        const Decimal band = *Decimal::from(c.band);
        EXPECT_EQ(value.minus(band)->text(), c.from);
        EXPECT_EQ(value.plus(band)->text(), c.to);
    }
    EXPECT_FALSE(Decimal::from(1e15).has_value());
    EXPECT_FALSE(Decimal::from(std::nan("")).has_value());
    EXPECT_FALSE(Decimal::from(8e14)->plus(*Decimal::from(8e14)).has_value());
    EXPECT_FALSE(Decimal::from(-8e14)->minus(*Decimal::from(8e14)).has_value());
}

// A stored number counts as the decimal that it rounds to, wherever binary arithmetic has left it.
TEST(Decimal, EveryDoubleBelongsToTheDecimalThatItRoundsTo)
{
    std::mt19937_64 random(4);
    for (int i = 0; i < 20000; ++i) {
        const auto units = static_cast<std::int64_t>(random() >> (4 + i % 60));
        if (units > 8'000'000'000'000'000'000)
            continue;
        const Decimal decimal = Decimal::ofUnits(i % 2 ? units : -units);
        const double stored = static_cast<double>(i % 2 ? units : -units) / 10000;
        for (const double near : {stored, std::nextafter(stored, 1e300), std::nextafter(stored, -1e300)}) {
            if (units > (std::int64_t{1} << 50) && near != stored)
                continue; // Neighbours are decimals of their own.
            EXPECT_GE(near, decimal.firstDouble()) << units;
            EXPECT_LT(near, decimal.behindDoubles()) << units;
        }
        if (units < (std::int64_t{1} << 50)) {
            EXPECT_EQ(*Decimal::from(stored), decimal);
        }
    }
    const Decimal value = *Decimal::from(0.8);
    EXPECT_LT(0.7999, value.firstDouble());
    EXPECT_GE(0.8001, value.behindDoubles());
    EXPECT_GE(0.1 + 0.7, value.firstDouble());
}

} // namespace
} // namespace quelvarn
