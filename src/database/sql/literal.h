#pragma once

#include "database/sql/parser.h"
#include "database/sql/reader.h"

#include <map>
#include <string>
#include <utility>

namespace quelvarn::sql {

// Where a literal stands: this decides what may come behind it.
enum class Place {
    FilterCondition, // AND, OR, ")", the end
    Condition,       // the same and ORDER BY
    FirstLimit,      // AND of "Between x And y"
    List,            // "," and ")" of "In (..)"
    InsertedValue,   // "," and ")" of VALUES
    Assignment,      // "," and another column, WHERE, the end
};

// Reads the literals of one statement. It must tell the apostrophe that ends a text from one that belongs to it.
class LiteralReader
{
public:
    LiteralReader(Reader& reader, DateOrder sequence) : reader_(reader), sequence_(sequence) {}

    // A text, number or date. `brackets` brackets are open here.
    Value read(Place place, int brackets);

private:
    std::string text(Place place, int brackets);
    std::string textInQuote();
    Value number();
    DateTime date();

    std::size_t runLength(std::size_t position) const;
    bool canEnds(std::size_t position, Place place, int brackets) const;
    bool isStillClosing(std::size_t position, Place place, int brackets);

    Reader& reader_;
    DateOrder sequence_;
    // Behind the next run of an odd number of apostrophes, and whether a literal can end there.
    std::size_t oddRun_ = 0;
    std::map<std::pair<Place, int>, bool> endsThere_;
};

} // namespace quelvarn::sql
