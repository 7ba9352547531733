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

constexpr std::int64_t dayNumber(int jahr, unsigned monat, unsigned tag)
{
    const std::chrono::sys_days day = std::chrono::year{jahr} / static_cast<int>(monat) / static_cast<int>(tag);
    return (day - firstDay).count();
}

constexpr auto smallestDay = static_cast<double>(dayNumber(100, 1, 1));
constexpr auto largestDay = static_cast<double>(dayNumber(9999, 12, 31));

std::int64_t dayOf(std::int64_t sekunden)
{
    return sekunden / secondsADay - (sekunden % secondsADay < 0 ? 1 : 0);
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
bool readTime(Reader& reader, Kalenderzeit& zeit)
{
    const auto stunde = reader.number(1, 2);
    if (!stunde || !reader.take(':'))
        return false;
    const auto minute = reader.number(2, 2);
    if (!minute)
        return false;
    zeit.stunde = *stunde;
    zeit.minute = *minute;
    if (!reader.take(':'))
        return true;
    const auto sekunde = reader.number(2, 2);
    zeit.sekunde = sekunde.value_or(0);
    return sekunde.has_value();
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

std::optional<Zeitpunkt> whenValid(const Kalenderzeit& zeit)
{
    return istGueltig(zeit) ? std::optional(Zeitpunkt::aus(zeit)) : std::nullopt;
}

} // namespace

Zeitpunkt Zeitpunkt::aus(const Kalenderzeit& zeit)
{
    const std::int64_t day = dayNumber(zeit.jahr, static_cast<unsigned>(zeit.monat), static_cast<unsigned>(zeit.tag));
    const int timeOfDay = zeit.stunde * 3600 + zeit.minute * 60 + zeit.sekunde;
    return {day * secondsADay + timeOfDay};
}

Zeitpunkt Zeitpunkt::ausTagen(double tage)
{
    if (!(tage >= smallestDay - 1))
        tage = std::isnan(tage) ? 0 : smallestDay;
    if (tage >= largestDay + 1)
        return {static_cast<std::int64_t>(largestDay + 1) * secondsADay - 1};
    double day = 0;
    const double timeOfDay = std::fabs(std::modf(tage, &day));
    return {static_cast<std::int64_t>(day) * secondsADay + std::llround(timeOfDay * secondsADay)};
}

Kalenderzeit Zeitpunkt::kalender() const
{
    const std::int64_t day = dayOf(sekunden);
    const auto rest = static_cast<int>(sekunden - day * secondsADay);
    const std::chrono::year_month_day date{firstDay + std::chrono::days{day}};
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            rest / 3600,
            rest / 60 % 60,
            rest % 60};
}

double Zeitpunkt::alsTage() const
{
    const std::int64_t day = dayOf(sekunden);
    const double timeOfDay = static_cast<double>(sekunden - day * secondsADay) / secondsADay;
    return static_cast<double>(day) + (day < 0 ? -timeOfDay : timeOfDay);
}

Zeitpunkt Zeitpunkt::tagesbeginn() const
{
    return {dayOf(sekunden) * secondsADay};
}

bool istGueltig(const Kalenderzeit& zeit)
{
    if (zeit.jahr < 100 || zeit.jahr > 9999 || zeit.monat < 1 || zeit.tag < 1)
        return false;
    const bool day = (std::chrono::year{zeit.jahr} / zeit.monat / zeit.tag).ok();
    return day && zeit.stunde >= 0 && zeit.stunde < 24 && zeit.minute >= 0 && zeit.minute < 60 && zeit.sekunde >= 0 &&
           zeit.sekunde < 60;
}

std::string formatDatum(Zeitpunkt zeit)
{
    const Kalenderzeit k = zeit.kalender();
    return fmt::format("{:02}.{:02}.{:02}", k.tag, k.monat, k.jahr % 100);
}

std::string formatDatumLang(Zeitpunkt zeit)
{
    const Kalenderzeit k = zeit.kalender();
    return fmt::format("{:02}.{:02}.{:04}", k.tag, k.monat, k.jahr);
}

std::string formatDatumUhrzeit(Zeitpunkt zeit)
{
    const Kalenderzeit k = zeit.kalender();
    return fmt::format("{} {:02}:{:02}", formatDatum(zeit), k.stunde, k.minute);
}

std::string formatDatumSekunden(Zeitpunkt zeit)
{
    return fmt::format("{}:{:02}", formatDatumUhrzeit(zeit), zeit.kalender().sekunde);
}

std::string alsText(Zeitpunkt zeit)
{
    if (zeit == zeit.tagesbeginn())
        return formatDatumLang(zeit);
    const Kalenderzeit k = zeit.kalender();
    return fmt::format("{} {:02}:{:02}:{:02}", formatDatumLang(zeit), k.stunde, k.minute, k.sekunde);
}

std::string formatIso(Zeitpunkt zeit)
{
    const Kalenderzeit k = zeit.kalender();
    return fmt::format("{:04}-{:02}-{:02} {:02}:{:02}:{:02}", k.jahr, k.monat, k.tag, k.stunde, k.minute, k.sekunde);
}

std::optional<Zeitpunkt> parseDatum(std::string_view text)
{
    Reader reader(trim(text));
    Kalenderzeit zeit;
    const auto tag = reader.number(1, 2);
    const char separator = reader.takeOneOf("./-");
    const auto monat = reader.number(1, 2);
    if (!tag || !separator || !monat || !reader.take(separator))
        return std::nullopt;
    const auto jahr = reader.number(2, 4);
    if (!jahr || reader.digitsOfNumber() == 3)
        return std::nullopt;
    zeit.tag = *tag;
    zeit.monat = *monat;
    zeit.jahr = reader.digitsOfNumber() == 2 ? vierstelligesJahr(*jahr) : *jahr;
    if (reader.take(' ')) {
        while (reader.take(' ')) {
        }
        if (!readTime(reader, zeit))
            return std::nullopt;
    }
    return reader.atEnd() ? whenValid(zeit) : std::nullopt;
}

std::optional<Zeitpunkt> parseIso(std::string_view text)
{
    Reader reader(trim(text));
    Kalenderzeit zeit;
    const auto jahr = reader.number(4, 4);
    const bool firstDash = reader.take('-');
    const auto monat = reader.number(2, 2);
    const bool secondDash = reader.take('-');
    const auto tag = reader.number(2, 2);
    if (!jahr || !firstDash || !monat || !secondDash || !tag)
        return std::nullopt;
    zeit.jahr = *jahr;
    zeit.monat = *monat;
    zeit.tag = *tag;
    if (reader.atEnd())
        return whenValid(zeit);
    bool roundUp = false;
    if (!reader.takeOneOf(" T") || !readTime(reader, zeit))
        return std::nullopt;
    if (!reader.atEnd() && !(reader.rest().front() == '.' && readFraction(reader, roundUp)))
        return std::nullopt;
    const auto result = whenValid(zeit);
    return result && roundUp ? result->plusSekunden(1) : result;
}

int vierstelligesJahr(int jahr)
{
    if (jahr < 0 || jahr > 99)
        return jahr;
    return jahr < 30 ? 2000 + jahr : 1900 + jahr;
}

} // namespace quelvarn
