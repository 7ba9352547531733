#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quelvarn {

// German numbers in every locale: decimal comma, point as thousands mark.
std::string formatGanzzahl(std::int64_t zahl);              // 1.234.567
std::string formatKomma(double zahl, int nachkommastellen); // 1.234,500
std::string formatSekunden(double sekunden);                // 30,0 (format "0.0")
// Shortest text that reads back as the same number, with a decimal comma and no thousands mark.
std::string zahlAlsText(double zahl);

// "1,5", "1.234,5", " 7 "; nothing when the text is no number.
std::optional<double> parseZahl(std::string_view text);
bool istZahl(std::string_view text);

} // namespace quelvarn
