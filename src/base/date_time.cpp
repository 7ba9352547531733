#include "base/date_time.h"

#include "base/text.h"

#include <array>
#include <chrono>
#include <cmath>
#include <fmt/format.h>

namespace quelvarn {
namespace {

constexpr std::int64_t secondsADay = 86400;
constexpr std::chrono::sys_days firstDay = std::chrono::year{1899} / 12 / 30;

constexpr std::int64_t dayNumber(int year, unsigned month, unsigned dayOfMonth)
{
    const std::chrono::sys_days day = std::chrono::year{year} / static_cast<int>(month) / static_cast<int>(dayOfMonth);
    return (day - firstDay).count();
}

constexpr auto smallestDay = static_cast<double>(dayNumber(100, 1, 1));
constexpr auto largestDay = static_cast<double>(dayNumber(9999, 12, 31));

std::int64_t dayOf(std::int64_t seconds)
{
    return seconds / secondsADay - (seconds % secondsADay < 0 ? 1 : 0);
}

// Reads a text from left to right.
class Reader
{
public:
    explicit Reader(std::string_view text) : text_(text) {}

    bool atEnd() const { return text_.empty(); }

    bool take(char character)
    {
        if (text_.empty() || text_.front() != character)
            return false;
        text_.remove_prefix(1);
        return true;
    }

    // One of the characters, or '\0'.
    char takeOneOf(std::string_view characters)
    {
        for (const char character : characters) {
            if (take(character))
                return character;
        }
        return '\0';
    }

    // Nothing unless there are `fewest` to `most` digits.
    std::optional<int> number(std::size_t fewest, std::size_t most)
    {
        digits_ = 0;
        int value = 0;
        while (digits_ < text_.size() && text_[digits_] >= '0' && text_[digits_] <= '9') {
            if (digits_ == most)
                return std::nullopt;
            value = value * 10 + (text_[digits_++] - '0');
        }
        text_.remove_prefix(digits_);
        return digits_ < fewest ? std::nullopt : std::optional(value);
    }

    std::size_t digitsOfNumber() const { return digits_; }
    std::string_view rest() const { return text_; }

private:
    std::string_view text_;
    std::size_t digits_ = 0;
};

// hh:mm or hh:mm:ss
bool readTime(Reader& reader, CalendarTime& time)
{
    const auto hour = reader.number(1, 2);
    if (!hour || !reader.take(':'))
        return false;
    const auto minute = reader.number(2, 2);
    if (!minute)
        return false;
    time.hour = *hour;
    time.minute = *minute;
    if (!reader.take(':'))
        return true;
    const auto second = reader.number(2, 2);
    time.second = second.value_or(0);
    return second.has_value();
}

// Half a second and more counts as a whole one. False when something else than digits follows the point.
bool readFraction(Reader& reader, bool& roundUp)
{
    if (!reader.take('.'))
        return true;
    const std::string_view digits = reader.rest();
    roundUp = !digits.empty() && digits.front() >= '5';
    return !digits.empty() && digits.find_first_not_of("0123456789") == std::string_view::npos;
}

std::optional<DateTime> whenValid(const CalendarTime& time)
{
    return isValid(time) ? std::optional(DateTime::from(time)) : std::nullopt;
}

} // namespace

DateTime DateTime::from(const CalendarTime& time)
{
    const std::int64_t day = dayNumber(time.year, static_cast<unsigned>(time.month), static_cast<unsigned>(time.day));
    const int timeOfDay = time.hour * 3600 + time.minute * 60 + time.second;
    return {day * secondsADay + timeOfDay};
}

DateTime DateTime::fromDays(double days)
{
    if (!(days >= smallestDay - 1))
        days = std::isnan(days) ? 0 : smallestDay;
    if (days >= largestDay + 1)
        return {static_cast<std::int64_t>(largestDay + 1) * secondsADay - 1};
    double day = 0;
    const double timeOfDay = std::fabs(std::modf(days, &day));
    return {static_cast<std::int64_t>(day) * secondsADay + std::llround(timeOfDay * secondsADay)};
}

CalendarTime DateTime::calendar() const
{
    const std::int64_t day = dayOf(seconds);
    const auto rest = static_cast<int>(seconds - day * secondsADay);
    const std::chrono::year_month_day date{firstDay + std::chrono::days{day}};
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            rest / 3600,
            rest / 60 % 60,
            rest % 60};
}

double DateTime::asDays() const
{
    const std::int64_t day = dayOf(seconds);
    const double timeOfDay = static_cast<double>(seconds - day * secondsADay) / secondsADay;
    return static_cast<double>(day) + (day < 0 ? -timeOfDay : timeOfDay);
}

DateTime DateTime::startOfDay() const
{
    return {dayOf(seconds) * secondsADay};
}

bool isValid(const CalendarTime& time)
{
    if (time.year < 100 || time.year > 9999 || time.month < 1 || time.day < 1)
        return false;
    const bool day = (std::chrono::year{time.year} / time.month / time.day).ok();
    return day && time.hour >= 0 && time.hour < 24 && time.minute >= 0 && time.minute < 60 && time.second >= 0 &&
           time.second < 60;
}

std::string formatDate(DateTime time)
{
    const CalendarTime k = time.calendar();
    return fmt::format("{:02}.{:02}.{:02}", k.day, k.month, k.year % 100);
}

std::string formatLongDate(DateTime time)
{
    const CalendarTime k = time.calendar();
    return fmt::format("{:02}.{:02}.{:04}", k.day, k.month, k.year);
}

std::string formatDateTimeOfDay(DateTime time)
{
    const CalendarTime k = time.calendar();
    return fmt::format("{} {:02}:{:02}", formatDate(time), k.hour, k.minute);
}

std::string formatDateSeconds(DateTime time)
{
    return fmt::format("{}:{:02}", formatDateTimeOfDay(time), time.calendar().second);
}

std::string asText(DateTime time)
{
    if (time == time.startOfDay())
        return formatLongDate(time);
    const CalendarTime k = time.calendar();
    return fmt::format("{} {:02}:{:02}:{:02}", formatLongDate(time), k.hour, k.minute, k.second);
}

std::string formatIso(DateTime time)
{
    const CalendarTime k = time.calendar();
    return fmt::format("{:04}-{:02}-{:02} {:02}:{:02}:{:02}", k.year, k.month, k.day, k.hour, k.minute, k.second);
}

std::optional<DateTime> parseDate(std::string_view text)
{
    Reader reader(trim(text));
    CalendarTime time;
    const auto day = reader.number(1, 2);
    const char separator = reader.takeOneOf("./-");
    const auto month = reader.number(1, 2);
    if (!day || !separator || !month || !reader.take(separator))
        return std::nullopt;
    const auto year = reader.number(2, 4);
    if (!year || reader.digitsOfNumber() == 3)
        return std::nullopt;
    time.day = *day;
    time.month = *month;
    time.year = reader.digitsOfNumber() == 2 ? fourDigitYear(*year) : *year;
    if (reader.take(' ')) {
        while (reader.take(' ')) {
        }
        if (!readTime(reader, time))
            return std::nullopt;
    }
    return reader.atEnd() ? whenValid(time) : std::nullopt;
}

std::optional<DateTime> parseIso(std::string_view text)
{
    Reader reader(trim(text));
    CalendarTime time;
    const auto year = reader.number(4, 4);
    const bool firstDash = reader.take('-');
    const auto month = reader.number(2, 2);
    const bool secondDash = reader.take('-');
    const auto day = reader.number(2, 2);
    if (!year || !firstDash || !month || !secondDash || !day)
        return std::nullopt;
    time.year = *year;
    time.month = *month;
    time.day = *day;
    if (reader.atEnd())
        return whenValid(time);
    bool roundUp = false;
    if (!reader.takeOneOf(" T") || !readTime(reader, time))
        return std::nullopt;
    if (!reader.atEnd() && !(reader.rest().front() == '.' && readFraction(reader, roundUp)))
        return std::nullopt;
    const auto result = whenValid(time);
    return result && roundUp ? result->plusSeconds(1) : result;
}

int fourDigitYear(int year)
{
    if (year < 0 || year > 99)
        return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

} // namespace quelvarn
