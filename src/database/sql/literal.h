#pragma once

#include "database/sql/parser.h"
#include "database/sql/reader.h"

#include <map>
#include <string>
#include <utility>

namespace quelvarn::sql {

// Where a literal stands: this decides what may come behind it.
enum class Stelle {
    Filterbedingung, // AND, OR, ")", the end
    Bedingung,       // the same and ORDER BY
    ErsteGrenze,     // AND of "Between x And y"
    Liste,           // "," and ")" of "In (..)"
    Einfuegewert,    // "," and ")" of VALUES
    Zuweisung,       // "," and another column, WHERE, the end
};

// Reads the literals of one statement. It must tell the apostrophe that ends a text from one that belongs to it.
class Literalleser
{
public:
    Literalleser(Leser& leser, Datumsfolge folge) : leser_(leser), folge_(folge) {}

    // A text, number or date. `klammern` brackets are open here.
    Value lies(Stelle stelle, int klammern);

private:
    std::string text(Stelle stelle, int klammern);
    std::string textInAnfuehrung();
    Value zahl();
    Zeitpunkt datum();

    std::size_t laufLaenge(std::size_t position) const;
    bool kannEnden(std::size_t position, Stelle stelle, int klammern) const;
    bool wirdNochGeschlossen(std::size_t position, Stelle stelle, int klammern);

    Leser& leser_;
    Datumsfolge folge_;
    // Behind the next run of an odd number of apostrophes, and whether a literal can end there.
    std::size_t ungeraderLauf_ = 0;
    std::map<std::pair<Stelle, int>, bool> endetDort_;
};

} // namespace quelvarn::sql
