#include "filter/property_section.h"

#include "base/date_time.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "database/sql/conditions.h"
#include "filter/execution.h"
#include "filter/fragments.h"
#include "platform/progress.h"

#include <exception>
#include <functional>
#include <optional>

namespace quelvarn {
namespace {

struct Eigenschaft
{
    std::string_view feld;
    bool nurBlankGilt; // A value of blanks alone is listed.
};

// By the index of CbEigen, minus 1.
constexpr std::array<Eigenschaft, ANZAHL_EIGENSCHAFTEN> EIGENSCHAFTEN{{
    {"Projekt", false},
    {"Titel", false},
    {"Thema", false},
    {"Firma", false},
    {"Kategorie", false},
    {"Material", false},
    {"Autor", false},
    {"Manager", false},
    {"Bearbeiter", false},
    {"Hauptmerkmal_A", true},
    {"Hauptmerkmal_B", true},
    {"Stichwoerter", false},
}};

// Those columns of the lists that the table has; one that it lacks is a fault of its own list.
std::vector<std::string> spaltenDerListen(const Recordset& tabelle)
{
    std::vector<std::string> spalten{"Status"};
    for (const Eigenschaft& eigenschaft : EIGENSCHAFTEN)
        spalten.emplace_back(eigenschaft.feld);
    std::erase_if(spalten, [&](const std::string& name) { return !tabelle.hatFeld(name); });
    return spalten;
}

} // namespace

Eigenschaftsbereich::Eigenschaftsbereich(Filterkontext& kontext) : kontext_(kontext)
{
    leere();
}

std::string Eigenschaftsbereich::bezeichnung(int index) const
{
    return anzeigename(kontext_.session, EIGENSCHAFTEN[static_cast<std::size_t>(index - 1)].feld);
}

void Eigenschaftsbereich::wertGewaehlt(int index, std::string_view wert)
{
    if (wert.empty())
        return;
    const std::string_view feld = EIGENSCHAFTEN[static_cast<std::size_t>(index - 1)].feld;
    AddFilterStep(kontext_, wert, feld, 0, {"", bezeichnung(index)});
    kontext_.operations.changed(Part::FilterPage);
}

void Eigenschaftsbereich::datumGewaehlt(const Zeitpunkt& tag)
{
    const std::string feld = OpDat_ == 1 ? "Geaendert" : "Erstellt";
    const int Operator = OpDatBegr_ == 0 || OpDatBegr_ == 1 ? OpDatBegr_ : 2;
    AddFilterStep(kontext_, formatDatum(tag), feld, Operator, {"Kalender", feld});
    kontext_.operations.changed(Part::FilterPage);
}

void Eigenschaftsbereich::statusGewaehlt(int status, bool gesetzt)
{
    kontext_.zustand().ChFilterStat[static_cast<std::size_t>(status)] = gesetzt;
    BuildStatusFilter(kontext_.filter, kontext_.tab);
    kontext_.operations.changed(Part::FilterPage);
}

void Eigenschaftsbereich::leere()
{
    listen_ = {};
    statusVorhanden_.fill(true);
}

void Eigenschaftsbereich::FilterListenSchmal(std::string_view FilterString)
{
    leere();
    Recordset& tabelle = kontext_.table().rows();
    LangeArbeit arbeit(kontext_.ports().fortschritt, "Filterlisten werden gefüllt ...");
    if (!tabelle.ladeSpalten(spaltenDerListen(tabelle), std::ref(arbeit)))
        return;
    RowFilter filter;
    if (SharedCondition condition = filterCondition(FilterString))
        filter.conditions.push_back(std::move(condition));
    fuelleStatus(tabelle, filter);
    if (SharedCondition status = sql::statusScope(kontext_.filter.status.StatusFilterWhere))
        filter.conditions.push_back(std::move(status));
    const auto zeilen = tabelle.waehle(filter, std::ref(arbeit));
    if (!zeilen)
        return;
    std::exception_ptr erster;
    for (std::size_t i = 0; i < EIGENSCHAFTEN.size() && arbeit(i, EIGENSCHAFTEN.size()); ++i) {
        try {
            fuelleListe(i, tabelle, *zeilen);
        } catch (const Laufzeitfehler&) {
            erster = erster ? erster : std::current_exception();
        }
    }
    if (erster)
        std::rethrow_exception(erster);
}

void Eigenschaftsbereich::fuelleStatus(Recordset& tabelle, const RowFilter& filter)
{
    const auto zeilen = tabelle.waehle(filter);
    statusVorhanden_.fill(false);
    for (const double status : tabelle.verschiedeneZahlen("Status", *zeilen))
        if (status >= 0 && status < ANZAHL_STATUS)
            statusVorhanden_[static_cast<std::size_t>(status)] = true;
}

void Eigenschaftsbereich::fuelleListe(std::size_t nummer, Recordset& tabelle, std::span<const Bookmark> zeilen)
{
    const auto [feld, nurBlankGilt] = EIGENSCHAFTEN[nummer];
    const auto gilt = [nurBlankGilt = nurBlankGilt](std::string_view text) {
        return !(nurBlankGilt ? text : trimRightBlanks(text)).empty();
    };
    listen_[nummer] = werteliste(tabelle.verschiedeneTexte(feld, zeilen, gilt));
}

} // namespace quelvarn
