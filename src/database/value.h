#pragma once

#include "base/date_time.h"

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace quelvarn {

enum class FeldTyp { Text, Ganzzahl, Gleitkomma, Datum };

// One cell. Null and the empty text are two things.
using Value = std::variant<std::monostate, std::int64_t, double, std::string, Zeitpunkt>;

inline bool istNull(const Value& wert)
{
    return std::holds_alternative<std::monostate>(wert);
}

// As the database turns a value into text: German decimal comma and date; Null gives "".
std::string alsText(const Value& wert);
// Null and texts that are no number give 0.
double alsZahl(const Value& wert);
std::int64_t alsGanzzahl(const Value& wert);
// A number in this range, after rounding; nothing for every other and for what is no number.
std::optional<std::int64_t> wholeNumber(const Value& wert, std::int64_t lowest, std::int64_t highest);
// True for numbers and for texts that read as one.
bool istNumerisch(const Value& wert);
// Null and what is no date give day 0.
Zeitpunkt alsDatum(const Value& wert);

} // namespace quelvarn
