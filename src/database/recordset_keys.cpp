#include "database/recordset_keys.h"

#include <algorithm>
#include <limits>

namespace quelvarn {

namespace {

constexpr Zeilennummer KEINE = std::numeric_limits<Zeilennummer>::max();
// An array may have so many places for each row.
constexpr std::uint64_t PLAETZE_JE_ZEILE = 4;

} // namespace

Schluesselkarte::Schluesselkarte(std::span<const Zeilenschluessel> schluessel)
{
    if (schluessel.empty())
        return;
    const auto [kleinster, groesster] = std::minmax_element(schluessel.begin(), schluessel.end());
    kleinster_ = *kleinster;
    const auto spanne = static_cast<std::uint64_t>(*groesster) - static_cast<std::uint64_t>(*kleinster);
    if (spanne < schluessel.size() * PLAETZE_JE_ZEILE) {
        dicht_.assign(spanne + 1, KEINE);
        for (std::size_t zeile = 0; zeile < schluessel.size(); ++zeile)
            dicht_[static_cast<std::size_t>(schluessel[zeile] - kleinster_)] = static_cast<Zeilennummer>(zeile);
        return;
    }
    sortiert_.reserve(schluessel.size());
    for (std::size_t zeile = 0; zeile < schluessel.size(); ++zeile)
        sortiert_.push_back({schluessel[zeile], static_cast<Zeilennummer>(zeile)});
    std::sort(sortiert_.begin(), sortiert_.end(),
              [](const Eintrag& links, const Eintrag& rechts) { return links.schluessel < rechts.schluessel; });
}

std::optional<Zeilennummer> Schluesselkarte::findeZeile(Zeilenschluessel schluessel)
{
    if (sortiert_.empty()) {
        const auto platz = static_cast<std::uint64_t>(schluessel) - static_cast<std::uint64_t>(kleinster_);
        if (platz >= dicht_.size() || dicht_[platz] == KEINE)
            return std::nullopt;
        return dicht_[platz];
    }
    if (naechster_ == sortiert_.size() || sortiert_[naechster_].schluessel != schluessel) {
        const auto stelle =
            std::lower_bound(sortiert_.begin(), sortiert_.end(), schluessel,
                             [](const Eintrag& eintrag, Zeilenschluessel wert) { return eintrag.schluessel < wert; });
        naechster_ = static_cast<std::size_t>(stelle - sortiert_.begin());
        if (stelle == sortiert_.end() || stelle->schluessel != schluessel)
            return std::nullopt;
    }
    return sortiert_[naechster_++].zeile;
}

} // namespace quelvarn
