#pragma once

#include "database/filter_evaluator.h"

namespace quelvarn {

// `column op literal` over one column.
std::unique_ptr<Auswahl> baueVergleich(const Column& spalte, const sql::Bedingung& bedingung);
std::unique_ptr<Auswahl> baueNullpruefung(const Column& spalte, bool verneint);
// The comparison that is met by the values, Null apart, which do not meet this one.
sql::Vergleich gegenteil(sql::Vergleich vergleich);

} // namespace quelvarn
