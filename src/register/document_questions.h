#pragma once

#include "database/sql/ast.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

class Connection;
class Dateien;
struct DokuRecord;

// What the database knows about the relations of a document. Each question reads as few rows as its answer needs,
// by an index, so that the tree of a part that stands in thousands of assemblies is built as fast as any other.
// Paths are those after UniversalNachLaufwerk. A fault throws Laufzeitfehler.

// Reads one row at most, and one column of it: one that the index of the condition holds.
bool rowExists(Connection& verbindung, std::string_view tabelle, std::string_view spalte,
               sql::AusdruckZeiger condition);

struct Revisionsstand
{
    bool mehrere = false;
    std::string letzte; // By text order.
};
Revisionsstand revisionsstand(Connection& verbindung, std::string_view tabelle, std::string_view DokuBez);
bool neuereRevision(const Revisionsstand& stand, const DokuRecord& record);

// The registered TIFF of a drawing by its file name; "" when none is.
std::string EnthaltenInTIFFTabelle(Connection& verbindung, std::string_view Dateiname);
// The registered TIFF, or the one that lies beside the drawing; "" when there is neither.
std::string findTiff(Connection& verbindung, const Dateien& dateien, const DokuRecord& record);
// The PDF that lies beside the drawing; "" when there is none.
std::string findPdf(const Dateien& dateien, const DokuRecord& record);

// Which of these names address somebody, as sort keys.
std::set<std::string> kennungen(Connection& verbindung, const std::vector<std::string>& namen);

// A user-defined row whose name is a Kennung of Adresstabelle notes where the document was sent.
struct Benutzerzeilen
{
    bool eigenschaften = false;
    bool versendet = false;
};
Benutzerzeilen benutzerzeilen(Connection& verbindung, std::string_view tabelleBenutzDef, const DokuRecord& record);
bool hatZusatzdokumente(Connection& verbindung, std::string_view filename);

} // namespace quelvarn
