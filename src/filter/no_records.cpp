#include "filter/no_records.h"

#include "base/text.h"
#include "filter/filter_context.h"
#include "platform/boxes.h"

#include <fmt/format.h>
#include <utility>

namespace quelvarn {

void ReportNoRecords(FilterContext& context, int step)
{
    const bool withStatus = !context.filter.status.StatusFilter.empty();
    std::string text;
    if (step > 1)
        text = fmt::format("Filter {}:\nEs gibt keine Datensätze mit diesen Filtervorgaben{}\n"
                           "Es wird das Ergebnis bis Filter {} angezeigt.\n",
                           step, withStatus ? "\nunter Berücksichtigung der Status-Werte!" : "!", step - 1);
    else
        text = fmt::format("Es gibt keine Datensätze mit diesen Filtervorgaben!{}\n\n",
                           withStatus ? "\nunter Berücksichtigung der Status-Werte!" : "");
    context.ports().boxes.warn("Filtervorgaben",
                               text + lines({"Mögliche Ursache:", "- Sie haben keine Zugriffsberechtigung.",
                                             "- Es ist ein <Neuaufbau> erforderlich."}));
}

void reportStepsWithoutRows(FilterContext& context)
{
    for (const int step : std::exchange(context.stepsWithoutRows, {}))
        ReportNoRecords(context, step);
}

} // namespace quelvarn
