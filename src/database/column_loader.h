#pragma once

#include "database/column.h"
#include "database/engine.h"
#include "database/recordset.h"

#include <memory>
#include <unordered_set>
#include <vector>

namespace quelvarn {

class KeyMap;

using ColumnList = std::vector<std::unique_ptr<Column>>;

// Of rows that are equal in all columns, blind to case and to trailing blanks, only the first is new.
class DuplicateSearch
{
public:
    bool isNew(const RowReader& row);

private:
    std::unordered_set<std::string> seen_;
};

// Appends the rows of the reader to these columns, one for each of its columns, and their keys when wanted. With
// `duplicates` it passes over rows that came before.
void appendRows(RowReader& reader, ColumnList& columns, std::vector<RowKey>* key,
                DuplicateSearch* duplicates = nullptr);

// Puts the cells of the reader into the rows that their keys name; rows without a known key are passed over.
// False when the progress was given up.
bool setCells(RowReader& reader, ColumnList& columns, KeyMap& map, const Progress& progress, std::size_t rows);

} // namespace quelvarn
