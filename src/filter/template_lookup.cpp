#include "filter/template_lookup.h"

#include "database/recordset.h"
#include "database/sql/conditions.h"

#include <fmt/format.h>
#include <string_view>
#include <utility>
#include <vector>

namespace quelvarn {
namespace {

constexpr std::string_view FEATURES = "CDEFG";

// The values of the branch, and nothing in the features below it up to this level.
sql::ExpressionPointer templateOf(std::span<const std::string> branch, std::size_t levels)
{
    std::vector<sql::ExpressionPointer> parts;
    parts.push_back(sql::compare("Kategorie", sql::Comparison::Like, "QV_Vorlage"));
    for (std::size_t level = 0; level < levels; ++level) {
        const std::string column = fmt::format("Hauptmerkmal_{}", FEATURES[level]);
        parts.push_back(level < branch.size() ? sql::equal(column, branch[level])
                                              : sql::compare(column, sql::Comparison::Like, ""));
    }
    return sql::all(std::move(parts));
}

} // namespace

std::string VorlageSuchen(Connection& connection, std::span<const std::string> branch)
{
    if (branch.empty() || branch.size() > FEATURES.size())
        return {};
    for (std::size_t levels = FEATURES.size(); levels >= branch.size(); --levels) {
        Recordset templates;
        templates.Open(sql::Query("DraftTabelle")
                           .columns({"filename"})
                           .distinct()
                           .where(templateOf(branch, levels))
                           .sortedBy("filename"),
                       connection);
        if (!templates.empty())
            return templates.Text("filename");
    }
    return {};
}

} // namespace quelvarn
