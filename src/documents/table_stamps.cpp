#include "documents/table_stamps.h"

#include "base/collation.h"
#include "database/connection.h"
#include "database/recordset.h"

namespace quelvarn {

namespace {

constexpr std::size_t MINIMUM_ROWS = 5;
constexpr int LEAD_SECONDS = 60;

// Stands on the stamp's row; false when there is none that counts.
bool openOnRow(Recordset& rows, Connection& connection, std::string_view key, LockType lock)
{
    rows.Open("SELECT Feld3, Feld4 FROM Ini WHERE  Feld1 = '!QV_Ini' AND Feld2 = 'WriteDB'", connection,
              CursorType::Static, lock);
    if (rows.RecordCount() < MINIMUM_ROWS)
        return false;
    while (!rows.eof() && toUpper(rows.Text("Feld3")) != key)
        rows.MoveNext();
    return !rows.eof();
}

} // namespace

std::optional<DateTime> readStamp(Connection& connection, std::string_view key)
{
    Recordset rows;
    if (!openOnRow(rows, connection, key, LockType::ReadOnly))
        return std::nullopt;
    return asDate(rows.field("Feld4"));
}

void setStamp(Connection& connection, std::string_view key, DateTime now)
{
    Recordset rows;
    if (key.empty() || !openOnRow(rows, connection, key, LockType::Optimistic))
        return;
    rows.setField("Feld4", asText(now.plusSeconds(LEAD_SECONDS)));
    rows.Update();
}

} // namespace quelvarn
