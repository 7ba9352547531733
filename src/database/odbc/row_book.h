#pragma once

#include "database/engine.h"

#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quelvarn::odbc {

// The row keys of one table that has none: a row is what it holds. The same content gives the same key each time it is
// read; of rows that are equal throughout, each gets the next key of that content.
class Zeilenbuch
{
public:
    // All cells of a row in the table's order, as one text.
    static std::string bildOf(std::span<const Value> zeile);
    static std::vector<Value> zeileOf(std::string_view bild);

    // The key of the row that is met as the `vorkommen`-th of its equals, from 1.
    Zeilenschluessel schluesselOf(const std::string& bild, std::size_t vorkommen);
    // nullptr for a key that is not in use.
    const std::string* findBild(Zeilenschluessel schluessel) const;
    // The row holds something else now.
    void ersetze(Zeilenschluessel schluessel, const std::string& neuesBild);
    void entferne(Zeilenschluessel schluessel);

private:
    std::unordered_map<std::string, std::vector<Zeilenschluessel>> schluessel_;
    std::unordered_map<Zeilenschluessel, const std::string*> bilder_; // The keys of the other map.
    Zeilenschluessel letzter_ = 0;                                    // None is given twice.
};

} // namespace quelvarn::odbc
