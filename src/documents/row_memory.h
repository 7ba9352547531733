#pragma once

#include <cstddef>
#include <string>

namespace quelvarn {

class Recordset;
class DocumentTable;

// The document to come back to when its table has been opened anew.
struct RowMemory
{
    std::string DokuBez, RevBez, filename;
    std::size_t position = 0; // Taken when the document is gone.
};

RowMemory rememberRow(const DocumentTable& table);
// Moves to the document, else to the place where it stood. The table must have rows.
void moveTo(Recordset& table, const RowMemory& row);
// Moves to the row with this path; without one the table stays where it is.
bool moveToFile(Recordset& table, const RowMemory& row);
// The same for the document by its name and revision; this path comes first where several have them.
bool moveToDocument(Recordset& table, const RowMemory& row);

} // namespace quelvarn
