#include "documents/document_record.h"

#include "database/document_types.h"
#include "database/recordset.h"
#include "session/session_state.h"

#include <algorithm>
#include <limits>

namespace quelvarn {
namespace {

constexpr std::string_view GROSSE_BUCHSTABEN = "ABCDEFG";
constexpr std::string_view KLEINE_BUCHSTABEN = "abcdefg";

std::string feldname(std::string_view stamm, char buchstabe)
{
    return std::string(stamm) + buchstabe;
}

void leseTexte(const Recordset& zeile, DokuRecord& record)
{
    record.DokuBez = zeile.Text("DokuBez");
    record.RevBez = zeile.Text("RevBez");
    record.Dateiname = zeile.Text("Dateiname");
    record.filename = zeile.Text("filename");
    record.Projekt = zeile.Text("Projekt");
    record.Material = zeile.Text("Material");
    record.Titel = zeile.Text("Titel");
    record.Thema = zeile.Text("Thema");
    record.Autor = zeile.Text("Autor");
    record.Manager = zeile.Text("Manager");
    record.Firma = zeile.Text("Firma");
    record.Kategorie = zeile.Text("Kategorie");
    record.Stichwoerter = zeile.Text("Stichwoerter");
    record.Kommentar = zeile.Text("Kommentar");
    record.Bearbeiter = zeile.Text("Bearbeiter");
    record.Gespeichert = zeile.Text("Gespeichert");
}

void leseMerkmale(const Recordset& zeile, DokuRecord& record)
{
    for (std::size_t i = 0; i < record.Hauptmerkmal.size(); ++i) {
        record.Hauptmerkmal[i] = zeile.Text(feldname("Hauptmerkmal_", GROSSE_BUCHSTABEN[i]));
        record.Hauptwert[i] = alsZahl(zeile.Feld(feldname("Hauptwert_", KLEINE_BUCHSTABEN[i])));
        record.Alias[i] = zeile.Text(feldname("Alias_", KLEINE_BUCHSTABEN[i]));
    }
}

} // namespace

AktuellesDokument DokuRecord::alsAktDoku(int typ) const
{
    return {typ, DokuBez, RevBez, Dateiname, Status, filename, Erstellt, Geaendert, Autor, Bearbeiter};
}

DokuRecord leseDokuRecord(const Recordset& zeile, const DokuTyp& typ)
{
    DokuRecord record;
    record.DokuArt = typ.dokuArt;
    leseTexte(zeile, record);
    using Limits = std::numeric_limits<int>; // A number beyond them is no status either.
    record.Status =
        static_cast<int>(std::clamp<std::int64_t>(alsGanzzahl(zeile.Feld("Status")), Limits::min(), Limits::max()));
    record.Erstellt = alsDatum(zeile.Feld("Erstellt"));
    record.Geaendert = alsDatum(zeile.Feld("Geaendert"));
    leseMerkmale(zeile, record);
    if (typ.schluessel == "Draft" && zeile.hatFeld("F_05_leer")) // Older databases lack the column.
        record.F_05_leer = zeile.Text("F_05_leer");
    return record;
}

} // namespace quelvarn
