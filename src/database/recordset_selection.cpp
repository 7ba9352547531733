#include "database/recordset_selection.h"

#include "database/connection.h"
#include "database/recordset_core.h"

namespace quelvarn {

void openRows(Recordset& recordset, std::string_view table, std::vector<RowKey> keys, Connection& connection)
{
    Recordset::Core chosen;
    chosen.small = coreOf(recordset).small;
    if (!connection.open())
        throw recordsetFault(3709, "Die Verbindung zur Datenbank ist nicht geöffnet.");
    chosen.rows.openRows(connection.engine_, table, std::move(keys), chosen.small);
    chosen.view.showAll(chosen.rows.count());
    chosen.open = true;
    coreOf(recordset) = std::move(chosen);
}

} // namespace quelvarn
