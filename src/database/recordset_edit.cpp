#include "database/recordset.h"
#include "database/recordset_core.h"
#include "database/sql/column_value.h"

#include <algorithm>
#include <utility>

namespace quelvarn {

namespace {

constexpr int ZEILE_FEHLT = -2147217864;

// The fault that led here is the one to tell, not that of taking back.
void nimmZurueck(Engine& engine)
{
    try {
        engine.nimmZurueck();
    } catch (const Laufzeitfehler&) {
        return;
    }
}

} // namespace

void Recordset::setzeFeld(std::string_view name, Value wert)
{
    kern_->verlangeSchreibbar();
    const std::size_t feld = kern_->zeilen.feldVon(name);
    wert = sql::speicherwert(wert, Felder()[feld].typ);
    if (!kern_->bearbeitung) {
        kern_->aktuellePosition();
        kern_->bearbeitung = Bearbeitung{false, std::vector<std::optional<Value>>(Felder().size())};
    }
    kern_->bearbeitung->werte[feld] = std::move(wert);
}

void Recordset::AddNew()
{
    kern_->verlangeSchreibbar();
    kern_->beendeBearbeitung();
    kern_->bearbeitung = Bearbeitung{true, std::vector<std::optional<Value>>(Felder().size())};
}

void Recordset::Update()
{
    kern_->beendeBearbeitung();
}

void Recordset::CancelUpdate()
{
    kern_->bearbeitung.reset();
}

void Recordset::Delete()
{
    Kern& kern = *kern_;
    kern.verlangeSchreibbar();
    if (const auto bearbeitung = std::exchange(kern.bearbeitung, {}); bearbeitung && bearbeitung->neu)
        return;
    const Zeilennummer zeile = kern.aktuelleZeile();
    if (kern.stapel())
        kern.wartende.push_back({WartendeAenderung::Art::Geloescht, zeile, {}});
    else if (kern.zeilen.engine())
        kern.zeilen.engine()->loesche(kern.zeilen.tabelle(), kern.zeilen.schluessel(zeile));

    kern.ansicht.entferne(static_cast<std::size_t>(kern.position));
    std::erase(kern.ordnung, zeile);
    kern.geloescht.insert(std::lower_bound(kern.geloescht.begin(), kern.geloescht.end(), zeile), zeile);
    kern.puffer.leere();
}

void Recordset::UpdateBatch()
{
    Kern& kern = *kern_;
    kern.verlangeSchreibbar();
    kern.beendeBearbeitung();
    if (kern.wartende.empty())
        return;
    Engine& engine = *kern.zeilen.engine();
    engine.beginne();
    try {
        for (const WartendeAenderung& aenderung : kern.wartende)
            kern.fuehreAus(aenderung);
        engine.schliesseAb();
    } catch (const Laufzeitfehler&) {
        nimmZurueck(engine);
        throw;
    }
    kern.wartende.clear();
}

void Recordset::Kern::verlangeSchreibbar() const
{
    verlangeOffen();
    if (sperre == SperrTyp::NurLesen || (zeilen.engine() && !zeilen.hatSchluessel()))
        throw recordsetFehler(3251, "Das Recordset ist nur zum Lesen geöffnet.");
}

void Recordset::Kern::beendeBearbeitung()
{
    verlangeOffen();
    // A row that could not be written is as it was before.
    const auto fertige = std::exchange(bearbeitung, {});
    if (!fertige)
        return;
    if (fertige->neu)
        schreibeNeue(*fertige);
    else
        schreibeGeaenderte(*fertige);
    puffer.leere();
}

void Recordset::Kern::schreibeNeue(const Bearbeitung& neue)
{
    Zeilenschluessel schluessel = 0;
    if (zeilen.engine() && !stapel())
        schluessel = zeilen.engine()->fuegeEin(zeilen.tabelle(), zuweisungen(neue));
    const Zeilennummer zeile = zeilen.haengeZeileAn();
    if (zeilen.engine())
        zeilen.setzeSchluessel(zeile, schluessel);
    if (stapel())
        wartende.push_back({WartendeAenderung::Art::Neu, zeile, zuweisungen(neue)});
    uebernimm(zeile, neue);
    ansicht.haengeAn(zeile);
    if (sortiert)
        ordnung.push_back(zeile);
    position = static_cast<std::ptrdiff_t>(ansicht.anzahl()) - 1;
}

void Recordset::Kern::schreibeGeaenderte(const Bearbeitung& geaenderte)
{
    const Zeilennummer zeile = aktuelleZeile();
    WartendeAenderung aenderung{WartendeAenderung::Art::Geaendert, zeile, zuweisungen(geaenderte)};
    if (stapel())
        wartende.push_back(std::move(aenderung));
    else if (zeilen.engine())
        fuehreAus(aenderung);
    uebernimm(zeile, geaenderte);
}

std::vector<sql::Zuweisung> Recordset::Kern::zuweisungen(const Bearbeitung& quelle) const
{
    std::vector<sql::Zuweisung> ergebnis;
    for (std::size_t feld = 0; feld < quelle.werte.size(); ++feld)
        if (quelle.werte[feld])
            ergebnis.push_back({zeilen.felder()[feld].name, *quelle.werte[feld]});
    return ergebnis;
}

void Recordset::Kern::uebernimm(Zeilennummer zeile, const Bearbeitung& quelle)
{
    for (std::size_t feld = 0; feld < quelle.werte.size(); ++feld)
        if (quelle.werte[feld])
            zeilen.setze(zeile, feld, *quelle.werte[feld]);
}

void Recordset::Kern::fuehreAus(const WartendeAenderung& aenderung)
{
    Engine& engine = *zeilen.engine();
    const Zeilenschluessel schluessel = zeilen.schluessel(aenderung.zeile);
    switch (aenderung.art) {
    case WartendeAenderung::Art::Neu:
        zeilen.setzeSchluessel(aenderung.zeile, engine.fuegeEin(zeilen.tabelle(), aenderung.werte));
        return;
    case WartendeAenderung::Art::Geaendert:
        if (!engine.aendere(zeilen.tabelle(), schluessel, aenderung.werte))
            throw recordsetFehler(ZEILE_FEHLT,
                                  "Der Datensatz wurde inzwischen von einem anderen Anwender geändert oder gelöscht.");
        return;
    case WartendeAenderung::Art::Geloescht:
        engine.loesche(zeilen.tabelle(), schluessel);
    }
}

} // namespace quelvarn
