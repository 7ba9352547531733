#pragma once

#include "filter/filter_context.h"
#include "filter/value_list.h"

#include <array>
#include <string>
#include <string_view>

namespace quelvarn {

inline constexpr int ANZAHL_EIGENSCHAFTEN = 12;

// Tab 0 of the filter page: twelve properties, statuses, dates.
class Eigenschaftsbereich
{
public:
    explicit Eigenschaftsbereich(Filterkontext& kontext);

    // --- operations ---
    void wertGewaehlt(int index, std::string_view wert); // CbEigen(1) to CbEigen(12)
    void datumGewaehlt(const Zeitpunkt& tag);            // MonthViewEigen
    void setzeDatumsfeld(int OpDat) { OpDat_ = OpDat; }  // 0 Erstellt, 1 Geaendert
    void setzeBegrenzung(int OpDatBegr) { OpDatBegr_ = OpDatBegr; }
    void statusGewaehlt(int status, bool gesetzt); // ChFilterStat

    // --- mechanisms of the page; a fault passes through when the lists that can be filled are ---
    // Read from the columns of the open table. Reading given up leaves them empty.
    void FilterEigenNeu() { FilterListenSchmal({}); }       // All lists, no filter running.
    void FilterListenStatus() { FilterListenSchmal({}); }   // The same after the statuses changed.
    void FilterListenSchmal(std::string_view FilterString); // All lists under the running filter.

    // --- state ---
    const Werteliste& liste(int index) const { return listen_[static_cast<std::size_t>(index - 1)]; }
    std::string bezeichnung(int index) const; // LblProjektCb and its like
    int OpDat() const { return OpDat_; }
    int OpDatBegr() const { return OpDatBegr_; }
    // Some row under the running filter has it; whether it is ticked does not matter.
    bool statusVorhanden(int status) const { return statusVorhanden_[static_cast<std::size_t>(status)]; }

private:
    void leere();
    void fuelleStatus(Recordset& tabelle, const RowFilter& filter);
    void fuelleListe(std::size_t nummer, Recordset& tabelle, std::span<const Bookmark> zeilen);

    Filterkontext& kontext_;
    std::array<Werteliste, ANZAHL_EIGENSCHAFTEN> listen_;
    std::array<bool, ANZAHL_STATUS> statusVorhanden_{};
    int OpDat_ = 0;
    int OpDatBegr_ = 0;
};

} // namespace quelvarn
