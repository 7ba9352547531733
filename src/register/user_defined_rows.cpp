#include "register/user_defined_rows.h"

#include "base/collation.h"
#include "base/windows_path.h"
#include "database/connection.h"
#include "database/sql/conditions.h"
#include "documents/document_record.h"
#include "register/detail_lists.h"
#include "register/document_questions.h"
#include "register/text_list.h"

#include <algorithm>
#include <fmt/format.h>
#include <set>
#include <utility>
#include <vector>

namespace quelvarn {
namespace {

using ValuePair = std::pair<std::string, std::string>; // Name, Wert

// The rows of one document by name: sent-to notes, or all others.
std::vector<ValuePair> readRows(Connection& connection, std::string_view table, const DokuRecord& record, bool sent)
{
    Recordset rows;
    rows.Open(sql::Query(table)
                  .columns({"Name", "Wert"})
                  .distinct()
                  .where(sql::all(sql::equal("DokuBez", record.DokuBez), sql::equal("RevBez", record.RevBez)))
                  .sortedBy("Name")
                  .sortedBy("Wert"),
              connection);
    std::vector<ValuePair> all;
    std::vector<std::string> names;
    for (; !rows.eof(); rows.MoveNext()) {
        all.emplace_back(rows.Text("Name"), rows.Text("Wert"));
        names.push_back(all.back().first);
    }
    const std::set<std::string> known = addressCodes(connection, names);
    std::erase_if(all, [&](const ValuePair& row) { return known.contains(sortKey(row.first)) != sent; });
    return all;
}

} // namespace

Recordset userDefinedList(Connection& connection, std::string_view tableUserDef, const DokuRecord& record)
{
    TextList list{"Name", "Wert"};
    for (const auto& [name, value] : readRows(connection, tableUserDef, record, false))
        list.row({{"Name", name}, {"Wert", value}});
    return list.finish();
}

Recordset sendToList(Connection& connection, std::string_view tableUserDef, const DokuRecord& record)
{
    TextList list{"SendToDatum", "Kennung", "OrderDateiname", "Orderfilename"};
    for (const auto& [name, value] : readRows(connection, tableUserDef, record, true)) {
        const std::string file = DateiName(value);
        list.row({{"SendToDatum", SendToDatum(file)},
                  {"Kennung", name},
                  {"OrderDateiname", file},
                  {"Orderfilename", value}});
    }
    return list.finish();
}

std::string SendToDatum(std::string_view OrderDateiname)
{
    constexpr std::size_t STAMP = 12;
    constexpr std::size_t WITH_EXTENSION = 16; // "110214103000.txt"
    if (OrderDateiname.size() < WITH_EXTENSION)
        return {};
    const std::string_view stamp = OrderDateiname.substr(OrderDateiname.size() - WITH_EXTENSION, STAMP);
    if (stamp.find_first_not_of("0123456789") != std::string_view::npos)
        return {};
    return fmt::format("{}.{}.{}  {}:{}", stamp.substr(4, 2), stamp.substr(2, 2), stamp.substr(0, 2),
                       stamp.substr(6, 2), stamp.substr(8, 2));
}

} // namespace quelvarn
