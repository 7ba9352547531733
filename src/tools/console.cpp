#include "tools/console.h"

#include "base/number_format.h"

#include <csignal>
#include <fmt/format.h>
#include <utility>

namespace quelvarn::tools {

namespace {

volatile std::sig_atomic_t abbruchGewuenscht = 0;

void merkeAbbruch(int)
{
    abbruchGewuenscht = 1;
}

constexpr auto ABSTAND = std::chrono::milliseconds(150);
constexpr std::uint64_t AUFRUFE_JE_BLICK_AUF_DIE_UHR = 256;

} // namespace

Laufzeitfehler werkzeugfehler(const std::string& beschreibung)
{
    return Laufzeitfehler(0, "qvadmin", beschreibung);
}

void fangeAbbruch()
{
    std::signal(SIGINT, merkeAbbruch);
    std::signal(SIGTERM, merkeAbbruch);
#ifdef SIGBREAK // The window of the console is closed.
    std::signal(SIGBREAK, merkeAbbruch);
#endif
}

void pruefeAbbruch()
{
    if (abbruchGewuenscht != 0)
        throw werkzeugfehler("Abgebrochen. Es wurde nichts verändert.");
}

void Verlaufsanzeige::melde(std::string_view was, std::uint64_t erledigt, std::uint64_t gesamt)
{
    if (aufrufe_++ % AUFRUFE_JE_BLICK_AUF_DIE_UHR != 0)
        return;
    pruefeAbbruch();
    if (!konsole_.terminal)
        return;
    const auto jetzt = std::chrono::steady_clock::now();
    if (jetzt < naechste_)
        return;
    naechste_ = jetzt + ABSTAND;
    zeige(was, erledigt, gesamt);
}

void Verlaufsanzeige::schritt(std::string_view was, std::uint64_t erledigt, std::uint64_t gesamt)
{
    pruefeAbbruch();
    if (konsole_.terminal)
        zeige(was, erledigt, gesamt);
}

void Verlaufsanzeige::zeige(std::string_view was, std::uint64_t erledigt, std::uint64_t gesamt)
{
    if (!painter_)
        painter_.emplace(konsole_.meldungen);
    std::string zeile = fmt::format("{}: {}", was, formatGanzzahl(static_cast<std::int64_t>(erledigt)));
    if (gesamt != 0)
        zeile += fmt::format(" von {}", formatGanzzahl(static_cast<std::int64_t>(gesamt)));
    painter_->show(std::move(zeile));
}

} // namespace quelvarn::tools
