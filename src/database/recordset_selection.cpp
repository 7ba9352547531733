#include "database/catalog.h"
#include "database/connection.h"
#include "database/recordset.h"
#include "database/recordset_core.h"

#include <numeric>

namespace quelvarn {

void Recordset::OpenZeilen(std::string_view tabelle, std::vector<Zeilenschluessel> schluessel, Connection& verbindung)
{
    auto neu = std::make_unique<Kern>();
    neu->klein = kern_->klein;
    if (!verbindung.offen())
        throw recordsetFehler(3709, "Die Verbindung zur Datenbank ist nicht geöffnet.");
    neu->zeilen.oeffneZeilen(verbindung.engine_, tabelle, std::move(schluessel), neu->klein);
    neu->ansicht.zeigeAlle(neu->zeilen.anzahl());
    neu->offen = true;
    kern_ = std::move(neu);
}

void Zeilenspeicher::oeffneZeilen(std::shared_ptr<Engine> engine, std::string_view tabelle,
                                  std::vector<Zeilenschluessel> schluessel, std::size_t klein)
{
    const auto schema = engine->findTabelle(tabelle);
    if (!schema)
        throw recordsetFehler(FEHLER_TABELLE_FEHLT, "Die Tabelle '" + std::string(tabelle) + "' gibt es nicht.");
    *this = {};
    engine_ = std::move(engine);
    abfrage_.tabelle = schema->name;
    felder_ = schema->spalten;
    spalten_.resize(felder_.size());
    hatSchluessel_ = true;
    anzahl_ = schluessel.size();
    schluessel_ = std::move(schluessel);
    if (anzahl_ > klein)
        return;

    std::vector<Zeilennummer> zeilen(anzahl_);
    std::iota(zeilen.begin(), zeilen.end(), Zeilennummer{0});
    std::vector<std::size_t> alle(felder_.size());
    std::iota(alle.begin(), alle.end(), std::size_t{0});
    const std::vector<Value> werte = leseZellen(zeilen, alle);
    for (std::size_t feld = 0; feld < felder_.size(); ++feld) {
        spalten_[feld] = neueSpalte(felder_[feld].typ);
        for (std::size_t zeile = 0; zeile < anzahl_; ++zeile)
            spalten_[feld]->haengeAn(werte[zeile * felder_.size() + feld]);
        spalten_[feld]->schliesseAb();
    }
}

} // namespace quelvarn
