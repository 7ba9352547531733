#pragma once

#include "database/column.h"
#include "database/engine.h"
#include "database/recordset.h"

#include <memory>
#include <unordered_set>
#include <vector>

namespace quelvarn {

class Schluesselkarte;

using Spaltenliste = std::vector<std::unique_ptr<Column>>;

// Of rows that are equal in all columns, blind to case and to trailing blanks, only the first is new.
class Doppelsuche
{
public:
    bool istNeu(const Zeilenleser& zeile);

private:
    std::unordered_set<std::string> gesehen_;
};

// Appends the rows of the reader to these columns, one for each of its columns, and their keys when wanted. With
// `doppelte` it passes over rows that came before.
void haengeZeilenAn(Zeilenleser& leser, Spaltenliste& spalten, std::vector<Zeilenschluessel>* schluessel,
                    Doppelsuche* doppelte = nullptr);

// Puts the cells of the reader into the rows that their keys name; rows without a known key are passed over.
// False when the progress was given up.
bool setzeZellen(Zeilenleser& leser, Spaltenliste& spalten, Schluesselkarte& karte, const Fortschritt& fortschritt,
                 std::size_t zeilen);

} // namespace quelvarn
