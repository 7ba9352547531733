#include "tools/new_register.h"

#include "base/file_path.h"
#include "base/text.h"
#include "database/faults.h"
#include "database/new_database.h"

#include <fmt/format.h>

namespace quelvarn::tools {
namespace {

// Of a file that is not there yet the engine only knows that it cannot open it.
std::string whyNotMade(const DatabaseFault& fault, const std::filesystem::path& target)
{
    if (fault.kind() != FaultKind::FileGone)
        return fault.what();
    std::error_code none;
    return std::filesystem::is_directory(std::filesystem::absolute(target, none).parent_path(), none)
               ? "In den Ordner kann nicht geschrieben werden."
               : "Der Ordner ist nicht vorhanden.";
}

} // namespace

NeuesRegister::NeuesRegister(std::string_view ziel, Vorhandenes vorhandenes, Konsole& konsole) : anzeige_(konsole)
{
    if (istServerziel(ziel)) {
        bereiteDatenbankVor(ziel, vorhandenes);
        return;
    }
    entwurf_.emplace(pathFromUtf8(ziel), vorhandenes);
    try {
        datei_ = oeffneSqlite(entwurf_->path(), true);
        engine_ = datei_.get();
        engine().beginne();
    } catch (const DatabaseFault& fault) {
        throw werkzeugfehler(
            fmt::format("Das Ziel '{}' lässt sich nicht anlegen: {}", ziel, whyNotMade(fault, pathFromUtf8(ziel))));
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
        entwurf_->takeOver();
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
