#pragma once

#include <string>

namespace quelvarn {

struct DateiInfo;
struct DocumentFacts;
struct DokuRecord;
struct DokuTyp;

// Which page stands on the right. 0 to 8 and 10 are the indexes of FrmInfoDoku.
enum class InfoSeite : int {
    Keine = -1,
    Revisionen = 0,
    Allgemein = 1,
    BenutzDef = 2,
    Hauptmerkmale = 3,
    ZusDoku = 4,
    StichKomm = 5,
    InZeichnung = 6,
    InBaugruppe = 7,
    BestehtAus = 8,
    InSchweissteil = 9,
    Datei = 10,
    Enthaelt = 11,
    EnthaeltBaugruppe = 12,
    SendTo = 13,
    Tiff = 14,
    Viewer = 15,
};

// LblKopfStatus in the status bar.
struct Statuskopf
{
    std::string text;
    unsigned farbe = 0; // RGB
    bool breit = false; // "<Name> 'In Arbeit'" needs more room.
};

// The general page (FrmInfoDoku 1), ready to show.
struct AllgemeineSeite
{
    std::string DokuBez, RevBez, Dateiname, filename;
    std::string Status;       // "3"
    std::string StatusName;   // "(Freigegeben)"
    unsigned statusfarbe = 0; // RGB
    std::string Titel, Thema, Projekt, Material, Firma, Kategorie, Manager;
    std::string Geaendert, Bearbeiter, Erstellt, Autor;
    std::string kopf8, wert9;    // "Eingebaut:" or "Format:"; both "" when hidden
    std::string kopf39, wert40;  // "Zeichnung:" or "Modell:"; both "" when hidden
    bool nichtVorhanden = false; // LblNichtVorhanden
    bool neuereRevision = false; // LblAchtungRev
    bool leer = true;            // No document: nothing to show.
};

// The file properties page (FrmInfoDoku 10), ready to show.
struct DateiSeite
{
    bool vorhanden = false; // Without a file the two boxes are disabled and LblNichtVorhanden shows.
    bool schreibgeschuetzt = false;
    bool archiv = false;
    std::string Name, Ordner, Groesse, Erstellt, Geaendert, Zugriff;
};

// The two boxes of the keywords page (FrmInfoDoku 5).
struct StichKommSeite
{
    std::string TextKeywords, TextComments;
};

// `verwendung`: the switch of the same name, without which the where-used lines stay hidden.
AllgemeineSeite allgemeineSeite(const DokuRecord& record, const DocumentFacts& facts, const DokuTyp& typ,
                                bool verwendung, bool dateiVorhanden);
DateiSeite dateiSeite(const DateiInfo& info);
// A status outside 0 to 5 keeps the colour that was there.
Statuskopf statuskopf(const DokuRecord& record, const std::string& anwender, unsigned bisherigeFarbe);

} // namespace quelvarn
