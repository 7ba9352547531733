#include "base/text.h"
#include "filter/execution.h"
#include "platform/boxes.h"

#include <fmt/format.h>
#include <utility>

namespace quelvarn {

void ReportNoRecords(Filterkontext& kontext, int schritt)
{
    const bool mitStatus = !kontext.filter.status.StatusFilter.empty();
    std::string text;
    if (schritt > 1)
        text = fmt::format("Filter {}:\nEs gibt keine Datensätze mit diesen Filtervorgaben{}\n"
                           "Es wird das Ergebnis bis Filter {} angezeigt.\n",
                           schritt, mitStatus ? "\nunter Berücksichtigung der Status-Werte!" : "!", schritt - 1);
    else
        text = fmt::format("Es gibt keine Datensätze mit diesen Filtervorgaben!{}\n\n",
                           mitStatus ? "\nunter Berücksichtigung der Status-Werte!" : "");
    kontext.ports().meldungen.warnung("Filtervorgaben",
                                      text + zeilen({"Mögliche Ursache:", "- Sie haben keine Zugriffsberechtigung.",
                                                     "- Es ist ein <Neuaufbau> erforderlich."}));
}

void reportStepsWithoutRows(Filterkontext& kontext)
{
    for (const int schritt : std::exchange(kontext.stepsWithoutRows, {}))
        ReportNoRecords(kontext, schritt);
}

} // namespace quelvarn
