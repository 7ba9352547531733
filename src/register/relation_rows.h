#pragma once

#include "database/recordset.h"
#include "register/general_page.h"
#include "register/info_pages.h"

#include <optional>
#include <string>
#include <string_view>

namespace quelvarn {

class Connection;
struct DokuRecord;
struct DocumentType;
struct RelationKind;

// What the link tables know about a document, whose path is `documentPath` after UniversalNachLaufwerk. Faults throw
// RuntimeError.
bool hasRelation(Connection& connection, const RelationKind& kind, const DokuRecord& record,
                 std::string_view documentPath);
// The rows of the page, in order of names and paths; at the first of them.
Recordset relationRows(Connection& connection, const RelationKind& kind, const DokuRecord& record,
                       std::string_view documentPath);

// A document of such a row, as its own table has it.
struct RelationDocument
{
    GeneralPage details;                // `leer` when no table has it.
    const DocumentType* type = nullptr; // Of the table, also when it does not have the document.
    int SondertabelleNr = 0;            // 1 to 3 when it was found in a special table.
};
RelationDocument documentAt(Connection& connection, const RelationKind& kind, const Recordset& row);

// The name of a document with this path, as its table has it; Null reads as empty.
struct DocumentName
{
    std::string DokuBez, RevBez;
};
std::optional<DocumentName> findDocument(Connection& connection, const DocumentType& type, std::string_view filename);
// All of them: nothing keeps a table from naming a file twice.
std::vector<DocumentName> documentsWithPath(Connection& connection, const DocumentType& type,
                                            std::string_view filename);

// The type by the ending of the file; nullptr when it is none of the five.
const DocumentType* findTypeOfFile(std::string_view filename);
// Whether the document lies within the statuses of a user (`WhereStatus`).
bool isVisible(Connection& connection, const DocumentType& type, std::string_view filename,
               std::string_view WhereStatus);

} // namespace quelvarn
