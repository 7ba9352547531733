#include "register/relations.h"

#include "base/collation.h"
#include "base/windows_path.h"
#include "database/connection.h"
#include "platform/dateien.h"
#include "register/document_record.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

namespace quelvarn {
namespace {

struct Gleich
{
    std::string_view spalte;
    std::string_view wert;
};

sql::AusdruckZeiger bedingung(const Gleich& gleich)
{
    return std::make_unique<sql::Ausdruck>(
        sql::Ausdruck{sql::Bedingung{std::string(gleich.spalte), sql::Vergleich::Gleich, std::string(gleich.wert)}});
}

// Trees instead of statement texts: a value with an apostrophe stays a value.
sql::Select auswahl(std::string_view tabelle, std::string_view spalte, std::initializer_list<Gleich> alle)
{
    sql::Select select;
    select.tabelle = tabelle;
    select.spalten = {std::string(spalte)};
    sql::Und und;
    for (const Gleich& gleich : alle)
        und.teile.push_back(bedingung(gleich));
    select.where = std::make_unique<sql::Ausdruck>(sql::Ausdruck{std::move(und)});
    return select;
}

std::unique_ptr<Zeilenleser> lese(Connection& verbindung, const sql::Select& select, std::size_t grenze = 0)
{
    return verbindung.engine().lese(select, MitSchluessel::Nein, grenze);
}

bool gibtEs(Connection& verbindung, std::string_view tabelle, std::string_view spalte,
            std::initializer_list<Gleich> alle)
{
    return lese(verbindung, auswahl(tabelle, spalte, alle), 1)->next();
}

// A document without a path is used nowhere.
bool gibtEsZumPfad(Connection& verbindung, std::string_view tabelle, std::string_view spalte, std::string_view pfad)
{
    return !pfad.empty() && gibtEs(verbindung, tabelle, spalte, {{spalte, pfad}});
}

std::vector<std::string> leseSpalte(Connection& verbindung, const sql::Select& select)
{
    std::vector<std::string> werte;
    const auto zeilen = lese(verbindung, select);
    while (zeilen->next())
        werte.emplace_back(zeilen->text(0));
    return werte;
}

std::string vorhandene(const Dateien& dateien, std::string pfad)
{
    return dateien.dateiVorhanden(pfad) ? std::move(pfad) : std::string();
}

} // namespace

Revisionsstand revisionsstand(Connection& verbindung, std::string_view tabelle, std::string_view DokuBez)
{
    if (DokuBez.empty())
        return {};
    sql::Select select = auswahl(tabelle, "RevBez", {{"DokuBez", DokuBez}});
    select.distinct = true;
    select.orderBy = {{"RevBez", false}};
    const std::vector<std::string> revisionen = leseSpalte(verbindung, select);
    if (revisionen.empty())
        return {};
    return {!equalText(revisionen.front(), revisionen.back()), revisionen.back()};
}

bool neuereRevision(const Revisionsstand& stand, const DokuRecord& record)
{
    return !record.DokuBez.empty() && !record.RevBez.empty() && !stand.letzte.empty() &&
           !equalText(stand.letzte, record.RevBez);
}

std::string EnthaltenInTIFFTabelle(Connection& verbindung, std::string_view Dateiname)
{
    if (Dateiname.empty())
        return {};
    const std::string stamm(Dateiname.substr(0, Dateiname.rfind('.')));
    for (const std::string& name : {mitEndung(Dateiname, "tif"), stamm + ".tif"}) {
        const auto zeile = lese(verbindung, auswahl("TIFFTabelle", "filename", {{"Dateiname", name}}), 1);
        if (zeile->next())
            return std::string(zeile->text(0));
    }
    return {};
}

std::string findTiff(Connection& verbindung, const Dateien& dateien, const DokuRecord& record)
{
    const std::string registriert = EnthaltenInTIFFTabelle(verbindung, record.Dateiname);
    return registriert.empty() ? vorhandene(dateien, mitEndung(record.filename, "tif")) : registriert;
}

std::string findPdf(const Dateien& dateien, const DokuRecord& record)
{
    return vorhandene(dateien, mitEndung(record.filename, "pdf"));
}

std::set<std::string> kennungen(Connection& verbindung, const std::vector<std::string>& namen)
{
    constexpr std::size_t JE_ABFRAGE = 100; // A longer condition is more than some engines take.
    std::set<std::string> gefunden;
    for (std::size_t i = 0; i < namen.size(); i += JE_ABFRAGE) {
        sql::Oder oder;
        for (std::size_t k = i; k < std::min(namen.size(), i + JE_ABFRAGE); ++k)
            oder.teile.push_back(bedingung({"Kennung", namen[k]}));
        sql::Select select;
        select.distinct = true;
        select.tabelle = "Adresstabelle";
        select.spalten = {"Kennung"};
        select.where = std::make_unique<sql::Ausdruck>(sql::Ausdruck{std::move(oder)});
        for (const std::string& kennung : leseSpalte(verbindung, select))
            gefunden.insert(sortKey(kennung));
    }
    return gefunden;
}

Benutzerzeilen benutzerzeilen(Connection& verbindung, std::string_view tabelleBenutzDef, const DokuRecord& record)
{
    sql::Select select = auswahl(tabelleBenutzDef, "Name", {{"DokuBez", record.DokuBez}, {"RevBez", record.RevBez}});
    select.distinct = true;
    const std::vector<std::string> namen = leseSpalte(verbindung, select);
    const std::set<std::string> bekannt = kennungen(verbindung, namen);
    Benutzerzeilen ergebnis;
    for (const std::string& name : namen)
        (bekannt.contains(sortKey(name)) ? ergebnis.versendet : ergebnis.eigenschaften) = true;
    return ergebnis;
}

bool hatZusatzdokumente(Connection& verbindung, std::string_view filename)
{
    return gibtEsZumPfad(verbindung, "VerbindungPartZusDoku", "Dokufilename", filename);
}

} // namespace quelvarn
