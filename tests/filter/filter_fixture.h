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
        for (Filterzustand& typ : filter_.typen)
            typ.ChFilterStat.fill(true);
        tables_.setWholeLimit(1); // Columns are read when they are wanted, as those of large tables are.
    }

    // A document of the type that the page is open for. Status 3 unless told.
    void dokument(const std::string& DokuBez, const Werte& werte = {})
    {
        std::vector<sql::Zuweisung> zuweisungen{{"DokuBez", DokuBez}, {"RevBez", "0"}};
        bool hatStatus = false;
        for (const auto& [spalte, wert] : werte) {
            zuweisungen.push_back({spalte, wert});
            hatStatus = hatStatus || std::string_view(spalte) == "Status";
        }
        if (!hatStatus)
            zuweisungen.push_back({"Status", 3});
        engine_->fuegeEin(DOKUTYPEN[static_cast<std::size_t>(kontext_.tab)].tabelle, zuweisungen);
    }

    void neuOeffnen() { tables_.reload(kontext_.tab); }
    Recordset& tabelle() { return kontext_.table().rows(); }

    // The documents that the table shows, from the top, "A B C".
    std::string gezeigt()
    {
        const Recordset& zeilen = kontext_.table().visible();
        std::string text;
        for (std::size_t i = 0; zeilen.offen() && i < zeilen.RecordCount(); ++i)
            text += (i > 0 ? " " : "") + alsText(zeilen.Zelle(i, "DokuBez"));
        return text;
    }

    Operations operations_{ports_};
    FilterState filter_;
    DocumentTables tables_{session_, operations_};
    Filterkontext kontext_{session_, operations_, filter_, tables_};
};

} // namespace quelvarn
