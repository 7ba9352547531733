#include "filter/template_lookup.h"

#include "database/recordset.h"

#include <fmt/format.h>

namespace quelvarn {
namespace {

constexpr std::string_view MERKMALE = "CDEFG";

} // namespace

std::string VorlageSuchen(Connection& verbindung, int Ebene, std::string_view Bedingung)
{
    if (Ebene < 1 || Ebene > static_cast<int>(MERKMALE.size()) || Bedingung.empty())
        return {};
    const std::string_view tiefere = MERKMALE.substr(static_cast<std::size_t>(Ebene));
    for (std::size_t leere = tiefere.size() + 1; leere-- > 0;) {
        std::string sql = fmt::format(
            "SELECT DISTINCT filename FROM DraftTabelle WHERE Kategorie LIKE 'QV_Vorlage' AND {}", Bedingung);
        for (const char merkmal : tiefere.substr(0, leere))
            sql += fmt::format(" AND Hauptmerkmal_{} like ''", merkmal);
        Recordset vorlagen;
        vorlagen.Open(sql, verbindung);
        if (!vorlagen.leer())
            return vorlagen.Text("filename");
    }
    return {};
}

} // namespace quelvarn
