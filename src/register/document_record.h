#pragma once

#include "base/date_time.h"

#include <array>
#include <string>

namespace quelvarn {

class Recordset;
struct DokuTyp;
struct AktuellesDokument;

// The page's copy of a table's current row. A Null text is "", a Null number 0.
struct DokuRecord
{
    int DokuArt = 0;
    std::string DokuBez, RevBez, Dateiname, filename, Projekt, Material;
    int Status = 0;
    std::string Titel, Thema, Autor, Manager, Firma, Kategorie, Stichwoerter, Kommentar, Bearbeiter;
    Zeitpunkt Erstellt, Geaendert;
    std::string Gespeichert; // A date, or a text as it stands.
    std::array<std::string, 7> Hauptmerkmal; // A to G
    std::array<double, 7> Hauptwert{};       // a to g
    std::array<std::string, 7> Alias;        // a to g
    std::string inBaugruppe; // "Ja" or "Nein", "" when not asked
    std::string inZeichnung;
    std::string F_05_leer; // Drawings only: the format.

    AktuellesDokument alsAktDoku(int typ) const;
};

// Reads the current row. Throws Laufzeitfehler 94 where DokuBez, RevBez, Dateiname, filename, Status or a date
// is Null.
DokuRecord leseDokuRecord(const Recordset& zeile, const DokuTyp& typ);

} // namespace quelvarn
