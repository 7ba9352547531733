#include "bench/relation_measures.h"

#include "bench/bare_sqlite.h"
#include "bench/sample_document.h"
#include "database/connection.h"
#include "database/new_database.h"
#include "database/recordset.h"
#include "documents/document_record.h"
#include "register/relation_kinds.h"
#include "register/relation_rows.h"

#include <fmt/format.h>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace quelvarn::bench {

namespace {

constexpr std::size_t LINKS_JE_TEIL = 5;
constexpr std::size_t TEILE_JE_BAUGRUPPE = 50;
constexpr std::size_t GROSSE_BAUGRUPPE = 2'000;
constexpr const char* GROSS = "Große Baugruppe";
constexpr int LAEUFE = 200;

// A part in one of the assemblies that hold it.
std::vector<Value> zeile(std::size_t teil, const std::string& baugruppe)
{
    return {baugruppe, std::string("A"), baugruppe + ".asm", "W:\\Konstruktion\\Baugruppen\\" + baugruppe + ".asm",
            Musterdokument(DOKUTYPEN[0], teil).pfad()};
}

// Link tables as they are for so many parts, in a file of their own beside the register.
void legeVerbindungenAn(const std::filesystem::path& datei, std::size_t teile)
{
    const auto engine = oeffneSqlite(datei, true);
    legeRegisterAn(*engine);
    const auto spalten = findTabelle("ZusBauPart")->spalten;
    const auto schreiber = engine->massenschreiber("ZusBauPart", spalten);
    for (std::size_t i = 0; i < teile * LINKS_JE_TEIL; ++i)
        schreiber->zeile(zeile(i * 7'368'787 % teile, fmt::format("BG-{:07}", i / TEILE_JE_BAUGRUPPE)));
    for (std::size_t i = 0; i < GROSSE_BAUGRUPPE; ++i)
        schreiber->zeile(zeile(i * 97 % teile, GROSS));
    schreiber->beende();
}

std::size_t anzahlTeile(BareSqlite& sqlite)
{
    return static_cast<std::size_t>(sqlite.zahl("SELECT count(*) FROM PartTabelle"));
}

std::filesystem::path verbindungenBereit(const std::filesystem::path& datei, std::size_t teile)
{
    std::filesystem::path verbindungen = datei;
    verbindungen += ".links";
    const auto soll = static_cast<std::int64_t>(teile * LINKS_JE_TEIL + GROSSE_BAUGRUPPE);
    if (!std::filesystem::exists(verbindungen) ||
        BareSqlite(verbindungen).zahl("SELECT count(*) FROM ZusBauPart") != soll) {
        std::filesystem::remove(verbindungen);
        legeVerbindungenAn(verbindungen, teile);
    }
    return verbindungen;
}

// All that the tree of a part asks of the link tables.
void frageBaum(Connection& verbindung, const std::string& pfad)
{
    DokuRecord teil;
    teil.DokuArt = 1;
    for (const InfoSeite seite : {InfoSeite::InBaugruppe, InfoSeite::InZeichnung})
        gibtEsVerwendung(verbindung, verwendungsartVon(seite), teil, pfad);
}

void messeListe(Messreihe& reihe, const char* name, double grenzeMs, const std::function<std::size_t()>& unsere,
                BareSqlite& sqlite, const std::function<std::string()>& sql)
{
    if (unsere() != sqlite.listeAuf(sql()))
        throw std::runtime_error(std::string("another number of rows: ") + name);
    const Arbeit liste{[&] { unsere(); }, [] {}, LAEUFE};
    reihe.begrenze(name, grenzeMs, liste);
    reihe.vergleiche(name, std::nullopt, liste, "the same SELECT", {[&] { sqlite.listeAuf(sql()); }, [] {}, LAEUFE});
}

} // namespace

void messeVerwendung(Messreihe& reihe, const std::filesystem::path& datei)
{
    BareSqlite register_(datei);
    const std::size_t teile = anzahlTeile(register_);
    const std::filesystem::path links = verbindungenBereit(datei, teile);
    Connection verbindung;
    verbindung.Open(links);
    BareSqlite sqlite(legeSchlichteKopieBereit(
        links, "ZusBauPart",
        "CREATE INDEX Teile ON ZusBauPart(Part); CREATE INDEX Baugruppen ON ZusBauPart(AssembDokuBez, AssembRevBez);"));
    std::size_t nummer = 0;
    const auto naechsterPfad = [&] {
        nummer = (nummer + 314'159) % teile;
        return Musterdokument(DOKUTYPEN[0], nummer).pfad();
    };
    reihe.begrenze("link tables: questions of a row's tree", 2,
                   {[&] { frageBaum(verbindung, naechsterPfad()); }, [] {}, LAEUFE});

    DokuRecord teil;
    teil.DokuArt = 1;
    const std::string pfad = naechsterPfad();
    messeListe(
        reihe, "link tables: a part in assemblies, listed", 5,
        [&] {
            return verwendungszeilen(verbindung, verwendungsartVon(InfoSeite::InBaugruppe), teil, pfad).RecordCount();
        },
        sqlite,
        [&] {
            return "SELECT DISTINCT AssembDokuBez, AssembRevBez, AssembDateiname, Assembfilename FROM ZusBauPart "
                   "WHERE Part = '" +
                   pfad + "'";
        });
    DokuRecord baugruppe;
    baugruppe.DokuBez = GROSS;
    baugruppe.RevBez = "A";
    messeListe(
        reihe, "link tables: 2,000 components, listed", 50,
        [&] {
            return verwendungszeilen(verbindung, verwendungsartVon(InfoSeite::BestehtAus), baugruppe, "").RecordCount();
        },
        sqlite,
        [] {
            return fmt::format(
                "SELECT DISTINCT 1, Part FROM ZusBauPart WHERE AssembDokuBez = '{}' AND AssembRevBez = 'A'", GROSS);
        });
}

} // namespace quelvarn::bench
