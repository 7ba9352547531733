// Compiled by ctest in three ways: a statement text with a value in it must not compile.
#include "database/connection.h"
#include "database/recordset.h"
#include "database/sql/conditions.h"

#include <string>

using namespace quelvarn;

void ask(Recordset& rows, Connection& connection, const std::string& user)
{
    rows.Open("SELECT * FROM Ini WHERE Feld2 = 'Plot'", connection);
    rows.Open(sql::Query("Ini").where(sql::equal("Feld1", user)), connection);
    connection.execute("DELETE FROM Ini");
    connection.execute(sql::Delete{"Ini", sql::equal("Feld1", user)});
#ifdef PASTED_QUERY
    rows.Open("SELECT * FROM Ini WHERE Feld1 = '" + user + "'", connection);
#endif
#ifdef PASTED_CHANGE
    connection.execute("DELETE FROM Ini WHERE Feld1 = '" + user + "'");
#endif
}
