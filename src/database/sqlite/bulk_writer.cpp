#include "database/sqlite/bulk_writer.h"

#include "database/sql/column_value.h"

#include <cassert>

namespace quelvarn::sqlite {

Massenschreiber::Massenschreiber(Engine& engine, Statement einfuegen, std::vector<Spalte> spalten)
    : einfuegen_(std::move(einfuegen)), spalten_(std::move(spalten)), transaktion_(engine)
{}

void Massenschreiber::zeile(std::span<const Value> werte)
{
    assert(werte.size() == spalten_.size());
    for (std::size_t i = 0; i < werte.size(); ++i) {
        const auto parameter = static_cast<int>(i) + 1;
        const auto* text = std::get_if<std::string>(&werte[i]);
        if (text && spalten_[i].typ == FeldTyp::Text)
            einfuegen_.bindeText(parameter, *text, Statement::Textdauer::UeberlebtSchritte);
        else
            einfuegen_.binde(parameter, sql::speicherwert(werte[i], spalten_[i].typ));
    }
    einfuegen_.step();
    einfuegen_.setzeZurueck();
}

void Massenschreiber::beende()
{
    transaktion_.schliesseAb();
}

} // namespace quelvarn::sqlite
