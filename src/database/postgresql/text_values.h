#pragma once

#include "database/value.h"

#include <optional>
#include <string>
#include <string_view>

namespace quelvarn::postgresql {

// What the server wrote, by the column's type; a text that does not fit it as it is.
Value ausServertext(std::string_view text, FeldTyp typ);
std::optional<std::int64_t> ganzzahlAus(std::string_view text);
std::optional<double> gleitkommaAus(std::string_view text);
// The server's type name.
FeldTyp feldTypAus(std::string_view typname);

} // namespace quelvarn::postgresql
