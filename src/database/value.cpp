#include "database/value.h"

#include "base/number_format.h"

#include <cmath>
#include <limits>

namespace quelvarn {
namespace {

// Dates that the database can hold: the years 100 to 9999, in days.
constexpr double ersterTag = -657434;
constexpr double letzterTag = 2958466;

std::int64_t gerundet(double zahl)
{
    constexpr double grenze = 9.2e18;
    if (std::isnan(zahl))
        return 0;
    if (std::abs(zahl) > grenze)
        return zahl < 0 ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
    return std::llrint(zahl); // Halves go to the even neighbour.
}

std::optional<Zeitpunkt> datumAusTagen(double tage)
{
    if (tage >= ersterTag && tage < letzterTag)
        return Zeitpunkt::ausTagen(tage);
    return std::nullopt;
}

std::optional<Zeitpunkt> findDatum(const Value& wert)
{
    if (const auto* zeit = std::get_if<Zeitpunkt>(&wert))
        return *zeit;
    if (const auto* ganz = std::get_if<std::int64_t>(&wert))
        return datumAusTagen(static_cast<double>(*ganz));
    if (const auto* zahl = std::get_if<double>(&wert))
        return datumAusTagen(*zahl);
    if (const auto* text = std::get_if<std::string>(&wert)) {
        const auto deutsch = parseDatum(*text);
        return deutsch ? deutsch : parseIso(*text);
    }
    return std::nullopt;
}

} // namespace

std::string alsText(const Value& wert)
{
    if (const auto* text = std::get_if<std::string>(&wert))
        return *text;
    if (const auto* ganz = std::get_if<std::int64_t>(&wert))
        return std::to_string(*ganz);
    if (const auto* zahl = std::get_if<double>(&wert))
        return zahlAlsText(*zahl);
    if (const auto* zeit = std::get_if<Zeitpunkt>(&wert))
        return alsText(*zeit);
    return {};
}

double alsZahl(const Value& wert)
{
    if (const auto* ganz = std::get_if<std::int64_t>(&wert))
        return static_cast<double>(*ganz);
    if (const auto* zahl = std::get_if<double>(&wert))
        return *zahl;
    if (const auto* text = std::get_if<std::string>(&wert))
        return parseZahl(*text).value_or(0);
    if (const auto* zeit = std::get_if<Zeitpunkt>(&wert))
        return zeit->alsTage();
    return 0;
}

std::int64_t alsGanzzahl(const Value& wert)
{
    if (const auto* ganz = std::get_if<std::int64_t>(&wert))
        return *ganz;
    return gerundet(alsZahl(wert));
}

std::optional<std::int64_t> wholeNumber(const Value& wert, std::int64_t lowest, std::int64_t highest)
{
    const std::int64_t zahl = alsGanzzahl(wert);
    return istNumerisch(wert) && zahl >= lowest && zahl <= highest ? std::optional(zahl) : std::nullopt;
}

bool istNumerisch(const Value& wert)
{
    if (const auto* text = std::get_if<std::string>(&wert))
        return istZahl(*text);
    return std::holds_alternative<std::int64_t>(wert) || std::holds_alternative<double>(wert);
}

Zeitpunkt alsDatum(const Value& wert)
{
    return findDatum(wert).value_or(Zeitpunkt{});
}

} // namespace quelvarn
