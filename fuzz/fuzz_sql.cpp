// Any text as a statement: it is refused, or it is one statement that reads the same when written out again.
#include "base/runtime_error.h"
#include "database/schema.h"
#include "database/sql/access_text.h"
#include "database/sql/parser.h"
#include "database/sql/renderer.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace quelvarn;

namespace {

void render(const sql::Anweisung& anweisung)
{
    const Tabellenschema* tabelle = findTabelle(std::visit([](const auto& a) { return a.tabelle; }, anweisung));
    if (!tabelle)
        return;
    for (const sql::Dialekt* dialekt : {&sql::sqliteDialekt(), &sql::postgresDialekt()}) {
        if (const auto* select = std::get_if<sql::Select>(&anweisung))
            dialekt->select(*select, *tabelle, MitSchluessel::Nein, 1);
        else
            dialekt->aenderung(anweisung, *tabelle);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    try {
        const sql::Anweisung anweisung = sql::parseAnweisung({reinterpret_cast<const char*>(bytes), size});
        const std::string text = sql::alsAccessText(anweisung);
        if (sql::alsAccessText(sql::parseAnweisung(text)) != text)
            std::abort();
        render(anweisung);
    } catch (const Laufzeitfehler&) {
        // Refused.
    }
    return 0;
}
