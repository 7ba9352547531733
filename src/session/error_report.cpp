#include "session/error_report.h"

#include "base/text.h"

#include <exception>
#include <fmt/format.h>
#include <optional>

namespace quelvarn {

namespace {

std::optional<Laufzeitfehler> fehlerVon(const std::function<void()>& operation)
{
    try {
        operation();
        return std::nullopt;
    } catch (const Laufzeitfehler& fehler) {
        return fehler;
    } catch (const std::exception& fehler) {
        return Laufzeitfehler(0, "Quelvarn", fehler.what());
    }
}

} // namespace

void Fehlermeldung(Meldungen& meldungen, const Laufzeitfehler& fehler)
{
    const std::string text = zeilen({
        fmt::format("Fehler Nr. {} wurde erzeugt durch ", fehler.nummer()),
        fehler.quelle(),
        fehler.beschreibung(),
        "",
        "Es wird empfohlen das Programm abzubrechen!",
        "",
        "OK =               Programm fortsetzen",
        "Abbrechen =   Programm beenden",
    });
    if (meldungen.zeige({"Fehlermeldung", text, Symbol::Kritisch, Knoepfe::OkAbbrechen}) == Antwort::Abbrechen)
        throw ProgrammEnde();
}

bool gesichert(Meldungen& meldungen, std::string_view titel, const std::function<std::string()>& text,
               const std::function<void()>& operation)
{
    const std::optional<Laufzeitfehler> fehler = fehlerVon(operation);
    if (!fehler)
        return true;
    meldungen.warnung(titel, text());
    Fehlermeldung(meldungen, *fehler);
    return false;
}

bool gesichert(Meldungen& meldungen, std::string_view titel, std::string_view text,
               const std::function<void()>& operation)
{
    return gesichert(
        meldungen, titel, [text] { return std::string(text); }, operation);
}

} // namespace quelvarn
