#pragma once

#include "base/date_time.h"

#include <array>
#include <string>

namespace quelvarn {

class Recordset;
struct CurrentDocument;
struct DocumentType;

// The page's copy of a table's current row. What is Null or missing is "", 0 or the zero date.
struct DokuRecord
{
    int DokuArt = 0;
    std::string DokuBez, RevBez, Dateiname, filename, Projekt, Material;
    int Status = 0;
    std::string Titel, Thema, Autor, Manager, Firma, Kategorie, Stichwoerter, Kommentar, Bearbeiter;
    DateTime Erstellt, Geaendert;
    std::string Gespeichert;                     // A date, or a text as it stands.
    std::array<std::string, 7> StructureFeature; // A to G
    std::array<double, 7> Hauptwert{};           // a to g
    std::array<std::string, 7> Alias;            // a to g
    std::string F_05_leer;                       // Drawings only: the format.

    // `typ` is the type code, which depends on who asks.
    CurrentDocument asAktDoku(int type) const;
};

// Reads the current row.
DokuRecord readDocumentRecord(const Recordset& row, const DocumentType& type);

} // namespace quelvarn
