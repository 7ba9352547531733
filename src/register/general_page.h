#pragma once

#include <string>

namespace quelvarn {

struct DocumentFacts;
struct DocumentType;
struct DokuRecord;

// LblKopfStatus in the status bar.
struct StatusHeading
{
    std::string text;
    unsigned colour = 0; // RGB
    bool wide = false;   // "<Name> 'In Arbeit'" needs more room.
};

// The general page (FrmInfoDoku 1), ready to show.
struct GeneralPage
{
    std::string DokuBez, RevBez, Dateiname, filename;
    std::string Status;        // "3"
    std::string StatusName;    // "(Freigegeben)"
    unsigned statusColour = 0; // RGB
    std::string Titel, Thema, Projekt, Material, Firma, Kategorie, Manager;
    std::string Geaendert, Bearbeiter, Erstellt, Autor;
    std::string heading8, value9;   // "Eingebaut:" or "Format:"; both "" when hidden
    std::string heading39, value40; // "Zeichnung:" or "Modell:"; both "" when hidden
    bool missing = false;           // LblNichtVorhanden
    bool newerRevision = false;     // LblAchtungRev
    bool empty = true;              // No document: nothing to show.
};

// `relation`: the switch of the same name, without which the where-used lines stay hidden.
GeneralPage generalPage(const DokuRecord& record, const DocumentFacts& facts, const DocumentType& type, bool relation,
                        bool fileExists);
// A status outside 0 to 5 keeps the colour that was there.
StatusHeading statusHeading(const DokuRecord& record, const std::string& user, unsigned previousColour);

} // namespace quelvarn
