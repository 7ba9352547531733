#pragma once

#include "base/date_time.h"

#include <optional>
#include <string_view>

namespace quelvarn {

class Connection;

// The WriteDB stamps by which other copies of the program learn that a table changed. The keys are those of
// DocumentType::stamp. An installation with fewer than five WriteDB rows (the interval row counts) keeps none.

// Nothing when there is no such stamp; day 0 when the row holds no date.
std::optional<DateTime> readStamp(Connection& connection, std::string_view key);
// Sets the stamp to one minute after `now`, as a table just read counts as younger by that much.
void setStamp(Connection& connection, std::string_view key, DateTime now);

} // namespace quelvarn
