#include "filter/fragments.h"

#include "base/date_time.h"
#include "base/number_format.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "database/sql/conditions.h"
#include "database/sql/parser.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>

namespace quelvarn {
namespace {

using sql::Datumsfolge;

constexpr int FEHLER_TYPEN = 13;
constexpr double GROESSTE_GANZZAHL = 1e15;

std::string Datumsfragment(std::string_view feld, std::string_view Datum, int code, Datumsfolge folge)
{
    const auto zeit = parseDatum(Datum);
    if (!zeit)
        throw Laufzeitfehler(FEHLER_TYPEN, "Filter", fmt::format("'{}' ist kein Datum.", Datum));
    const std::string datum = formatDatum(*zeit);
    const std::string tag = datum.substr(0, 2);
    const std::string monat = datum.substr(3, 2);
    const bool tagZuerst = folge == Datumsfolge::TagZuerst;
    const std::string tagImJahr =
        fmt::format("#{}/{}/{}", tagZuerst ? tag : monat, tagZuerst ? monat : tag, datum.substr(6, 2));

    std::string ab = fmt::format("{} >= {} 00:00:00#", feld, tagImJahr);
    std::string bis = fmt::format("{} <= {} 23:59:59#", feld, tagImJahr);
    switch (code % 10) {
    case 0:
        return ab;
    case 1:
        return ab + " AND " + bis;
    case 2:
        return bis;
    default:
        return {};
    }
}

std::int64_t ganzzahl(std::string_view Wert)
{
    const auto zahl = parseZahl(Wert);
    if (!zahl || std::abs(*zahl) > GROESSTE_GANZZAHL)
        throw Laufzeitfehler(FEHLER_TYPEN, "Filter", fmt::format("'{}' ist keine ganze Zahl.", Wert));
    return static_cast<std::int64_t>(std::nearbyint(*zahl));
}

std::string_view nameColumn(std::string_view Feldname)
{
    return Feldname == "Dateiname" || Feldname == "filename" ? Feldname : "DokuBez";
}

std::string doubled(std::string_view Wert)
{
    return replaceAll(Wert, "'", "''");
}

// The text of a comparison with a pattern, and its condition; nothing for "".
Schrittfragment textFragment(const std::string& text, std::string_view column, std::string_view pattern)
{
    return text.empty() ? Schrittfragment{} : Schrittfragment{text, text, valueCondition(column, pattern)};
}

Schrittfragment zahlfragment(const FilterSchritt& schritt)
{
    const std::string text = NumberFragment(schritt.Feldname, schritt.Wert);
    return {text, text, sql::equal(schritt.Feldname, ganzzahl(schritt.Wert))};
}

Schrittfragment datumsfragmente(const std::string& filterform, const std::string& sqlform)
{
    return {filterform, sqlform, sql::parseBedingung(filterform)};
}

sql::AusdruckZeiger limit(const std::string& column, sql::Vergleich comparison, double value)
{
    return std::make_unique<sql::Ausdruck>(sql::Ausdruck{sql::Bedingung{column, comparison, value}});
}

std::string mainValueColumn(std::size_t number)
{
    return fmt::format("Hauptwert_{}", static_cast<char>('a' + number));
}

} // namespace

std::string LikeFragment(std::string_view Feldname, std::string_view Wert)
{
    return fmt::format("{} Like '{}'", Feldname, doubled(Wert));
}

std::string NumberFragment(std::string_view Feldname, std::string_view Wert)
{
    return fmt::format("{} = {}", Feldname, ganzzahl(Wert));
}

std::string DateiFragment(std::string_view Feldname, std::string_view Wert)
{
    return NameLike(Feldname, doubled(Wert));
}

std::string DateiFragmentWennGefuellt(std::string_view Feldname, std::string_view Wert)
{
    return NameLikeNichtLeer(Feldname, doubled(Wert));
}

std::string ErstelltFilterFragment(std::string_view Datum, int code)
{
    return Datumsfragment("Erstellt", Datum, code, Datumsfolge::TagZuerst);
}

std::string ErstelltSqlFragment(std::string_view Datum, int code)
{
    return Datumsfragment("Erstellt", Datum, code, Datumsfolge::MonatZuerst);
}

std::string GeaendertFilterFragment(std::string_view Datum, int code)
{
    return Datumsfragment("Geaendert", Datum, code, Datumsfolge::TagZuerst);
}

std::string GeaendertSqlFragment(std::string_view Datum, int code)
{
    return Datumsfragment("Geaendert", Datum, code, Datumsfolge::MonatZuerst);
}

std::string HauptwertFragmente(const std::array<Hauptwertgrenzen, ANZAHL_HAUPTWERTE>& grenzen, bool hinterFilter)
{
    const auto number = [](Decimal value) { return replaceAll(value.text(), ",", "."); };
    std::string text;
    for (std::size_t i = 0; i < grenzen.size(); ++i) {
        if (!grenzen[i].gesetzt())
            continue;
        text += hinterFilter || !text.empty() ? " AND " : "";
        text += fmt::format("{0} >= {1} AND {0} <= {2}", mainValueColumn(i), number(grenzen[i].MinWert),
                            number(grenzen[i].MaxWert));
    }
    return text;
}

std::vector<sql::AusdruckZeiger> mainValueConditions(const std::array<Hauptwertgrenzen, ANZAHL_HAUPTWERTE>& bounds)
{
    std::vector<sql::AusdruckZeiger> conditions;
    for (std::size_t i = 0; i < bounds.size(); ++i) {
        if (!bounds[i].gesetzt())
            continue;
        conditions.push_back(
            limit(mainValueColumn(i), sql::Vergleich::GroesserGleich, bounds[i].MinWert.firstDouble()));
        conditions.push_back(limit(mainValueColumn(i), sql::Vergleich::Kleiner, bounds[i].MaxWert.behindDoubles()));
    }
    return conditions;
}

Schrittfragment schrittfragment(const FilterSchritt& schritt, int nummer)
{
    const std::string& wert = schritt.Wert;
    switch (schritt.code) {
    case CodeText:
        return strukturfragment(schritt);
    case CodeErstellt:
    case CodeErstellt + 1:
    case CodeErstellt + 2:
        return datumsfragmente(ErstelltFilterFragment(wert, schritt.code), ErstelltSqlFragment(wert, schritt.code));
    case CodeGeaendert:
    case CodeGeaendert + 1:
    case CodeGeaendert + 2:
        return datumsfragmente(GeaendertFilterFragment(wert, schritt.code), GeaendertSqlFragment(wert, schritt.code));
    case CodeZahl:
        return zahlfragment(schritt);
    case CodeDatei:
    case CodeDateiWennGefuellt:
        if (nummer > 0)
            return {};
        return textFragment(schritt.code == CodeDatei ? DateiFragment(schritt.Feldname, wert)
                                                      : DateiFragmentWennGefuellt(schritt.Feldname, wert),
                            nameColumn(schritt.Feldname), wert);
    default:
        return {};
    }
}

Schrittfragment strukturfragment(const FilterSchritt& schritt)
{
    if (schritt.Wert.empty())
        return {};
    return textFragment(LikeFragment(schritt.Feldname, schritt.Wert), schritt.Feldname, schritt.Wert);
}

sql::AusdruckZeiger valueCondition(std::string_view column, std::string_view value)
{
    if (value.find('*') == std::string_view::npos)
        return sql::equal(column, value);
    auto pattern = sql::like(column, value, Wildcards::Star);
    if (value.ends_with('*'))
        return pattern;
    std::vector<sql::AusdruckZeiger> either; // A star of the stored value is one, too.
    either.push_back(sql::equal(column, value));
    either.push_back(std::move(pattern));
    return sql::any(std::move(either));
}

sql::AusdruckZeiger filterCondition(std::string_view FilterString)
{
    sql::AusdruckZeiger condition = sql::parseBedingung(FilterString, Datumsfolge::MonatZuerst, Wildcards::Star);
    const auto asMeant = [](sql::AusdruckZeiger& part) {
        const auto* comparison = std::get_if<sql::Bedingung>(&part->inhalt);
        if (comparison && comparison->vergleich == sql::Vergleich::Like)
            part = valueCondition(comparison->spalte, alsText(comparison->wert));
    };
    if (!condition)
        return nullptr;
    if (auto* all = std::get_if<sql::Und>(&condition->inhalt))
        std::ranges::for_each(all->teile, asMeant);
    else
        asMeant(condition);
    return condition;
}

} // namespace quelvarn
