#pragma once

#include "database/row_filter.h"
#include "database/schema.h"
#include "database/sql/ast.h"
#include "database/sql/fixed_text.h"
#include "database/value.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

class Connection;

enum class CursorType { ForwardOnly = 0, KeySet = 1, Dynamic = 2, Static = 3 };
enum class LockType { ReadOnly = 1, Pessimistic = 2, Optimistic = 3, Batch = 4 };
enum class SearchDirection { Forward, Backwards };

// A client-side cursor over columns. Opening a large result reads the keys of its rows and the columns of the
// sort order; every other column is read when first asked for. RecordCount is that of the opening; rows that
// vanished since read as empty. Also a recordset in memory, with fields of its own.
//
// Lists of what occurs in it are in recordset_lists.h, its columns in recordset_columns.h.
//
// Where there is no current row (Bof or Eof), reading or writing a field throws RuntimeError 3021.
class Recordset
{
public:
    Recordset();
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    // Made of conditions (sql/conditions.h), or one SELECT of the program's dialect without a value from outside.
    void Open(sql::Select select, Connection& connection, CursorType cursor = CursorType::Static,
              LockType lock = LockType::ReadOnly);
    void Open(sql::FixedText select, Connection& connection, CursorType cursor = CursorType::Static,
              LockType lock = LockType::ReadOnly);
    // In memory: append fields, then open.
    void appendField(std::string_view name, FieldType type);
    void Open();
    void Close();
    bool open() const;

    const std::vector<ColumnInfo>& fields() const;

    bool bof() const;
    bool eof() const;
    bool empty() const { return bof() && eof(); }
    std::size_t RecordCount() const; // Rows that the filter leaves.

    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void movePrevious();

    // Field of the current row; names in any case, an unknown one throws RuntimeError 3265.
    Value field(std::string_view name) const;
    std::string Text(std::string_view name) const; // asText(field(name))
    void setField(std::string_view name, Value value);

    void AddNew();
    // Writes the new or changed row, as every move of the cursor does; in Batch mode it waits for UpdateBatch.
    // When writing fails the row is as it was before.
    void Update();
    void CancelUpdate();
    void Delete();      // Afterwards the current row is the next one.
    void UpdateBatch(); // All waiting changes, in one transaction.

    // A recordset filter expression (day first, '*' as the only wildcard), "" for none. Moves to the first row left.
    // A bad expression throws RuntimeError and leaves the old filter.
    void Filter(std::string_view expression, const Progress& progress = {});
    void Filter(RowFilter filter, const Progress& progress = {});
    const RowFilter& filter() const;
    // "Feld [ASC|DESC], ...", "" for the order of opening.
    void Sort(std::string_view expression);
    // Moves to the first row that meets the criterion ("Feld LIKE 'x%'"), starting `skip` rows behind the
    // current one, or at the first row of all (going backwards: the last) when `fromStart`; at Eof (Bof going
    // backwards) when there is none. '%' is the only wildcard. False, and nothing moves, when reading a column for it
    // was given up.
    bool Find(std::string_view criterion, std::size_t skip = 0, SearchDirection direction = SearchDirection::Forward,
              bool fromStart = false, const Progress& progress = {});

    Bookmark bookmark() const; // Of the current row.
    // False, and nothing moves, when the row is not among those the filter leaves.
    bool setBookmark(Bookmark row);

    // Position of the current row among the rows left, and the other way round; for grids. RecordCount() where
    // there is no current row.
    std::size_t absolutePosition() const;
    void setPosition(std::size_t position);
    // A cell of any row left, without moving. Reads a block of neighbouring rows at once when the column is not
    // in memory.
    Value cell(std::size_t position, std::string_view field) const;

    struct Core;

private:
    friend Core& coreOf(Recordset& recordset);
    friend const Core& coreOf(const Recordset& recordset);

    std::unique_ptr<Core> core_;
};

} // namespace quelvarn
