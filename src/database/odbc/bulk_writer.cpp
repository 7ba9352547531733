#include "database/odbc/bulk_writer.h"

#include <cassert>

namespace quelvarn::odbc {

Massenschreiber::Massenschreiber(Engine& engine, std::string tabelle, std::vector<Spalte> spalten)
    : engine_(engine), transaktion_(engine)
{
    sql::Insert einfuegen{std::move(tabelle), {}};
    for (Spalte& spalte : spalten)
        einfuegen.werte.push_back({std::move(spalte.name), {}});
    einfuegen_ = std::move(einfuegen);
}

void Massenschreiber::zeile(std::span<const Value> werte)
{
    auto& ziel = std::get<sql::Insert>(einfuegen_).werte;
    assert(werte.size() == ziel.size());
    for (std::size_t i = 0; i < werte.size(); ++i)
        ziel[i].wert = werte[i];
    engine_.fuehreAus(einfuegen_);
}

void Massenschreiber::beende()
{
    transaktion_.schliesseAb();
}

} // namespace quelvarn::odbc
