#include "tools/neues_register.h"

#include "base/file_path.h"
#include "base/text.h"
#include "database/create.h"
#include "tools/prozess.h"

#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

void pruefeZieldatei(const std::filesystem::path& ziel, Vorhandenes vorhandenes)
{
    std::error_code fehler;
    if (!std::filesystem::exists(ziel, fehler))
        return;
    if (!std::filesystem::is_regular_file(ziel, fehler))
        throw werkzeugfehler(fmt::format("Das Ziel '{}' ist keine Datei.", utf8FromPath(ziel)));
    if (vorhandenes == Vorhandenes::Ablehnen)
        throw werkzeugfehler(
            fmt::format("Das Ziel '{}' gibt es schon. Mit --ersetzen wird es ersetzt.", utf8FromPath(ziel)));
    if (erkenneDatenbank(ziel) != DatenbankArt::SQLite)
        throw werkzeugfehler(
            fmt::format("Das Ziel '{}' ist kein Register und wird nicht ersetzt.", utf8FromPath(ziel)));
}

// Windows replaces no file that a program has open, and says only that it may not.
Laufzeitfehler nichtUebernommen(const std::filesystem::path& ziel, const std::error_code& fehler)
{
    const bool abgelehnt = fehler == std::errc::permission_denied || fehler == std::errc::device_or_resource_busy;
    std::error_code unbekannt;
    if (abgelehnt && std::filesystem::exists(ziel, unbekannt))
        return werkzeugfehler(fmt::format("Das Ziel '{}' lässt sich nicht ersetzen: ein Programm hat es offen, oder es "
                                          "ist schreibgeschützt. Das alte Register ist noch da.",
                                          utf8FromPath(ziel)));
    return werkzeugfehler(fmt::format("'{}' lässt sich nicht anlegen: {}", utf8FromPath(ziel), fehler.message()));
}

} // namespace

NeuesRegister::Entwurf::Entwurf(std::filesystem::path ziel, Vorhandenes vorhandenes) : ziel_(std::move(ziel))
{
    pruefeZieldatei(ziel_, vorhandenes);
    pfad_ = ziel_;
    pfad_ += fmt::format(".neu-{}", prozessnummer());
}

NeuesRegister::Entwurf::~Entwurf()
{
    std::error_code fehler;
    for (const char* anhang : {"", "-journal"})
        std::filesystem::remove(std::filesystem::path(pfad_) += anhang, fehler);
}

void NeuesRegister::Entwurf::uebernimm()
{
    std::error_code fehler;
    if (const auto vorher = std::filesystem::status(ziel_, fehler); std::filesystem::exists(vorher))
        std::filesystem::permissions(pfad_, vorher.permissions(), fehler);
    // A journal that an interrupted program left would be played into the new file.
    std::filesystem::remove(std::filesystem::path(ziel_) += "-journal", fehler);
    std::filesystem::rename(pfad_, ziel_, fehler);
    if (fehler)
        throw nichtUebernommen(ziel_, fehler);
}

NeuesRegister::NeuesRegister(std::string_view ziel, Vorhandenes vorhandenes, Konsole& konsole) : anzeige_(konsole)
{
    if (istServerziel(ziel)) {
        bereiteDatenbankVor(ziel, vorhandenes);
        return;
    }
    entwurf_.emplace(pathFromUtf8(ziel), vorhandenes);
    try {
        datei_ = oeffneSqlite(entwurf_->pfad(), true);
        engine_ = datei_.get();
        engine().beginne();
    } catch (const Laufzeitfehler& fehler) {
        throw werkzeugfehler(fmt::format("Das Ziel '{}' lässt sich nicht anlegen: {}", ziel, fehler.what()));
    }
    offen_ = true;
}

NeuesRegister::~NeuesRegister()
{
    schreiber_.reset();
    try {
        if (offen_)
            engine().nimmZurueck();
    } catch (const Laufzeitfehler&) {
        // The connection is gone, and what was begun with it.
    }
}

void NeuesRegister::bereiteDatenbankVor(std::string_view ziel, Vorhandenes vorhandenes)
{
    verbindung_.OpenAdresse(ziel);
    engine_ = &verbindung_.engine();
    engine().beginne();
    offen_ = true;
    for (const Tabellenschema& tabelle : registerschema()) {
        if (!engine().findTabelle(tabelle.name))
            continue;
        if (vorhandenes == Vorhandenes::Ablehnen)
            throw werkzeugfehler("In der Datenbank liegt schon ein Register. Mit --ersetzen wird es ersetzt.");
        engine().entferneTabelle(tabelle.name);
    }
}

void NeuesRegister::tabelle(const Tabellenschema& tabelle)
{
    beendeTabelle();
    engine().legeTabelleAn(tabelle);
    tabellen_.push_back(tabelle);
    schreiber_ = engine().massenschreiber(tabelle.name, tabelle.spalten);
}

void NeuesRegister::zeile(std::span<const Value> werte)
{
    schreiber_->zeile(werte);
    anzeige_.melde(tabellen_.back().name, ++zeilen_);
}

void NeuesRegister::beendeTabelle()
{
    if (schreiber_)
        schreiber_->beende();
    schreiber_.reset();
}

void NeuesRegister::schliesseAb()
{
    beendeTabelle();
    for (std::size_t i = 0; i < tabellen_.size(); ++i) {
        anzeige_.schritt("Indexe der Tabelle", i + 1, tabellen_.size());
        engine().legeIndexeAn(tabellen_[i]);
    }
    engine().schliesseAb();
    offen_ = false;
    datei_.reset();
    if (entwurf_)
        entwurf_->uebernimm();
}

bool istServerziel(std::string_view ziel)
{
    if (startsWithIgnoringCase(ziel, "postgresql://") || startsWithIgnoringCase(ziel, "postgres://"))
        return true;
    std::error_code fehler;
    return std::filesystem::is_regular_file(pathFromUtf8(ziel), fehler) &&
           erkenneDatenbank(pathFromUtf8(ziel)) == DatenbankArt::PostgreSQL;
}

} // namespace quelvarn::tools
