#pragma once

#include "database/sql/ast.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

class Connection;
class Files;
struct DokuRecord;

// What the database knows about the relations of a document. Each question reads as few rows as its answer needs,
// by an index, so that the tree of a part that stands in thousands of assemblies is built as fast as any other.
// Paths are those after UniversalNachLaufwerk. A fault throws RuntimeError.

// Reads one row at most, and one column of it: one that the index of the condition holds.
bool rowExists(Connection& connection, std::string_view table, std::string_view column,
               sql::ExpressionPointer condition);

struct RevisionState
{
    bool several = false;
    std::string last; // By text order.
};
RevisionState revisionState(Connection& connection, std::string_view table, std::string_view DokuBez);
bool newerRevision(const RevisionState& state, const DokuRecord& record);

// The registered TIFF of a drawing by its file name; "" when none is.
std::string EnthaltenInTIFFTabelle(Connection& connection, std::string_view Dateiname);
// The registered TIFF, or the one that lies beside the drawing; "" when there is neither.
std::string findTiff(Connection& connection, const Files& files, const DokuRecord& record);
// The PDF that lies beside the drawing; "" when there is none.
std::string findPdf(const Files& files, const DokuRecord& record);

// Which of these names address somebody, as sort keys.
std::set<std::string> addressCodes(Connection& connection, const std::vector<std::string>& names);

// A user-defined row whose name is a Kennung of Adresstabelle notes where the document was sent.
struct UserDefinedRows
{
    bool properties = false;
    bool sent = false;
};
UserDefinedRows userDefinedRows(Connection& connection, std::string_view tableUserDef, const DokuRecord& record);
bool hasAdditionalDocuments(Connection& connection, std::string_view filename);

} // namespace quelvarn
