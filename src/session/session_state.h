#pragma once

#include "database/connection.h"
#include "database/document_types.h"
#include "database/recordset.h"
#include "platform/dateien.h"

#include <array>
#include <map>
#include <string>
#include <vector>

namespace quelvarn {

struct Druckvorgabe
{
    std::string Printer;
    std::string PaperSize;
    std::string ColorMode;
    int NumCopies = 0; // For PDF: the resolution in dots per inch.
    std::string Orientation;
    double PlotScale = 0;
    int PfadArt = 1;  // PDF only
    std::string Pfad; // PDF only
};

struct DateiInfo
{
    bool vorhanden = false;
    Dateiattribute attribute;
    std::string Ordner;
    std::string Name;
};

// The switches of the property tree. Valid for this session; a row of the table may say otherwise.
struct Baumschalter
{
    bool Knoten = true;
    bool Verwendung = true;
    bool TIFFDoku = true;
    bool PDFDoku = true;
    bool Revision = true;
    bool HauptMerk = true;
    bool BenutzDef = true;
    bool StichKomm = true;
    bool ZusDoku = true;
    bool Versendet = true;
};

// The document now shown; Typ 0 when none.
struct AktuellesDokument
{
    int Typ = 0;
    std::string DokuBez;
    std::string RevBez;
    std::string Dateiname;
    int Status = 0;
    std::string filename;
    Zeitpunkt Erstellt;
    Zeitpunkt Geaendert;
    std::string Autor;
    std::string Bearbeiter;
    bool operator==(const AktuellesDokument&) const = default;
};

// The one record of a session: who works where, on which database, with which settings.
// Filled at start and rewritten whenever a database is opened.
struct SessionState
{
    std::string Rechner;
    std::string Anwender;
    std::string OsVersionMajor;
    std::string OsVersionMinor;
    int OsPlatform = 0;
    int FensterHoehe = 10090; // twips
    std::string OrdnerBasis;
    std::string OrdnerSEDokumente;
    std::string OrdnerProtokollPrio;
    std::string OrdnerDatenbankPfad;
    std::string OrdnerOfflineVersand;
    std::string DatenbankPfad; // Empty while none is open.
    bool DatenbankOk = false;
    Connection Verbindung;

    // Property key in lower case ("autor") to the label to show.
    std::map<std::string, std::string, std::less<>> Bezeichnungen;
    std::array<std::string, 3> SondertabelleName{"Sondertabelle1", "Sondertabelle2", "Sondertabelle3"};
    std::vector<std::string> Suchtexte; // At most eight.
    std::string PlotPfad;
    std::string OfflineTool = "Talvik";
    std::array<std::string, 10> PlotDrucker; // A0 to A4 Color, then A0 to A4 Mono.
    bool PlotDruckerKomplett = false;
    std::string PdfDrucker;
    bool CheckInOutOn = false;
    bool ForwardOn = false;
    bool MeldenWeiterleiten = true;
    bool MeldenWorkflow = true;
    bool ActiveQuelvarn = false;
    int Zeitintervall = 0; // milliseconds
    std::string ZeitintervallText;
    std::string Starttabelle = "Bauteile";
    Baumschalter Tree;
    std::string OfflineArt;
    std::string OfflineNummer;
    std::string OfflineExportArt;
    int ZipStufe = 0; // 0 Normal, 1 Maximum, 2 Minimum, 3 Schnell
    std::string ZipPasswort;
    Druckvorgabe PlotVorgabe;
    Druckvorgabe PdfVorgabe;
    bool AuftraegeLokal = false; // Orders go to OrdnerOfflineVersand; not stored.

    std::array<int, ANZAHL_STATUS> Sichtbar{};
    std::array<int, ANZAHL_STATUS> LoeschRecht{};
    std::string WhereStatus;
    std::string AndStatus;

    Recordset CheckInOut; // The use registry; open while CheckInOutOn or ForwardOn.
    // Saved filters of a type: fields Filtername and Filterstring.
    std::array<Recordset, ANZAHL_DOKUTYPEN> GespeicherteFilter;

    AktuellesDokument AktDoku;
    DateiInfo Dateiinfo;

    bool FormDBGeladen = false;
    bool FormSEDokuGeladen = false;
    bool FormSEFilternGeladen = false;

    bool siehtAlleStati() const { return WhereStatus.empty(); }
    // Editing with the CAD program and taking its events need statuses 0, 1 and 2.
    bool darfBearbeiten() const { return Sichtbar[0] != 0 && Sichtbar[1] != 0 && Sichtbar[2] != 0; }
    // "Bauteil" or the configured name of a special table.
    std::string einzahl(int tab) const;
    std::string mehrzahl(int tab) const;
};

// The text of LblZugriffSEDoku for these rights.
std::string zugriffstext(const SessionState& session);

} // namespace quelvarn
