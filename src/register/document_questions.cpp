#include "register/document_questions.h"

#include "base/collation.h"
#include "base/windows_path.h"
#include "database/connection.h"
#include "database/sql/conditions.h"
#include "documents/document_record.h"
#include "platform/files.h"

#include <set>
#include <utility>
#include <vector>

namespace quelvarn {
namespace {

std::unique_ptr<Zeilenleser> lese(Connection& verbindung, const sql::Select& select, std::size_t grenze = 0)
{
    return verbindung.engine().lese(select, MitSchluessel::Nein, grenze);
}

// A document without a path is used nowhere.
bool gibtEsZumPfad(Connection& verbindung, std::string_view tabelle, std::string_view spalte, std::string_view pfad)
{
    return !pfad.empty() && rowExists(verbindung, tabelle, spalte, sql::equal(spalte, pfad));
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

bool rowExists(Connection& verbindung, std::string_view tabelle, std::string_view spalte, sql::AusdruckZeiger condition)
{
    return lese(verbindung, sql::Query(tabelle).columns({spalte}).where(std::move(condition)), 1)->next();
}

Revisionsstand revisionsstand(Connection& verbindung, std::string_view tabelle, std::string_view DokuBez)
{
    if (DokuBez.empty())
        return {};
    const std::vector<std::string> revisionen = leseSpalte(
        verbindung,
        sql::Query(tabelle).columns({"RevBez"}).distinct().where(sql::equal("DokuBez", DokuBez)).sortedBy("RevBez"));
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
    for (const std::string& name : {stamm + "tif", stamm + ".tif"}) { // Some offices name them without a point.
        const auto zeile = lese(
            verbindung,
            sql::Query("TIFFTabelle").columns({"filename"}).where(sql::equal("Dateiname", name)).sortedBy("filename"),
            1);
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
    std::vector<sql::AusdruckZeiger> gefragte;
    for (const std::string& name : namen)
        gefragte.push_back(sql::equal("Kennung", name));
    std::set<std::string> gefunden;
    for (sql::AusdruckZeiger& einige : sql::chunks(std::move(gefragte))) {
        const sql::Select select = sql::Query("Adresstabelle").columns({"Kennung"}).distinct().where(std::move(einige));
        for (const std::string& kennung : leseSpalte(verbindung, select))
            gefunden.insert(sortKey(kennung));
    }
    return gefunden;
}

Benutzerzeilen benutzerzeilen(Connection& verbindung, std::string_view tabelleBenutzDef, const DokuRecord& record)
{
    const std::vector<std::string> namen = leseSpalte(
        verbindung, sql::Query(tabelleBenutzDef)
                        .columns({"Name"})
                        .distinct()
                        .where(sql::all(sql::equal("DokuBez", record.DokuBez), sql::equal("RevBez", record.RevBez))));
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
