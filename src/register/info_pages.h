#pragma once

#include <string>

namespace quelvarn {

struct FileInfo;
struct DocumentFacts;
struct DokuRecord;
struct DocumentType;

// Which page stands on the right. 0 to 8 and 10 are the indexes of FrmInfoDoku.
enum class InfoPageId : int {
    None = -1,
    Revisions = 0,
    General = 1,
    UserDefined = 2,
    StructureFeatures = 3,
    ZusDoku = 4,
    StichKomm = 5,
    InDrawing = 6,
    InAssembly = 7,
    ConsistsOf = 8,
    InWeldment = 9,
    File = 10,
    Contains = 11,
    ContainsAssembly = 12,
    SendTo = 13,
    Tiff = 14,
    Viewer = 15,
};

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

// The file properties page (FrmInfoDoku 10), ready to show.
struct FileProperties
{
    bool exists = false; // Without a file the two boxes are disabled and LblNichtVorhanden shows.
    bool readOnly = false;
    bool archive = false;
    std::string name, folder, size, created, changed, accessed;
};

// The two boxes of the keywords page (FrmInfoDoku 5).
struct KeywordsPage
{
    std::string TextKeywords, TextComments;
};

// `relation`: the switch of the same name, without which the where-used lines stay hidden.
GeneralPage generalPage(const DokuRecord& record, const DocumentFacts& facts, const DocumentType& type, bool relation,
                        bool fileExists);
FileProperties fileProperties(const FileInfo& info);
// A status outside 0 to 5 keeps the colour that was there.
StatusHeading statusHeading(const DokuRecord& record, const std::string& user, unsigned previousColour);

} // namespace quelvarn
