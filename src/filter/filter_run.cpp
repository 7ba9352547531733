#include "filter/filter_run.h"

#include "database/sql/conditions.h"
#include "filter/execution.h"
#include "platform/progress.h"

#include <functional>
#include <optional>
#include <utility>

namespace quelvarn {

std::string mitUnd(std::string_view links, std::string_view rechts)
{
    const std::string_view dazwischen = links.empty() || rechts.empty() ? "" : " AND ";
    return std::string(links).append(dazwischen).append(rechts);
}

std::vector<Kettenglied> bildeKette(const Filterzustand& zustand, const Fragmentbildner& fragment)
{
    std::vector<Kettenglied> kette;
    Kettenglied bisher;
    for (int nummer = 0; nummer < zustand.FilterAnzahl; ++nummer) {
        const Schrittfragment neu = fragment(zustand.FilterSchritte[static_cast<std::size_t>(nummer)], nummer);
        bisher.filterform = mitUnd(bisher.filterform, neu.filterform);
        bisher.sqlform = mitUnd(bisher.sqlform, neu.sqlform);
        if (neu.condition)
            bisher.conditions.push_back(neu.condition);
        kette.push_back(bisher);
    }
    return kette;
}

RowFilter Kettenglied::behind(const StatusCondition& status) const
{
    RowFilter filter{mitUnd(status.StatusFilter, filterform)};
    if (SharedCondition scope = sql::statusScope(status.StatusFilterWhere))
        filter.conditions.push_back(std::move(scope));
    filter.conditions.insert(filter.conditions.end(), conditions.begin(), conditions.end());
    return filter;
}

bool setzeFilter(Filterkontext& kontext, RowFilter filter)
{
    LangeArbeit arbeit(kontext.ports().fortschritt, "Die Tabelle wird gefiltert ...");
    kontext.table().rows().Filter(std::move(filter), std::ref(arbeit));
    return !arbeit.aufgegeben();
}

bool laufeKette(Filterkontext& kontext, const std::vector<Kettenglied>& kette, const StatusCondition& status)
{
    Filterzustand& zustand = kontext.zustand();
    const Recordset& zeilen = kontext.table().rows();
    kontext.stepsWithoutRows.clear();
    auto schritt = static_cast<int>(kette.size());
    for (;; --schritt) {
        const Kettenglied& glied = kette[static_cast<std::size_t>(schritt - 1)];
        if (!setzeFilter(kontext, glied.behind(status)))
            return false;
        zustand.FilterAnzahl = schritt;
        zustand.FilterString = glied.sqlform;
        // A single step may leave an empty table.
        if (kette.size() == 1 || zeilen.RecordCount() > 0)
            return true;
        kontext.stepsWithoutRows.push_back(schritt);
        if (schritt == 1)
            return true;
    }
}

bool laufeOderWieVorher(Filterkontext& kontext, const std::function<bool()>& lauf)
{
    const Filterzustand vorher = kontext.zustand();
    Recordset& tabelle = kontext.table().rows();
    const RowFilter filter = tabelle.filter();
    const auto zeile = tabelle.Bof() || tabelle.Eof() ? std::nullopt : std::optional(tabelle.bookmark());
    const auto stelleZurueck = [&] {
        kontext.zustand() = vorher;
        if (tabelle.filterText() != filter.text)
            tabelle.Filter(filter);
        if (zeile)
            tabelle.setzeBookmark(*zeile);
    };
    bool gelaufen = false;
    try {
        gelaufen = lauf();
    } catch (...) {
        stelleZurueck();
        throw;
    }
    if (!gelaufen)
        stelleZurueck();
    return gelaufen;
}

} // namespace quelvarn
