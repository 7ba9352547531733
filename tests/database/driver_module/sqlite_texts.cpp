#include "database/sqlite/functions.h"

struct sqlite3_api_routines;

// What SQLite calls in a module that it loads: the order of our texts for its ODBC driver.
extern "C" int sqlite3_extension_init(sqlite3* database, char**, const sqlite3_api_routines*)
{
    quelvarn::sqlite::registerFunctions(database);
    return 0;
}
