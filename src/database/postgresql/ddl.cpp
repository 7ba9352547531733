#include "database/postgresql/ddl.h"

#include "base/text.h"
#include "database/sql/renderer.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::postgresql {
namespace {

const auto bezeichner = sql::Dialekt::bezeichner;

// Texts in the plain order of bytes: their own order comes from qv_key.
std::string_view deklaration(FeldTyp typ)
{
    switch (typ) {
    case FeldTyp::Ganzzahl:
        return "bigint";
    case FeldTyp::Gleitkomma:
        return "double precision";
    case FeldTyp::Datum:
        return "timestamp(0)";
    case FeldTyp::Text:
        break;
    }
    return "text COLLATE \"C\"";
}

bool istText(const Tabellenschema& tabelle, const std::string& name)
{
    const auto spalte = std::ranges::find(tabelle.spalten, name, &Spalte::name);
    return spalte != tabelle.spalten.end() && spalte->typ == FeldTyp::Text;
}

} // namespace

std::string tabelleAnlegen(const Tabellenschema& tabelle)
{
    std::string spalten = fmt::format("{} bigint GENERATED ALWAYS AS IDENTITY PRIMARY KEY", schluesselspalte);
    for (const Spalte& spalte : tabelle.spalten)
        spalten += fmt::format(", {} {}", bezeichner(spalte.name), deklaration(spalte.typ));
    return fmt::format("CREATE TABLE {} ({})", bezeichner(tabelle.name), spalten);
}

std::string indexAnlegen(const Tabellenschema& tabelle, const std::vector<IndexSpalte>& index)
{
    std::vector<std::string> sortiert;
    std::vector<std::string> mitgefuehrt{std::string(schluesselspalte)};
    for (const IndexSpalte& spalte : index) {
        if (spalte.lang || spalte.mitgefuehrt)
            continue;
        const std::string name = bezeichner(spalte.name);
        const bool text = istText(tabelle, spalte.name);
        sortiert.push_back((text ? "qv_key(" + name + ")" : name) +
                           (spalte.absteigend ? " DESC NULLS LAST" : " ASC NULLS FIRST"));
        if (text)
            mitgefuehrt.push_back(name);
    }
    // Lists are read from an index of several columns without the table, so it holds the texts beside their keys.
    const std::string dazu = sortiert.size() > 1 ? " INCLUDE (" + join(mitgefuehrt, ", ") + ")" : "";
    return fmt::format("CREATE INDEX IF NOT EXISTS {} ON {} ({}){}", bezeichner(indexname(tabelle, index)),
                       bezeichner(tabelle.name), join(sortiert, ", "), dazu);
}

std::string indexname(const Tabellenschema& tabelle, const std::vector<IndexSpalte>& index)
{
    return fmt::format("ix_{}_{}", tabelle.name, index.front().name);
}

} // namespace quelvarn::postgresql
