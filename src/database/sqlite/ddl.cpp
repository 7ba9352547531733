#include "database/sqlite/ddl.h"

#include "base/collation.h"
#include "database/sql/renderer.h"

#include <array>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <utility>

namespace quelvarn::sqlite {
namespace {

const auto bezeichner = sql::Dialekt::bezeichner;

std::string_view deklaration(FeldTyp typ)
{
    switch (typ) {
    case FeldTyp::Ganzzahl:
        return "INTEGER";
    case FeldTyp::Gleitkomma:
        return "REAL";
    case FeldTyp::Datum:
        return "DATETIME";
    case FeldTyp::Text:
        break;
    }
    return "TEXT COLLATE QV";
}

} // namespace

std::string tabelleAnlegen(const Tabellenschema& tabelle)
{
    std::string spalten = fmt::format("{} INTEGER PRIMARY KEY AUTOINCREMENT", schluesselspalte);
    for (const Spalte& spalte : tabelle.spalten)
        spalten += fmt::format(", {} {}", bezeichner(spalte.name), deklaration(spalte.typ));
    return fmt::format("CREATE TABLE {} ({})", bezeichner(tabelle.name), spalten);
}

std::string indexAnlegen(const Tabellenschema& tabelle, const std::vector<IndexSpalte>& index)
{
    std::vector<std::string> spalten;
    for (const IndexSpalte& spalte : index)
        spalten.push_back(bezeichner(spalte.name) + (spalte.absteigend ? " DESC" : ""));
    return fmt::format("CREATE INDEX IF NOT EXISTS {} ON {} ({})", bezeichner(indexname(tabelle, index)),
                       bezeichner(tabelle.name), fmt::join(spalten, ", "));
}

std::string indexname(const Tabellenschema& tabelle, const std::vector<IndexSpalte>& index)
{
    return fmt::format("ix_{}_{}{}", tabelle.name, index.front().name, index.back().mitgefuehrt ? "_mit" : "");
}

FeldTyp feldTypAus(std::string_view deklaration)
{
    static constexpr std::array<std::pair<std::string_view, FeldTyp>, 12> teile{{
        {"char", FeldTyp::Text},
        {"text", FeldTyp::Text},
        {"date", FeldTyp::Datum},
        {"time", FeldTyp::Datum},
        {"int", FeldTyp::Ganzzahl},
        {"bool", FeldTyp::Ganzzahl},
        {"bit", FeldTyp::Ganzzahl},
        {"real", FeldTyp::Gleitkomma},
        {"floa", FeldTyp::Gleitkomma},
        {"doub", FeldTyp::Gleitkomma},
        {"num", FeldTyp::Gleitkomma},
        {"dec", FeldTyp::Gleitkomma},
    }};
    const std::string klein = toLower(deklaration);
    for (const auto& [teil, typ] : teile)
        if (klein.find(teil) != std::string::npos)
            return typ;
    return FeldTyp::Text;
}

} // namespace quelvarn::sqlite
