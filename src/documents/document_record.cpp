#include "documents/document_record.h"

#include "database/document_types.h"
#include "database/recordset.h"
#include "database/recordset_columns.h"
#include "session/session_state.h"

#include <algorithm>
#include <limits>

namespace quelvarn {
namespace {

constexpr std::string_view LARGE_LETTERS = "ABCDEFG";
constexpr std::string_view SMALL_LETTERS = "abcdefg";

std::string fieldName(std::string_view stem, char letter)
{
    return std::string(stem) + letter;
}

void readTexts(const Recordset& row, DokuRecord& record)
{
    record.DokuBez = row.Text("DokuBez");
    record.RevBez = row.Text("RevBez");
    record.Dateiname = row.Text("Dateiname");
    record.filename = row.Text("filename");
    record.Projekt = row.Text("Projekt");
    record.Material = row.Text("Material");
    record.Titel = row.Text("Titel");
    record.Thema = row.Text("Thema");
    record.Autor = row.Text("Autor");
    record.Manager = row.Text("Manager");
    record.Firma = row.Text("Firma");
    record.Kategorie = row.Text("Kategorie");
    record.Stichwoerter = row.Text("Stichwoerter");
    record.Kommentar = row.Text("Kommentar");
    record.Bearbeiter = row.Text("Bearbeiter");
    record.Gespeichert = row.Text("Gespeichert");
}

void readFeatures(const Recordset& row, DokuRecord& record)
{
    for (std::size_t i = 0; i < record.StructureFeature.size(); ++i) {
        record.StructureFeature[i] = row.Text(fieldName("Hauptmerkmal_", LARGE_LETTERS[i]));
        record.Hauptwert[i] = asNumber(row.field(fieldName("Hauptwert_", SMALL_LETTERS[i])));
        record.Alias[i] = row.Text(fieldName("Alias_", SMALL_LETTERS[i]));
    }
}

} // namespace

CurrentDocument DokuRecord::asAktDoku(int type) const
{
    return {type, DokuBez, RevBez, Dateiname, Status, filename, Erstellt, Geaendert, Autor, Bearbeiter};
}

DokuRecord readDocumentRecord(const Recordset& row, const DocumentType& type)
{
    DokuRecord record;
    record.DokuArt = type.documentKind;
    readTexts(row, record);
    using Limits = std::numeric_limits<int>; // A number beyond them is no status either.
    record.Status =
        static_cast<int>(std::clamp<std::int64_t>(asInteger(row.field("Status")), Limits::min(), Limits::max()));
    record.Erstellt = asDate(row.field("Erstellt"));
    record.Geaendert = asDate(row.field("Geaendert"));
    readFeatures(row, record);
    if (type.key == "Draft" && hasField(row, "F_05_leer")) // Older databases lack the column.
        record.F_05_leer = row.Text("F_05_leer");
    return record;
}

} // namespace quelvarn
