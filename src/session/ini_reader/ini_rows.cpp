#include "session/ini_reader/ini_rows.h"

#include "base/collation.h"
#include "base/runtime_error.h"
#include "database/sql/conditions.h"

#include <array>
#include <fmt/format.h>
#include <limits>
#include <utility>
#include <vector>

namespace quelvarn {

namespace {

constexpr std::array<std::string_view, 5> FELDER{"Feld1", "Feld2", "Feld3", "Feld4", "Feld5"};

} // namespace

sql::AusdruckZeiger iniRows(std::string_view owner, std::string_view group, std::string_view key)
{
    return sql::all(sql::equal("Feld1", owner), sql::equal("Feld2", group),
                    key.empty() ? nullptr : sql::equal("Feld3", key));
}

Recordset IniZeilen::lese(sql::Select select)
{
    Recordset zeilen;
    zeilen.Open(std::move(select), verbindung_, CursorTyp::Statisch, SperrTyp::Optimistisch);
    return zeilen;
}

Recordset IniZeilen::zeilen(std::string_view eigentuemer, std::string_view gruppe, std::string_view schluessel)
{
    return lese(sql::Query("Ini").where(iniRows(eigentuemer, gruppe, schluessel)));
}

Recordset IniZeilen::verschiedene(std::initializer_list<std::string_view> spalten, std::string_view eigentuemer,
                                  std::string_view gruppe, std::string_view schluessel)
{
    Recordset zeilen;
    zeilen.Open(sql::Query("Ini").columns(spalten).distinct().where(iniRows(eigentuemer, gruppe, schluessel)),
                verbindung_);
    return zeilen;
}

Recordset IniZeilen::activeQuelvarn(std::string_view user)
{
    std::vector<sql::AusdruckZeiger> switches;
    switches.push_back(sql::equal("Feld3", "0"));
    switches.push_back(sql::equal("Feld3", "1"));
    return lese(sql::Query("Ini").where(sql::all(iniRows(user, "ActiveQuelvarn"), sql::any(std::move(switches)))));
}

Recordset IniZeilen::suchtexte(std::string_view anwender)
{
    return lese(sql::Query("Ini").where(iniRows(anwender, "Suchen/Filtern")).sortedBy("Feld3")); // "Text0", ...
}

bool IniZeilen::beginne()
{
    wantsToWrite_ = true;
    if (!lookOnly_ && !transaktion_)
        transaktion_.emplace(verbindung_);
    return !lookOnly_;
}

void IniZeilen::lookOnly()
{
    lookOnly_ = true;
    wantsToWrite_ = false;
}

void IniZeilen::writeAlone()
{
    lookOnly_ = false;
    transaktion_.emplace(verbindung_);
    verbindung_.engine().lockForWriting("Ini");
}

void IniZeilen::fuegeAn(std::initializer_list<std::string_view> felder)
{
    if (!beginne())
        return;
    std::vector<sql::Zuweisung> werte;
    for (const std::string_view feld : felder)
        werte.push_back({std::string(FELDER.at(werte.size())), std::string(feld)});
    verbindung_.engine().fuegeEin("Ini", werte);
}

void IniZeilen::aendere(Recordset& zeile, std::string_view feld, std::string_view wert)
{
    if (zeile.Feld(feld) == Value(std::string(wert)) || !beginne())
        return;
    zeile.setzeFeld(feld, std::string(wert));
    zeile.Update();
}

void IniZeilen::aendereAlle(Recordset& zeilen, std::string_view feld, std::string_view wert)
{
    for (; !zeilen.Eof(); zeilen.MoveNext())
        aendere(zeilen, feld, wert);
}

void IniZeilen::loesche(Recordset& zeilen)
{
    if (zeilen.leer() || !beginne())
        return;
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

std::optional<int> findNumber(const Recordset& zeile, std::string_view feld)
{
    using Limits = std::numeric_limits<std::int16_t>;
    const auto zahl = wholeNumber(zeile.Feld(feld), Limits::min(), Limits::max());
    return zahl ? std::optional(static_cast<int>(*zahl)) : std::nullopt;
}

std::string searchTextName(std::size_t number)
{
    return fmt::format("Text{}", number);
}

std::optional<std::size_t> searchTextKey(std::string_view name)
{
    for (std::size_t number = 0; number < ANZAHL_SUCHTEXTE; ++number)
        if (equalText(name, searchTextName(number)))
            return number;
    return std::nullopt;
}

int zahlOderNull(const Recordset& zeile, std::string_view feld)
{
    return findNumber(zeile, feld).value_or(0);
}

} // namespace quelvarn
