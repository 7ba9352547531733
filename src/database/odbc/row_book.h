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
class RowBook
{
public:
    // All cells of a row in the table's order, as one text.
    static std::string pictureOf(std::span<const Value> row);
    static std::vector<Value> rowOf(std::string_view picture);

    // The key of the row that is met as the `occurrences`-th of its equals, from 1.
    RowKey keyOf(const std::string& picture, std::size_t occurrences);
    // nullptr for a key that is not in use.
    const std::string* findPicture(RowKey key) const;
    // The row holds something else now.
    void replace(RowKey key, const std::string& newPicture);
    void remove(RowKey key);

private:
    std::unordered_map<std::string, std::vector<RowKey>> key_;
    std::unordered_map<RowKey, const std::string*> pictures_; // The keys of the other map.
    RowKey last_ = 0;                                         // None is given twice.
};

} // namespace quelvarn::odbc
