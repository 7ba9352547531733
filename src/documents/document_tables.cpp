#include "documents/document_tables.h"

#include "database/recordset_columns.h"
#include "database/sql/conditions.h"
#include "platform/clock.h"
#include "session/operations.h"
#include "session/session_state.h"

#include <string_view>

namespace quelvarn {
namespace {

constexpr std::int64_t SECONDS_UNTIL_CHECK = 60;

} // namespace

DocumentTables::DocumentTables(Connection& connection, const Rights& rights, Operations& operations)
    : connection_(connection), rights_(rights), ports_(operations.ports())
{
    for (const DocumentType& type : DOCUMENT_TYPES)
        tables_.emplace_back(type, operations);
}

// On its first row. A revision that sorts higher stands before the older ones of its document.
Recordset DocumentTables::OpenDokuTabelle(const DocumentType& type) const
{
    const std::string_view scope = type.statusScope ? std::string_view(rights_.WhereStatus) : std::string_view();
    Recordset rows;
    if (wholeLimit_)
        quelvarn::setWholeLimit(rows, *wholeLimit_);
    rows.Open(sql::Query(type.table).where(sql::statusScope(scope)).sortedBy("DokuBez").sortedDownBy("RevBez"),
              connection_, CursorType::Dynamic, LockType::ReadOnly);
    if (!rows.empty())
        rows.MoveFirst();
    return rows;
}

DocumentTable& DocumentTables::opened(int tab)
{
    if (!(*this)[tab].isOpen())
        reload(tab);
    return (*this)[tab];
}

void DocumentTables::reload(int tab)
{
    DocumentTable& table = (*this)[tab];
    Recordset rows = OpenDokuTabelle(table.type());
    const bool ofFiles = table.type().specialTable == 0;
    if (ofFiles)
        indicator(tab).clear();
    table.open(std::move(rows), ofFiles ? ports_.clock.now().plusSeconds(SECONDS_UNTIL_CHECK) : table.nextCheck());
}

void DocumentTables::showAll(int tab, const StatusCondition& stays)
{
    DocumentTable& table = (*this)[tab];
    if (!table.isOpen())
        return;
    if (table.state() == TableState::NewerData)
        reload(tab);
    table.showAll(stays);
}

void DocumentTables::closeAll()
{
    for (DocumentTable& table : tables_)
        table.close();
    indicators_ = {};
}

// Text and indicator panels take turns behind the head of the bar: the indicators are 3, 5, 7, 9 and 11.
std::string& DocumentTables::indicator(int tab)
{
    return indicators_[static_cast<std::size_t>((DOCUMENT_TYPES[static_cast<std::size_t>(tab)].indicatorPanel - 3) /
                                                2)];
}

void DocumentTables::announceTab() const
{
    for (TableFollower* follower : followers_)
        follower->tabChanged();
}

void DocumentTables::announceRows(int tab) const
{
    for (TableFollower* follower : followers_)
        follower->rowsReplaced(tab);
}

} // namespace quelvarn
