// Any text as a recordset filter: it is refused, or it is one condition that reads the same when written out again.
#include "base/runtime_error.h"
#include "database/sql/access_text.h"
#include "database/sql/parser.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace quelvarn;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    sql::AusdruckZeiger filter;
    try {
        filter = sql::parseBedingung({reinterpret_cast<const char*>(bytes), size});
    } catch (const Laufzeitfehler&) {
        return 0;
    }
    if (filter) {
        const std::string text = sql::alsAccessText(*filter);
        if (sql::alsAccessText(*sql::parseBedingung(text, sql::Datumsfolge::MonatZuerst)) != text)
            std::abort();
    }
    return 0;
}
