#pragma once

#include "database/schema.h"

#include <string>
#include <vector>

namespace quelvarn::postgresql {

// The hidden key. A number is never given twice, so a deleted row's key finds no other row.
inline constexpr std::string_view schluesselspalte = "qv_id";

std::string tabelleAnlegen(const Tabellenschema& tabelle);
std::string indexAnlegen(const Tabellenschema& tabelle, const std::vector<IndexSpalte>& index);
std::string indexname(const Tabellenschema& tabelle, const std::vector<IndexSpalte>& index);

} // namespace quelvarn::postgresql
