#pragma once

#include <cstddef>
#include <string>

namespace quelvarn {

class Recordset;
class DocumentTable;

// The document to come back to when its table has been opened anew.
struct Merkzeile
{
    std::string DokuBez, RevBez, filename;
    std::size_t position = 0; // Taken when the document is gone.
};

Merkzeile merkeZeile(const DocumentTable& table);
// Moves to the document, else to the place where it stood. The table must have rows.
void stelleAuf(Recordset& tabelle, const Merkzeile& zeile);
// Moves to the row with this path; without one the table stays where it is.
bool stelleAufDatei(Recordset& tabelle, const Merkzeile& zeile);
// The same for the document by its name and revision; this path comes first where several have them.
bool stelleAufDokument(Recordset& tabelle, const Merkzeile& zeile);

} // namespace quelvarn
