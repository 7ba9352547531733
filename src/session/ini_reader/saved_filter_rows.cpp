#include "session/ini_reader/saved_filter_rows.h"

#include "base/collation.h"
#include "database/sql/conditions.h"
#include "session/ini_reader/start_run.h"

#include <algorithm>

namespace quelvarn {

namespace {

Recordset clearFilterList()
{
    Recordset list;
    list.appendField("Filtername", FieldType::Text);
    list.appendField("Filterstring", FieldType::Text);
    list.Open();
    return list;
}

} // namespace

void readSavedFilters(StartRun& run)
{
    auto& lists = run.session.pages.GespeicherteFilter;
    std::generate(lists.begin(), lists.end(), clearFilterList);

    Recordset rows = run.ini.read(sql::Query("Ini")
                                      .columns({"Feld3", "Feld4", "Feld5"})
                                      .where(iniRows(run.session.user.Anwender, "Filterwerte")));
    for (; !rows.eof(); rows.MoveNext()) {
        const std::string key = textOrEmpty(rows, "Feld3");
        const auto type = std::find_if(DOCUMENT_TYPES.begin(), DOCUMENT_TYPES.end(),
                                       [&](const DocumentType& candidate) { return equalText(candidate.key, key); });
        if (type == DOCUMENT_TYPES.end())
            continue;
        Recordset& list = lists[static_cast<std::size_t>(type->tab)];
        list.AddNew();
        list.setField("Filtername", rows.field("Feld4"));
        list.setField("Filterstring", rows.field("Feld5"));
        list.Update();
    }
    for (Recordset& list : lists)
        if (!list.empty())
            list.MoveFirst();
}

} // namespace quelvarn
