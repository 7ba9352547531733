#pragma once

#include "database/column.h"
#include "database/sql/ast.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// A condition over the columns of a recordset, ready to narrow lists of rows.
class Auswahl
{
public:
    virtual ~Auswahl() = default;
    // Removes the rows that do not meet the condition; the others stay in their order. A comparison with Null is
    // never met, nor is its opposite.
    virtual void behalte(std::vector<Zeilennummer>& zeilen) = 0;
    // True when no row at all meets the condition, where that can be told without looking at the rows.
    virtual bool nirgends() { return false; }
};

using Spaltensuche = std::function<const Column&(std::string_view name)>;

// The columns must outlive the result and not change. A literal is taken as the type of its column; where that
// cannot be, the comparison is never met, nor is its opposite.
std::unique_ptr<Auswahl> baueAuswahl(const sql::Ausdruck& ausdruck, const Spaltensuche& spalten);

// Every column that the condition names, each once.
std::vector<std::string> genannteSpalten(const sql::Ausdruck& ausdruck);

} // namespace quelvarn
