#pragma once

#include "database/sql/conditions.h"
#include "fakes/test_register.h"
#include "filter/filter_context.h"

#include <array>
#include <string>
#include <vector>

namespace quelvarn {

// A register, its tables, and the filters over them.
class FilterTest : public TestRegister
{
protected:
    // With the address of an empty PostgreSQL database the register lies there.
    explicit FilterTest(const std::string& postgres = "") : TestRegister(postgres)
    {
        for (TypeFilter& type : filter_.types)
            type.ChFilterStat.fill(true);
        tables_.setWholeLimit(1); // Columns are read when they are wanted, as those of large tables are.
    }

    // A document of the type that the page is open for. Status 3 unless told.
    void addDocument(const std::string& DokuBez, const Values& values = {})
    {
        std::vector<sql::Assignment> assignments{{"DokuBez", DokuBez}, {"RevBez", "0"}};
        bool hasStatus = false;
        for (const auto& [column, value] : values) {
            assignments.push_back({column, value});
            hasStatus = hasStatus || std::string_view(column) == "Status";
        }
        if (!hasStatus)
            assignments.push_back({"Status", 3});
        engine_->insert(DOCUMENT_TYPES[static_cast<std::size_t>(context_.tab)].table, assignments);
    }

    void reopen() { tables_.reload(context_.tab); }
    Recordset& table() { return context_.table().rows(); }

    // The documents that the table shows, from the top, "A B C".
    std::string shown()
    {
        const Recordset& rows = context_.table().visible();
        std::string text;
        for (std::size_t i = 0; rows.open() && i < rows.RecordCount(); ++i)
            text += (i > 0 ? " " : "") + asText(rows.cell(i, "DokuBez"));
        return text;
    }

    Operations operations_{ports_};
    FilterState filter_;
    DocumentTables tables_{session_.database.connection, session_.rights, operations_};
    FilterContext context_{session_, operations_, filter_, tables_};
};

} // namespace quelvarn
