#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

std::string_view trim(std::string_view text);
std::string_view trimRightBlanks(std::string_view text);
std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);
std::vector<std::string> split(std::string_view text, char separator);
std::string join(const std::vector<std::string>& parts, std::string_view separator);
// Lines of a message box, joined with a line feed.
std::string lines(std::initializer_list<std::string_view> lines);
bool startsWithIgnoringCase(std::string_view text, std::string_view start);

// Sorts by the upper-case forms.
void SortiereTexte(std::vector<std::string>& texts);

// "Feld = 'Wert'": the value stands as it is.
std::string FeldGleichWert(std::string_view field, std::string_view value);
// "Dateiname Like '...'", "filename Like '...'", for any other field "DokuBez Like '...'".
std::string NameLike(std::string_view field, std::string_view text);
// The same, "" for an empty text.
std::string NameLikeNichtLeer(std::string_view field, std::string_view text);

} // namespace quelvarn
