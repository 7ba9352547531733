#pragma once

#include "database/recordset.h"
#include "register/info_pages.h"

#include <optional>
#include <string>
#include <string_view>

namespace quelvarn {

class Connection;
struct DokuRecord;
struct DokuTyp;
struct Verwendungsart;

// What the link tables know about a document, whose path is `pfad` after UniversalNachLaufwerk. Faults throw
// Laufzeitfehler.
bool gibtEsVerwendung(Connection& verbindung, const Verwendungsart& art, const DokuRecord& record,
                      std::string_view pfad);
// The rows of the page, in order of names and paths; at the first of them.
Recordset verwendungszeilen(Connection& verbindung, const Verwendungsart& art, const DokuRecord& record,
                            std::string_view pfad);

// A document of such a row, as its own table has it.
struct Verwendungsdokument
{
    AllgemeineSeite details;      // `leer` when no table has it.
    const DokuTyp* typ = nullptr; // Of the table, also when it does not have the document.
    int SondertabelleNr = 0;      // 1 to 3 when it was found in a special table.
};
Verwendungsdokument dokumentZu(Connection& verbindung, const Verwendungsart& art, const Recordset& zeile);

// The name of a document with this path, as its table has it; Null reads as empty.
struct Dokumentname
{
    std::string DokuBez, RevBez;
};
std::optional<Dokumentname> findDokument(Connection& verbindung, const DokuTyp& typ, std::string_view filename);
// All of them: nothing keeps a table from naming a file twice.
std::vector<Dokumentname> documentsWithPath(Connection& verbindung, const DokuTyp& typ, std::string_view filename);

// The type by the ending of the file; nullptr when it is none of the five.
const DokuTyp* findTypZurDatei(std::string_view filename);
// Whether the document lies within the statuses of a user (`WhereStatus`).
bool istSichtbar(Connection& verbindung, const DokuTyp& typ, std::string_view filename, std::string_view WhereStatus);

} // namespace quelvarn
