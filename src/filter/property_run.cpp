#include "filter/execution.h"
#include "filter/filter_run.h"
#include "session/error_report.h"

namespace quelvarn {
namespace {

constexpr int SCHRITTE_OHNE_STRUKTUR = 5;

} // namespace

bool ApplyPropertyFilter(Filterkontext& kontext)
{
    Filterzustand& zustand = kontext.zustand();
    const StatusCondition& status = kontext.filter.status;
    if (zustand.FilterAnzahl > SCHRITTE_OHNE_STRUKTUR)
        return false;
    if (zustand.FilterSchritte[0].Wert.empty() && status.StatusFilter.empty())
        return false; // An empty filter changes no rows.
    return laufeOderWieVorher(kontext, [&] {
        std::vector<Kettenglied> kette;
        if (!gesichert(kontext.ports().meldungen, "Erstellen Filterstring", "Fehler beim Erstellen Filterstring!",
                       [&] { kette = bildeKette(zustand, schrittfragment); }))
            return false;
        if (!kette.empty())
            return laufeKette(kontext, kette, status);
        zustand.FilterString.clear();
        return setzeFilter(kontext, Kettenglied().behind(status));
    });
}

} // namespace quelvarn
