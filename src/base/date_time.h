#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quelvarn {

struct CalendarTime
{
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

// A date with time, without a zone: whole seconds since 30.12.1899, the day 0 of the database.
struct DateTime
{
    std::int64_t seconds = 0;

    static DateTime from(const CalendarTime& time);
    // The database's own number: days, the fraction is the time of day and counts forward on negative days too.
    static DateTime fromDays(double days);

    CalendarTime calendar() const;
    double asDays() const;
    DateTime plusSeconds(std::int64_t count) const { return {seconds + count}; }
    DateTime plusDays(std::int64_t count) const { return {seconds + count * 86400}; }
    // Midnight of the same day.
    DateTime startOfDay() const;

    auto operator<=>(const DateTime&) const = default;
};

// False for a day that the calendar lacks.
bool isValid(const CalendarTime& time);

// German formats, in every locale.
std::string formatDate(DateTime time);          // dd.mm.yy
std::string formatLongDate(DateTime time);      // dd.mm.yyyy
std::string formatDateTimeOfDay(DateTime time); // dd.mm.yy hh:mm
std::string formatDateSeconds(DateTime time);   // dd.mm.yy hh:mm:ss
// As the database turns a date into text: dd.mm.yyyy hh:mm:ss, without the time at midnight.
std::string asText(DateTime time);
std::string formatIso(DateTime time); // YYYY-MM-DD HH:MM:SS

// dd.mm.yy or dd.mm.yyyy, with or without a time, also "/" or "-" between; nothing when it is no date.
// Two-digit years 00 to 29 are 2000 to 2029, the others 1930 to 1999.
std::optional<DateTime> parseDate(std::string_view text);
std::optional<DateTime> parseIso(std::string_view text);
int fourDigitYear(int year);

} // namespace quelvarn
