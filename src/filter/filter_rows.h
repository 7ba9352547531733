#pragma once

#include "filter/filter_state.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quelvarn {

// The filled steps, also when one too many was refused.
std::span<const FilterStep> filledSteps(const TypeFilter& state);
// FilterWerteTabelle: a row for each filled step, then one for each additional value. A row is only a view: what is
// shown is what filters.
std::vector<FilterRow> filterRows(const TypeFilter& state);
// Takes an edited value of a row into its step. False, and nothing changes, where it is no value for this step: an
// empty text, or one that is no date where a date stands.
bool setRowValue(TypeFilter& state, std::size_t row, std::string_view text);

// Of one column only the value chosen last counts; it keeps its place.
void setAdditionalValue(std::vector<AdditionalValue>& values, AdditionalValue value);

// "" where none is chosen of this column.
std::string additionalValue(const TypeFilter& state, std::size_t column);

// What stands in front of a date, by the operator of a step.
inline constexpr std::array<std::string_view, 3> OPERATORS{">= ", "= ", "<= "};
// The operator in front of a text and what follows it; no operator where there is none.
std::pair<std::optional<int>, std::string_view> splitOperator(std::string_view text);

} // namespace quelvarn
