#include "filter/template_lookup.h"

#include "database/recordset.h"
#include "database/sql/conditions.h"

#include <fmt/format.h>
#include <string_view>
#include <utility>
#include <vector>

namespace quelvarn {
namespace {

constexpr std::string_view MERKMALE = "CDEFG";

// The values of the branch, and nothing in the features below it up to this level.
sql::AusdruckZeiger templateOf(std::span<const std::string> branch, std::size_t levels)
{
    std::vector<sql::AusdruckZeiger> parts;
    parts.push_back(sql::compare("Kategorie", sql::Vergleich::Like, "QV_Vorlage"));
    for (std::size_t level = 0; level < levels; ++level) {
        const std::string column = fmt::format("Hauptmerkmal_{}", MERKMALE[level]);
        parts.push_back(level < branch.size() ? sql::equal(column, branch[level])
                                              : sql::compare(column, sql::Vergleich::Like, ""));
    }
    return sql::all(std::move(parts));
}

} // namespace

std::string VorlageSuchen(Connection& verbindung, std::span<const std::string> branch)
{
    if (branch.empty() || branch.size() > MERKMALE.size())
        return {};
    for (std::size_t levels = MERKMALE.size(); levels >= branch.size(); --levels) {
        Recordset vorlagen;
        vorlagen.Open(sql::Query("DraftTabelle")
                          .columns({"filename"})
                          .distinct()
                          .where(templateOf(branch, levels))
                          .sortedBy("filename"),
                      verbindung);
        if (!vorlagen.leer())
            return vorlagen.Text("filename");
    }
    return {};
}

} // namespace quelvarn
