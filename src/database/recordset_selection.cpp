#include "database/recordset_selection.h"

#include "database/connection.h"
#include "database/recordset_core.h"

namespace quelvarn {

void openRows(Recordset& recordset, std::string_view table, std::vector<RowKey> keys, Connection& connection)
{
    Recordset::Core fresh;
    fresh.small = coreOf(recordset).small;
    if (!connection.open())
        throw recordsetFault(3709, "Die Verbindung zur Datenbank ist nicht geöffnet.");
    fresh.rows.openRows(connection.engine_, table, std::move(keys), fresh.small);
    fresh.view.showAll(fresh.rows.count());
    fresh.open = true;
    coreOf(recordset) = std::move(fresh);
}

} // namespace quelvarn
