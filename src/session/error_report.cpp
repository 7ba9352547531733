#include "session/error_report.h"

#include "base/text.h"

#include <exception>
#include <fmt/format.h>
#include <optional>

namespace quelvarn {

namespace {

std::optional<RuntimeError> faultOf(const std::function<void()>& operation)
{
    try {
        operation();
        return std::nullopt;
    } catch (const RuntimeError& fault) {
        return fault;
    } catch (const std::exception& fault) {
        return RuntimeError(0, "Quelvarn", fault.what());
    }
}

} // namespace

void Fehlermeldung(Boxes& boxes, const RuntimeError& fault)
{
    const std::string text = lines({
        fmt::format("Fehler Nr. {} wurde erzeugt durch ", fault.number()),
        fault.source(),
        fault.description(),
        "",
        "Es wird empfohlen das Programm abzubrechen!",
        "",
        "OK =               Programm fortsetzen",
        "Abbrechen =   Programm beenden",
    });
    if (boxes.show({"Fehlermeldung", text, Icon::Critical, Buttons::OkCancel}) == Answer::Cancel)
        throw ProgramExit();
}

bool guarded(Boxes& boxes, std::string_view title, const std::function<std::string()>& text,
             const std::function<void()>& operation)
{
    const std::optional<RuntimeError> fault = faultOf(operation);
    if (!fault)
        return true;
    boxes.warn(title, text());
    Fehlermeldung(boxes, *fault);
    return false;
}

bool guarded(Boxes& boxes, std::string_view title, std::string_view text, const std::function<void()>& operation)
{
    return guarded(
        boxes, title, [text] { return std::string(text); }, operation);
}

} // namespace quelvarn
