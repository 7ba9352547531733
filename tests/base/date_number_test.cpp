#include "base/date_time.h"
#include "base/number_format.h"

#include <gtest/gtest.h>

using namespace quelvarn;

TEST(DateTime, ReadsTheDaysOfTheDatabase)
{
    struct
    {
        double days;
        const char* iso;
    } const cases[] = {
        {0, "1899-12-30 00:00:00"},
        {1.5, "1899-12-31 12:00:00"},
        {-1.25, "1899-12-29 06:00:00"}, // the time of day counts forward
        {-1, "1899-12-29 00:00:00"},
        {37256.75, "2001-12-31 18:00:00"},
        {38046.999995, "2004-03-01 00:00:00"}, // rounds into the next day
        {-657434, "0100-01-01 00:00:00"},
        {2958465.999988, "9999-12-31 23:59:59"},
        {1e12, "9999-12-31 23:59:59"},
        {-1e12, "0100-01-01 00:00:00"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(formatIso(DateTime::fromDays(c.days)), c.iso) << c.days;
}

TEST(DateTime, KeepsEverySecondThroughTheNumberOfDays)
{
    for (const char* iso : {"0100-01-01 00:00:01", "1899-12-29 06:00:00", "1899-12-29 23:59:59", "1899-12-30 00:00:01",
                            "2000-02-29 12:34:56", "9999-12-31 23:59:59"}) {
        const auto time = parseIso(iso);
        ASSERT_TRUE(time) << iso;
        EXPECT_EQ(formatIso(DateTime::fromDays(time->asDays())), iso);
        EXPECT_EQ(formatIso(DateTime::from(time->calendar())), iso);
    }
    EXPECT_DOUBLE_EQ(parseIso("1899-12-29 06:00:00")->asDays(), -1.25);
    EXPECT_EQ(formatIso(parseIso("1899-12-29 06:00:00")->startOfDay()), "1899-12-29 00:00:00");
}

TEST(DateTime, ParsesWhatPeopleWrite)
{
    struct
    {
        const char* text;
        const char* iso; // null: no date
    } const cases[] = {
        {"29.02.04", "2004-02-29 00:00:00"},
        {"29.02.2003", nullptr},
        {"29.02.1900", nullptr},
        {"1.2.29", "2029-02-01 00:00:00"},
        {"1.2.30", "1930-02-01 00:00:00"},
        {"01.02.0099", nullptr},
        {"01/02/2003", "2003-02-01 00:00:00"},
        {"01-02-2003", "2003-02-01 00:00:00"},
        {"01.02/2003", nullptr},
        {" 01.02.03 4:05 ", "2003-02-01 04:05:00"},
        {"01.02.03  14:05:06", "2003-02-01 14:05:06"},
        {"01.02.03 24:00", nullptr},
        {"01.02.03 12", nullptr},
        {"01.02.03x", nullptr},
        {"01.02.203", nullptr},
        {"01.02.20034", nullptr},
        {"32.01.03", nullptr},
        {"01.13.03", nullptr},
        {"01.02.", nullptr},
        {"", nullptr},
    };
    for (const auto& c : cases) {
        const auto time = parseDate(c.text);
        EXPECT_EQ(time.has_value(), c.iso != nullptr) << c.text;
        EXPECT_EQ(time && c.iso ? formatIso(*time) : "", c.iso ? c.iso : "") << c.text;
    }
    EXPECT_EQ(formatIso(*parseIso("2003-02-01T04:05:59.5")), "2003-02-01 04:06:00");
    EXPECT_EQ(formatIso(*parseIso("2003-02-01")), "2003-02-01 00:00:00");
    for (const char* text : {"2003-02-30", "03-02-01", "2003-02-01x", "2003-02-01 04:05:06.", "2003-02-01 04:05:06x"})
        EXPECT_FALSE(parseIso(text)) << text;
}

TEST(DateTime, WritesGerman)
{
    const DateTime time = *parseIso("2004-03-01 07:08:09");
    EXPECT_EQ(formatDate(time), "01.03.04");
    EXPECT_EQ(formatLongDate(time), "01.03.2004");
    EXPECT_EQ(formatDateTimeOfDay(time), "01.03.04 07:08");
    EXPECT_EQ(formatDateSeconds(time), "01.03.04 07:08:09");
    EXPECT_EQ(asText(time), "01.03.2004 07:08:09");
    EXPECT_EQ(asText(time.startOfDay()), "01.03.2004");
}

TEST(Numbers, WriteGerman)
{
    EXPECT_EQ(formatInteger(1234567), "1.234.567");
    EXPECT_EQ(formatInteger(-1234), "-1.234");
    EXPECT_EQ(formatInteger(-999), "-999");
    EXPECT_EQ(formatInteger(INT64_MIN), "-9.223.372.036.854.775.808");
    EXPECT_EQ(formatComma(1234.5, 3), "1.234,500");
    EXPECT_EQ(formatComma(999.5, 0), "1.000");
    EXPECT_EQ(formatComma(2.675, 2), "2,68");
    EXPECT_EQ(formatComma(-0.125, 2), "-0,13");
    EXPECT_EQ(formatComma(-0.001, 2), "0,00");
    EXPECT_EQ(formatComma(1e18, 1), "1.000.000.000.000.000.000,0");
    EXPECT_EQ(formatSeconds(0.25), "0,3");
    EXPECT_EQ(formatSeconds(1234), "1234,0");
}

TEST(Numbers, ReadGerman)
{
    struct
    {
        const char* text;
        std::optional<double> number;
    } const cases[] = {
        {"1,5", 1.5},
        {"1.234,5", 1234.5},
        {" 7 ", 7},
        {"-0,25", -0.25},
        {"+3", 3},
        {",5", 0.5},
        {"5,", 5},
        {"1.234.567", 1234567},
        {"1E+20", 1e20},
        {"1,5e-3", 0.0015},
        {"1.5", std::nullopt},
        {"1234.567", std::nullopt},
        {"1.2345", std::nullopt},
        {".5", std::nullopt},
        {"", std::nullopt},
        {",", std::nullopt},
        {"-", std::nullopt},
        {"1,2,3", std::nullopt},
        {"7 mm", std::nullopt},
        {"0x10", std::nullopt},
        {"inf", std::nullopt},
        {"1e", std::nullopt},
        {"1e999", std::nullopt},
        {"--1", std::nullopt},
    };
    for (const auto& c : cases)
        EXPECT_EQ(parseNumber(c.text), c.number) << c.text;
    for (const double number : {0.1, -1.0 / 3, 1e20, 1.5e-9, 12345678.9})
        EXPECT_EQ(parseNumber(numberAsText(number)), number) << numberAsText(number);
    EXPECT_EQ(numberAsText(12345.5), "12345,5");
    EXPECT_EQ(numberAsText(5), "5");
}
