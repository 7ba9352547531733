// Any text as a statement: it is refused, or it is one statement that reads the same when written out again.
#include "base/runtime_error.h"
#include "database/schema.h"
#include "database/sql/access_text.h"
#include "database/sql/engine_dialects.h"
#include "database/sql/parser.h"
#include "database/sql/renderer.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace quelvarn;

namespace {

void render(const sql::Statement& statement)
{
    const TableSchema* table = findTable(std::visit([](const auto& a) { return a.table; }, statement));
    if (!table)
        return;
    for (const sql::Dialect* dialect : {&sql::sqliteDialect(), &sql::postgresDialect()}) {
        if (const auto* select = std::get_if<sql::Select>(&statement))
            dialect->select(*select, *table, WithKey::No, 1);
        else
            dialect->change(statement, *table);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    try {
        const sql::Statement statement = sql::parseStatement({reinterpret_cast<const char*>(bytes), size});
        const std::string text = sql::asAccessText(statement);
        if (sql::asAccessText(sql::parseStatement(text)) != text)
            std::abort();
        render(statement);
    } catch (const RuntimeError&) {
        // Refused.
    }
    return 0;
}
