#pragma once

#include "database/schema.h"
#include "database/sql/ast.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quelvarn {

// Numbers of faults, as programs of the office know them.
constexpr int FEHLER_ALLGEMEIN = -2147467259;
constexpr int FEHLER_TABELLE_FEHLT = -2147217865;
constexpr int FEHLER_ANWEISUNG = -2147217900;

// The tables of one connection, each read from the database when first asked for.
class Tabellenkatalog
{
public:
    using Leser = std::function<std::optional<Tabellenschema>(std::string_view)>;

    explicit Tabellenkatalog(Leser leser);

    // Valid until vergiss(). A missing table is asked for anew each time: another program may have made it.
    const Tabellenschema* find(std::string_view name);
    // Throws Laufzeitfehler when there is no such table.
    const Tabellenschema& tabelleOf(std::string_view name, std::string_view engine);
    void vergiss();

private:
    Leser leser_;
    std::unordered_map<std::string, Tabellenschema> tabellen_; // By the folded name.
};

// The stored columns of these names. Throws Laufzeitfehler when the table lacks one.
std::vector<Spalte> spaltenOf(const Tabellenschema& tabelle, std::span<const Spalte> gesuchte);
// Where an INSERT, UPDATE or DELETE writes.
const std::string& zieltabelle(const sql::Anweisung& anweisung);

} // namespace quelvarn
