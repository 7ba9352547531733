#include "database/postgresql/handle.h"

#include "database/catalog.h"
#include "database/postgresql/reader.h"
#include "database/postgresql/server_faults.h"

#include <libpq-fe.h>

namespace quelvarn::postgresql {
namespace {

constexpr std::string_view TRANSAKTION_VERLOREN = "Die begonnenen Änderungen wurden nicht geschrieben.";
constexpr std::string_view WIRKUNG_UNGEWISS = "Ob die Änderung noch geschrieben wurde, ist ungewiss.";

} // namespace

std::shared_ptr<Handle> Handle::oeffne(std::string_view adresse, Patience* patience)
{
    std::shared_ptr<Handle> handle(new Handle(adresse, patience));
    handle->link_.connect();
    return handle;
}

void Handle::bereite()
{
    if (link_.waiting())
        throw Laufzeitfehler(FEHLER_ALLGEMEIN, "PostgreSQL", "Die Antwort der Datenbank steht noch aus.");
    machFrei();
    if (link_.alive())
        return;
    link_.drop();
    if (transaktion_.offen())
        link_.throwLost(TRANSAKTION_VERLOREN);
    link_.connect();
    if (verbundenAnders)
        verbundenAnders();
}

std::string_view Handle::wennVerloren() const
{
    return transaktion_.offen() ? TRANSAKTION_VERLOREN : WIRKUNG_UNGEWISS;
}

bool Handle::darfWiederholen(const DatabaseFault& fehler) const
{
    return fehler.kind() == FaultKind::ConnectionLost && !link_.connected() && !transaktion_.offen() &&
           !dynamic_cast<const ServerSilent*>(&fehler);
}

template <class Lauf> Ergebnis Handle::wiederholbar(Lauf lauf)
{
    bereite();
    try {
        return lauf();
    } catch (const DatabaseFault& fehler) {
        if (!darfWiederholen(fehler))
            throw;
    }
    bereite();
    return lauf();
}

Ergebnis Handle::lies(const std::string& sql, std::span<const Value> parameter)
{
    return wiederholbar([&] {
        link_.send(sql, parameter, transaktion_.offen() ? TRANSAKTION_VERLOREN : "");
        return link_.answer();
    });
}

Ergebnis Handle::fuehreAus(const std::string& sql)
{
    bereite();
    link_.send(sql, wennVerloren());
    return link_.answer();
}

Ergebnis Handle::fuehreAus(const std::string& sql, std::span<const Value> parameter)
{
    bereite();
    link_.send(sql, parameter, wennVerloren());
    return link_.answer();
}

Ergebnis Handle::starte(const std::string& sql, std::span<const Value> parameter, Leser& leser)
{
    return wiederholbar([&] {
        link_.send(sql, parameter, transaktion_.offen() ? TRANSAKTION_VERLOREN : "");
        link_.singleRows();
        liest_ = &leser;
        return naechstes();
    });
}

Ergebnis Handle::naechstes()
{
    try {
        return link_.next();
    } catch (...) {
        liest_ = nullptr;
        throw;
    }
}

void Handle::meldeAb(const Leser& leser) noexcept
{
    if (liest_ != &leser)
        return;
    liest_ = nullptr;
    try {
        link_.drain();
    } catch (...) {
        link_.drop(); // Nothing that was asked for is missing. The next statement connects anew.
    }
}

void Handle::machFrei()
{
    if (liest_)
        liest_->holeRest();
}

void Handle::beginne()
{
    wiederholbar([&] {
        link_.send(transaktion_.beginn(), transaktion_.offen() ? TRANSAKTION_VERLOREN : "");
        return link_.answer();
    });
    transaktion_.begonnen();
}

void Handle::schliesseAb()
{
    bereite();
    const bool ganz = transaktion_.abschluss() == "COMMIT";
    link_.send(transaktion_.abschluss(), ganz ? WIRKUNG_UNGEWISS : TRANSAKTION_VERLOREN);
    const Ergebnis ergebnis = link_.answer();
    // The server answers so, and with no fault, when a statement of the transaction had failed.
    if (std::string_view(PQcmdStatus(ergebnis.get())) == "ROLLBACK")
        throw Laufzeitfehler(FEHLER_ALLGEMEIN, "PostgreSQL",
                             "Die Änderungen wurden zurückgenommen, weil eine von ihnen gescheitert ist.");
    transaktion_.beendet();
}

void Handle::nimmZurueck()
{
    const std::string ruecknahme = transaktion_.ruecknahme();
    transaktion_.beendet();
    if (!link_.connected())
        return;
    try {
        machFrei();
        link_.send(ruecknahme, "");
        link_.answer();
    } catch (const DatabaseFault&) {
        if (link_.connected())
            throw;
    }
}

} // namespace quelvarn::postgresql
