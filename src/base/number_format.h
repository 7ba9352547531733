#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quelvarn {

// German numbers in every locale: decimal comma, point as thousands mark.
std::string formatInteger(std::int64_t number);       // 1.234.567
std::string formatComma(double number, int decimals); // 1.234,500
std::string formatSeconds(double seconds);            // 30,0 (format "0.0")
// Shortest text that reads back as the same number, with a decimal comma and no thousands mark.
std::string numberAsText(double number);

// "1,5", "1.234,5", " 7 "; nothing when the text is no number.
std::optional<double> parseNumber(std::string_view text);
bool isNumber(std::string_view text);

} // namespace quelvarn
