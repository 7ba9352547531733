#pragma once

#include "database/schema.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::sqlite {

// The hidden key. A number is never given twice, so a deleted row's key finds no other row.
inline constexpr std::string_view schluesselspalte = "qv_id";

std::string tabelleAnlegen(const Tabellenschema& tabelle);
std::string indexAnlegen(const Tabellenschema& tabelle, const std::vector<IndexSpalte>& index);
std::string indexname(const Tabellenschema& tabelle, const std::vector<IndexSpalte>& index);
// What a column's declaration means to the program; foreign declarations too.
FeldTyp feldTypAus(std::string_view deklaration);

} // namespace quelvarn::sqlite
