#include "session/ini_reader/ini_rows.h"

#include "base/runtime_error.h"

#include <array>
#include <fmt/format.h>
#include <vector>

namespace quelvarn {

namespace {

constexpr std::array<std::string_view, 5> FELDER{"Feld1", "Feld2", "Feld3", "Feld4", "Feld5"};

std::string auswahl(std::string_view spalten, std::string_view eigentuemer, std::string_view gruppe,
                    std::string_view schluessel)
{
    std::string sql =
        fmt::format("SELECT {} FROM Ini WHERE Feld1 = '{}' AND Feld2 = '{}'", spalten, eigentuemer, gruppe);
    if (!schluessel.empty())
        sql += fmt::format(" AND Feld3 = '{}'", schluessel);
    return sql;
}

} // namespace

Recordset IniZeilen::lese(std::string_view sql)
{
    Recordset zeilen;
    zeilen.Open(sql, verbindung_, CursorTyp::Statisch, SperrTyp::Optimistisch);
    return zeilen;
}

Recordset IniZeilen::zeilen(std::string_view eigentuemer, std::string_view gruppe, std::string_view schluessel)
{
    return lese(auswahl("*", eigentuemer, gruppe, schluessel));
}

Recordset IniZeilen::verschiedene(std::string_view spalten, std::string_view eigentuemer, std::string_view gruppe,
                                  std::string_view schluessel)
{
    Recordset zeilen;
    zeilen.Open(auswahl("DISTINCT " + std::string(spalten), eigentuemer, gruppe, schluessel), verbindung_);
    return zeilen;
}

Recordset IniZeilen::suchtexte(std::string_view anwender)
{
    return lese(auswahl("*", anwender, "Suchen/Filtern", {}) + " ORDER BY Feld3"); // "Text0", "Text1", ...
}

void IniZeilen::beginne()
{
    if (!transaktion_)
        transaktion_.emplace(verbindung_);
}

void IniZeilen::fuegeAn(std::initializer_list<std::string_view> felder)
{
    beginne();
    std::vector<sql::Zuweisung> werte;
    for (const std::string_view feld : felder)
        werte.push_back({std::string(FELDER.at(werte.size())), std::string(feld)});
    verbindung_.engine().fuegeEin("Ini", werte);
}

void IniZeilen::aendere(Recordset& zeile, std::string_view feld, std::string_view wert)
{
    if (zeile.Feld(feld) == Value(std::string(wert)))
        return;
    beginne();
    zeile.setzeFeld(feld, std::string(wert));
    zeile.Update();
}

void IniZeilen::loesche(Recordset& zeilen)
{
    if (zeilen.leer())
        return;
    beginne();
    for (zeilen.MoveFirst(); !zeilen.Eof();)
        zeilen.Delete(); // Moves to the next row.
}

void IniZeilen::schliesseAb()
{
    if (transaktion_)
        transaktion_->schliesseAb();
    transaktion_.reset();
}

std::string pflichttext(const Recordset& zeile, std::string_view feld)
{
    const Value wert = zeile.Feld(feld);
    if (istNull(wert))
        throw Laufzeitfehler(94, "Quelvarn", fmt::format("Unzulässiger Wert Null in '{}'.", feld));
    return alsText(wert);
}

std::string textOderLeer(const Recordset& zeile, std::string_view feld)
{
    return alsText(zeile.Feld(feld));
}

int zahlOderNull(const Recordset& zeile, std::string_view feld)
{
    const Value wert = zeile.Feld(feld);
    return istNumerisch(wert) ? static_cast<int>(alsGanzzahl(wert)) : 0;
}

} // namespace quelvarn
