#include "register/quick_filter.h"

#include "documents/document_tables.h"
#include "filter/execution.h"
#include "filter/filter_run.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "register/quick_search.h"
#include "session/error_report.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <utility>

namespace quelvarn {
namespace {

constexpr std::size_t MAX_TEXTE = 2;

// What differs between the two dates of a document.
struct Datumsfeld
{
    std::string_view feld;
    std::string_view person; // Who did it.
    int code;
};
constexpr std::array<Datumsfeld, 2> DATUMSFELDER{{
    {"Erstellt", "Autor", CodeErstellt},
    {"Geaendert", "Bearbeiter", CodeGeaendert},
}};

FilterRow zeileFuerText(const FilterSchritt& schritt)
{
    const auto feld = std::find_if(SUCHFELDER.begin(), SUCHFELDER.end(),
                                   [&](const Suchfeld& kandidat) { return kandidat.feld == schritt.Feldname; });
    return {"DokubezDateiFile", std::string(feld->benennung), schritt.Wert};
}

std::string beschreibung(const std::vector<FilterRow>& werte)
{
    std::string text;
    for (const FilterRow& wert : werte)
        text += (text.empty() ? "" : "; ") + wert.Benennung + " " + wert.Wert;
    return text;
}

} // namespace

Schnellfilter::Schnellfilter(SessionState& session, Operations& operations, FilterState& filter, DocumentTables& tables,
                             const Schnellsuche& suche)
    : session_(session), operations_(operations), ports_(operations.ports()), filter_(filter), tables_(tables),
      suche_(suche)
{}

void Schnellfilter::textFiltern()
{
    if (suche_.CombSuchStr().empty())
        return;
    SuchTextMerken(session_.pages.Suchtexte, suche_.CombSuchStr());
    operations_.perform(Part::LeftBar, "Filterung Text", "Fehler bei der Filterung nach Text!",
                        [this] { filtereText(); });
}

void Schnellfilter::filtereText()
{
    const auto bisher = static_cast<std::size_t>(schritt());
    if (bisher == MAX_TEXTE)
        return ports_.meldungen.warnung("Filterung Text", "Es sind nur maximal 2 Zeichenfolgen möglich!");
    schritte_.resize(bisher);

    std::vector<FilterSchritt> schritte = schritte_;
    const std::string_view davor = suche_.verfahren() == TextBeliebig ? "*" : "";
    schritte.push_back({std::string(suche_.feld().feld),
                        fmt::format("{}{}*", davor, suche_.CombSuchStr()),
                        bisher == 0 ? CodeDatei : CodeText,
                        {}});
    std::vector<FilterRow> werte;
    std::transform(schritte.begin(), schritte.end(), std::back_inserter(werte), zeileFuerText);
    wendeAn(std::move(schritte), std::move(werte), Run::OneByOne);
}

bool Schnellfilter::laeuft() const
{
    return tables_.tab() == tab_ && tables_.current().state() == TableState::Filtered &&
           tables_.current().rows().filterText() == filterText_;
}

int Schnellfilter::schritt() const
{
    return laeuft() ? static_cast<int>(schritte_.size()) : 0;
}

std::string_view Schnellfilter::LblZeitRaum() const
{
    return laeuft() ? std::string_view(zeitraum_) : std::string_view();
}

std::string_view Schnellfilter::LblFilterStep1() const
{
    constexpr std::array<std::string_view, MAX_TEXTE + 1> TEXTE{"", "2-te Filterung?", "2-ter Schritt der Filterung."};
    return TEXTE[static_cast<std::size_t>(schritt())];
}

void Schnellfilter::heute()
{
    zeigeAb(ports_.uhr.jetzt().tagesbeginn(), "Heute,");
}

void Schnellfilter::letzteTage()
{
    zeigeAb(ports_.uhr.jetzt().tagesbeginn().plusTage(-SliderTage_), "Seit");
}

void Schnellfilter::zeigeAb(const Zeitpunkt& tag, std::string_view seit)
{
    operations_.perform(Part::LeftBar, "Filterung Datum", "Fehler bei der Filterung nach Datum!", [&] {
        if (DatumFiltern(tag))
            zeitraum_ = fmt::format("{} {}", seit, formatDatum(tag));
    });
}

bool Schnellfilter::DatumFiltern(const Zeitpunkt& tag)
{
    const Datumsfeld& feld = DATUMSFELDER[static_cast<std::size_t>(OpErstAend_)];
    std::vector<FilterSchritt> schritte{{std::string(feld.feld), formatDatum(tag), feld.code, {}}};
    if (ChAnwender_)
        schritte.push_back({std::string(feld.person), session_.user.Anwender, CodeText, {}});
    std::vector<FilterRow> werte;
    for (const FilterSchritt& schritt : schritte)
        werte.push_back({"FilternDatum", schritt.Feldname, schritt.Wert});
    return wendeAn(std::move(schritte), std::move(werte), Run::Together);
}

void Schnellfilter::setzeDatumsfeld(int OpErstAend)
{
    OpErstAend_ = OpErstAend;
    operations_.changed(Part::LeftBar);
}

void Schnellfilter::setzeNurEigene(bool ChAnwender)
{
    ChAnwender_ = ChAnwender;
    operations_.changed(Part::LeftBar);
}

void Schnellfilter::setzeTage(int SliderTage)
{
    SliderTage_ = std::clamp(SliderTage, 1, MAX_TAGE);
    operations_.changed(Part::LeftBar);
}

bool Schnellfilter::wendeAn(std::vector<FilterSchritt> schritte, std::vector<FilterRow> werte, Run run)
{
    Filterkontext kontext{session_, operations_, filter_, tables_, tables_.tab()};
    DocumentTable& table = kontext.table();
    if (table.count() == 0 || !laufeOderWieVorher(kontext, [&] { return laufe(kontext, schritte, run); }))
        return false;
    const auto left = static_cast<std::size_t>(kontext.zustand().FilterAnzahl);
    werte.resize(left);
    schritte.resize(run == Run::OneByOne ? left : 0);
    schritte_ = std::move(schritte);
    zeitraum_.clear();
    tab_ = kontext.tab;
    filterText_ = table.rows().filterText();
    std::string told = beschreibung(werte);
    table.showFiltered({std::move(werte), filter_.status, std::move(told)});
    kontext.tables.announceRows(kontext.tab);
    reportStepsWithoutRows(kontext);
    return true;
}

bool Schnellfilter::laufe(Filterkontext& kontext, const std::vector<FilterSchritt>& schritte, Run run)
{
    Filterzustand& zustand = kontext.zustand();
    leereFilter(zustand);
    std::copy(schritte.begin(), schritte.end(), zustand.FilterSchritte.begin());
    zustand.FilterAnzahl = static_cast<int>(schritte.size());
    const std::vector<Kettenglied> kette = bildeKette(zustand, schrittfragment);
    if (run == Run::OneByOne) {
        const bool gelaufen = laufeKette(kontext, kette, filter_.status);
        zustand.Schnellfilter = std::exchange(zustand.FilterString, {});
        return gelaufen;
    }
    zustand.Schnellfilter = kette.back().sqlform;
    return setzeFilter(kontext, kette.back().behind(filter_.status));
}

} // namespace quelvarn
