#include "database/row_store.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "database/recordset_keys.h"
#include "database/recordset_sort.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>
#include <utility>

namespace quelvarn {

namespace {

bool gleicherName(std::string_view links, std::string_view rechts)
{
    return links.size() == rechts.size() && startsWithIgnoringCase(links, rechts);
}

Spaltenliste neueSpalten(const std::vector<Spalte>& felder)
{
    Spaltenliste spalten;
    for (const Spalte& feld : felder)
        spalten.push_back(neueSpalte(feld.typ));
    return spalten;
}

} // namespace

void Zeilenspeicher::haengeFeldAn(Spalte feld)
{
    spalten_.push_back(neueSpalte(feld.typ));
    felder_.push_back(std::move(feld));
}

void Zeilenspeicher::leere()
{
    spalten_ = neueSpalten(felder_);
    anzahl_ = 0;
}

void Zeilenspeicher::oeffne(std::shared_ptr<Engine> engine, sql::Select abfrage, const Oeffnung& oeffnung)
{
    *this = {};
    engine_ = std::move(engine);
    abfrage_ = std::move(abfrage);
    const EngineFaehigkeiten kann = engine_->faehigkeiten();
    // To write, a row of DISTINCT must be one certain row of the table: the first of its equals.
    const bool ersteZeilen = abfrage_.distinct && oeffnung.schreibbar && kann.zeilenschluessel;
    const bool nurNeue = ersteZeilen || (abfrage_.distinct && !kann.distinctBlind);
    if (ersteZeilen)
        abfrage_.distinct = false;
    hatSchluessel_ = kann.zeilenschluessel && (kann.spaltenNachladen || oeffnung.schreibbar) && !abfrage_.anzahl &&
                     !abfrage_.distinct;

    Doppelsuche doppelte;
    const bool ganz = oeffnung.ganzLesen || nurNeue || !hatSchluessel_ || !kann.spaltenNachladen;
    if (!leseGanz(ganz ? 0 : oeffnung.klein, nurNeue ? &doppelte : nullptr))
        leseSchluessel();
    if (abfrage_.distinct && !kann.distinctBlind)
        ordneNeu();
    for (const auto& spalte : spalten_)
        if (spalte)
            spalte->schliesseAb();
}

// Reads all columns; false, and nothing is there, when there are more rows than `hoechstens` (0: no limit).
bool Zeilenspeicher::leseGanz(std::size_t hoechstens, Doppelsuche* doppelte)
{
    const auto leser = engine_->lese(abfrage_, hatSchluessel_ ? MitSchluessel::Ja : MitSchluessel::Nein,
                                     hoechstens == 0 ? 0 : hoechstens + 1);
    felder_ = leser->spalten();
    spalten_ = neueSpalten(felder_);
    haengeZeilenAn(*leser, spalten_, hatSchluessel_ ? &schluessel_ : nullptr, doppelte);
    anzahl_ = felder_.empty() ? 0 : spalten_[0]->anzahl();
    if (hoechstens == 0 || anzahl_ <= hoechstens)
        return true;
    spalten_.clear();
    spalten_.resize(felder_.size());
    schluessel_.clear();
    return false;
}

// An engine whose DISTINCT heeds case does not sort it as the register does.
void Zeilenspeicher::ordneNeu()
{
    std::vector<Sortierfeld> felder;
    for (const sql::Sortierung& sortierung : abfrage_.orderBy)
        felder.push_back({feldVon(sortierung.spalte), sortierung.absteigend});
    std::vector<Zeilennummer> reihe(anzahl_);
    std::iota(reihe.begin(), reihe.end(), Zeilennummer{0});
    sortiere(reihe, felder, [&](std::size_t feld) -> const Column& { return spalte(feld); });
    for (auto& alte : spalten_) {
        auto neue = neueSpalte(alte->typ());
        for (const Zeilennummer zeile : reihe)
            neue->haengeAn(alte->wert(zeile));
        alte = std::move(neue);
    }
}

// Reads the keys and the columns of the sort order in one pass; without a sort order the first column.
void Zeilenspeicher::leseSchluessel()
{
    std::vector<std::size_t> felder;
    for (const sql::Sortierung& sortierung : abfrage_.orderBy) {
        const auto feld = findeFeld(sortierung.spalte);
        if (feld && std::find(felder.begin(), felder.end(), *feld) == felder.end())
            felder.push_back(*feld);
    }
    const bool ersteSortiert = !felder.empty() && findeFeld(abfrage_.orderBy.front().spalte) == felder.front();
    if (felder.empty())
        felder.push_back(0);

    Spaltenliste gelesen;
    for (const std::size_t feld : felder)
        gelesen.push_back(gelesen.empty() && ersteSortiert ? neueSortierteSpalte(felder_[feld].typ)
                                                           : neueSpalte(felder_[feld].typ));
    std::vector<std::string> alle = std::exchange(abfrage_.spalten, namen(felder));
    const auto leser = engine_->lese(abfrage_, MitSchluessel::Ja);
    haengeZeilenAn(*leser, gelesen, &schluessel_);
    abfrage_.spalten = std::move(alle);
    anzahl_ = schluessel_.size();
    schluessel_.shrink_to_fit();
    for (std::size_t i = 0; i < felder.size(); ++i)
        spalten_[felder[i]] = std::move(gelesen[i]);
}

bool Zeilenspeicher::lade(std::span<const std::size_t> gewuenscht, const Fortschritt& fortschritt)
{
    std::vector<std::size_t> felder;
    Spaltenliste gelesen;
    for (const std::size_t feld : gewuenscht) {
        if (geladen(feld) || std::find(felder.begin(), felder.end(), feld) != felder.end())
            continue;
        felder.push_back(feld);
        gelesen.push_back(neueSpalte(felder_[feld].typ));
        gelesen.back()->setzeAnzahl(anzahl_);
    }
    if (felder.empty())
        return true;

    const auto leser = leseUnsortiert(felder);
    Schluesselkarte karte(schluessel_);
    if (!setzeZellen(*leser, gelesen, karte, fortschritt, anzahl_))
        return false;

    setzeEigene(gelesen, felder);
    for (std::size_t i = 0; i < felder.size(); ++i) {
        gelesen[i]->schliesseAb();
        spalten_[felder[i]] = std::move(gelesen[i]);
    }
    return true;
}

// The statement is whole again also when the engine fails: the recordset stays in use.
std::unique_ptr<Zeilenleser> Zeilenspeicher::leseUnsortiert(std::span<const std::size_t> felder)
{
    struct Rueckgabe
    {
        ~Rueckgabe()
        {
            abfrage.spalten = std::move(spalten);
            abfrage.orderBy = std::move(ordnung);
        }
        sql::Select& abfrage;
        std::vector<std::string> spalten;
        std::vector<sql::Sortierung> ordnung;
    };
    const Rueckgabe rueckgabe{abfrage_, std::exchange(abfrage_.spalten, namen(felder)),
                              std::exchange(abfrage_.orderBy, {})};
    return engine_->lese(abfrage_, MitSchluessel::Ja);
}

// Rows changed or added here, by their keys: they may no longer meet the recordset's own condition.
void Zeilenspeicher::setzeEigene(Spaltenliste& spalten, std::span<const std::size_t> felder)
{
    std::sort(eigene_.begin(), eigene_.end());
    eigene_.erase(std::unique(eigene_.begin(), eigene_.end()), eigene_.end());
    const std::vector<Value> werte = leseZellen(eigene_, felder);
    for (std::size_t i = 0; i < werte.size(); ++i)
        spalten[i % felder.size()]->setze(eigene_[i / felder.size()], werte[i]);
}

std::vector<Value> Zeilenspeicher::leseZellen(std::span<const Zeilennummer> zeilen,
                                              std::span<const std::size_t> felder) const
{
    std::vector<Value> werte(zeilen.size() * felder.size());
    if (werte.empty())
        return werte;
    std::vector<Zeilenschluessel> schluessel;
    std::unordered_map<Zeilenschluessel, std::size_t> plaetze;
    for (const Zeilennummer zeile : zeilen) {
        plaetze.emplace(schluessel_[zeile], schluessel.size());
        schluessel.push_back(schluessel_[zeile]);
    }
    const auto leser = engine_->leseZeilen(abfrage_.tabelle, namen(felder), schluessel);
    while (leser->next()) {
        const auto platz = plaetze.find(leser->schluessel());
        if (platz == plaetze.end())
            continue;
        for (std::size_t i = 0; i < felder.size(); ++i)
            werte[platz->second * felder.size() + i] = leser->wert(i);
    }
    return werte;
}

std::vector<std::string> Zeilenspeicher::namen(std::span<const std::size_t> felder) const
{
    std::vector<std::string> namen;
    for (const std::size_t feld : felder)
        namen.push_back(felder_[feld].name);
    return namen;
}

std::optional<std::size_t> Zeilenspeicher::findeFeld(std::string_view name) const
{
    for (std::size_t feld = 0; feld < felder_.size(); ++feld)
        if (felder_[feld].name == name)
            return feld;
    for (std::size_t feld = 0; feld < felder_.size(); ++feld)
        if (gleicherName(felder_[feld].name, name))
            return feld;
    return std::nullopt;
}

std::size_t Zeilenspeicher::feldVon(std::string_view name) const
{
    if (const auto feld = findeFeld(name))
        return *feld;
    throw Laufzeitfehler(3265, "Recordset", "Das Feld '" + std::string(name) + "' gibt es in diesem Recordset nicht.");
}

Zeilennummer Zeilenspeicher::haengeZeileAn()
{
    const auto zeile = static_cast<Zeilennummer>(anzahl_++);
    for (const auto& spalte : spalten_)
        if (spalte)
            spalte->setzeAnzahl(anzahl_);
    if (hatSchluessel_)
        schluessel_.push_back(0);
    if (engine_)
        eigene_.push_back(zeile);
    return zeile;
}

void Zeilenspeicher::setze(Zeilennummer zeile, std::size_t feld, const Value& wert)
{
    if (geladen(feld))
        spalten_[feld]->setze(zeile, wert);
    if (engine_ && (eigene_.empty() || eigene_.back() != zeile))
        eigene_.push_back(zeile);
}

std::size_t Zeilenspeicher::speicher() const
{
    std::size_t bytes = schluessel_.capacity() * sizeof(Zeilenschluessel);
    for (const auto& spalte : spalten_)
        bytes += spalte ? spalte->speicher() : 0;
    return bytes;
}

} // namespace quelvarn
