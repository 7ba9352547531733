#include "filter/fragments.h"

#include "base/date_time.h"
#include "base/number_format.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "database/sql/access_text.h"
#include "database/sql/parser.h"
#include "database/sql/reader.h"

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

// The comparisons that AND joins.
std::vector<std::string> vergleiche(std::string_view ausdruck)
{
    const sql::AusdruckZeiger gelesen = sql::parseBedingung(ausdruck);
    if (!gelesen)
        return {};
    const auto* und = std::get_if<sql::Und>(&gelesen->inhalt);
    if (!und)
        return {sql::alsAccessText(*gelesen)};
    std::vector<std::string> texte;
    for (const auto& teil : und->teile)
        texte.push_back(sql::alsAccessText(*teil));
    return texte;
}

Schrittfragment einVergleich(const std::string& fragment, std::string_view feld, sql::Vergleich vergleich, Value wert)
{
    if (fragment.empty())
        return {};
    const sql::Ausdruck gemeint{sql::Bedingung{std::string(feld), vergleich, std::move(wert)}};
    return {fragment, fragment, {sql::alsAccessText(gemeint)}};
}

Schrittfragment dateifragment(const FilterSchritt& schritt, const std::string& fragment)
{
    const bool dateifeld = schritt.Feldname == "Dateiname" || schritt.Feldname == "filename";
    return einVergleich(fragment, dateifeld ? schritt.Feldname : "DokuBez", sql::Vergleich::Like, schritt.Wert);
}

Schrittfragment zahlfragment(const FilterSchritt& schritt)
{
    return einVergleich(NumberFragment(schritt.Feldname, schritt.Wert), schritt.Feldname, sql::Vergleich::Gleich,
                        ganzzahl(schritt.Wert));
}

Schrittfragment datumsfragmente(const std::string& filterform, const std::string& sqlform)
{
    return {filterform, sqlform, vergleiche(filterform)};
}

} // namespace

std::string LikeFragment(std::string_view Feldname, std::string_view Wert)
{
    return fmt::format("{} Like '{}'", Feldname, Wert);
}

std::string NumberFragment(std::string_view Feldname, std::string_view Wert)
{
    return fmt::format("{} = {}", Feldname, ganzzahl(Wert));
}

std::string DateiFragment(std::string_view Feldname, std::string_view Wert)
{
    return NameLike(Feldname, Wert);
}

std::string DateiFragmentWennGefuellt(std::string_view Feldname, std::string_view Wert)
{
    return NameLikeNichtLeer(Feldname, Wert);
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
    const auto zahl = [](double wert) { return replaceAll(zahlAlsText(wert), ",", "."); };
    std::string text;
    for (std::size_t i = 0; i < grenzen.size(); ++i) {
        if (!grenzen[i].gesetzt())
            continue;
        const char buchstabe = static_cast<char>('a' + i);
        text += hinterFilter || !text.empty() ? " AND " : "";
        text += fmt::format("Hauptwert_{0} >= {1} AND Hauptwert_{0} <= {2}", buchstabe, zahl(grenzen[i].MinWert),
                            zahl(grenzen[i].MaxWert));
    }
    return text;
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
        return nummer == 0 ? dateifragment(schritt, DateiFragment(schritt.Feldname, wert)) : Schrittfragment{};
    case CodeDateiWennGefuellt:
        return nummer == 0 ? dateifragment(schritt, DateiFragmentWennGefuellt(schritt.Feldname, wert))
                           : Schrittfragment{};
    default:
        return {};
    }
}

Schrittfragment strukturfragment(const FilterSchritt& schritt)
{
    if (schritt.Wert.empty())
        return {};
    return einVergleich(LikeFragment(schritt.Feldname, schritt.Wert), schritt.Feldname, sql::Vergleich::Like,
                        schritt.Wert);
}

void verlangeGemeintes(std::string_view ausdruck, const std::vector<std::string>& gemeint)
{
    if (vergleiche(ausdruck) != gemeint)
        throw Laufzeitfehler(
            sql::FEHLER_SYNTAX, "Filter",
            fmt::format("Ein Hochkomma in den Filterwerten macht den Ausdruck mehrdeutig: {}", ausdruck));
}

} // namespace quelvarn
