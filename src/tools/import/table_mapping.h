#pragma once

#include "database/schema.h"
#include "database/value.h"
#include "tools/import/reader_protocol.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn::tools {

constexpr std::size_t NICHT_DA = static_cast<std::size_t>(-1);

// How a table of the source becomes one of the register.
struct Tabellenabbildung
{
    Tabellenschema ziel;
    std::vector<std::size_t> quelle;        // For each column of the target: that of the source, or NICHT_DA.
    std::vector<std::size_t> nichtGenommen; // Columns of the source whose kind a register cannot hold.
    std::vector<std::string> zusaetzliche;  // Columns that the program does not know and keeps.
    std::vector<std::string> fehlende;      // Columns that the program knows and the source lacks.
};

// Columns go together by their names in any case. The address table keeps its shape: rows of name and value, or
// one row with many columns.
Tabellenabbildung bildeAb(const Quelltabelle& quelle, const Tabellenschema& vorgabe);

// Nothing when the tables are those of a register; otherwise the German sentence that says why not.
std::optional<std::string> findEinwand(const Katalog& katalog);

// The cell as a value of this type. Where it does not fit, Null, and `grund` says why.
Value alsWert(const Zelle& zelle, FeldTyp typ, std::string_view& grund);

} // namespace quelvarn::tools
