#pragma once

#include "filter/filter_context.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

inline constexpr int ANZAHL_EIGENSCHAFTEN = 12;

// A combo of the page: its values, and the count shown beside it.
struct Werteliste
{
    std::vector<std::string> werte;
    std::string anzahl; // "0" where the one value is empty.
};

// Tab 0 of the filter page: twelve properties, statuses, dates.
class Eigenschaftsbereich
{
public:
    explicit Eigenschaftsbereich(Filterkontext& kontext) : kontext_(kontext) {}

    // --- operations ---
    void wertGewaehlt(int index, std::string_view wert); // CbEigen(1) to CbEigen(12)
    void datumGewaehlt(const Zeitpunkt& tag);            // MonthViewEigen
    void setzeDatumsfeld(int OpDat) { OpDat_ = OpDat; }  // 0 Erstellt, 1 Geaendert
    void setzeBegrenzung(int OpDatBegr) { OpDatBegr_ = OpDatBegr; }
    void statusGewaehlt(int status, bool gesetzt); // ChFilterStat

    // --- mechanisms of the page; faults pass through ---
    void FilterEigenNeu();                                  // All lists, no filter running.
    void FilterListenSchmal(std::string_view FilterString); // All lists under the running filter.
    void FilterListenStatus();                              // All lists under the status condition.

    // --- state ---
    const Werteliste& liste(int index) const { return listen_[static_cast<std::size_t>(index - 1)]; }
    std::string bezeichnung(int index) const; // LblProjektCb and its like
    int OpDat() const { return OpDat_; }
    int OpDatBegr() const { return OpDatBegr_; }
    bool statusVorhanden(int status) const { return statusVorhanden_[static_cast<std::size_t>(status)]; }

private:
    Filterkontext& kontext_;
    std::array<Werteliste, ANZAHL_EIGENSCHAFTEN> listen_;
    std::array<bool, ANZAHL_STATUS> statusVorhanden_{};
    int OpDat_ = 0;
    int OpDatBegr_ = 0;
};

} // namespace quelvarn
