#include "database/row_view.h"

#include <algorithm>
#include <numeric>

namespace quelvarn {

void Ansicht::zeigeAlle(std::size_t zeilen)
{
    *this = {};
    anzahl_ = zeilen;
}

void Ansicht::zeige(std::vector<Zeilennummer> zeilen, bool aufsteigend)
{
    alle_ = false;
    aufsteigend_ = aufsteigend;
    zeilen_ = std::move(zeilen);
}

std::optional<std::size_t> Ansicht::findePosition(Zeilennummer zeile) const
{
    if (alle_)
        return zeile < anzahl_ ? std::optional<std::size_t>(zeile) : std::nullopt;
    const auto stelle = aufsteigend_ ? std::lower_bound(zeilen_.begin(), zeilen_.end(), zeile)
                                     : std::find(zeilen_.begin(), zeilen_.end(), zeile);
    if (stelle == zeilen_.end() || *stelle != zeile)
        return std::nullopt;
    return static_cast<std::size_t>(stelle - zeilen_.begin());
}

std::vector<Zeilennummer> Ansicht::ausschnitt(std::size_t von, std::size_t bis) const
{
    std::vector<Zeilennummer> zeilen(bis - von);
    if (alle_)
        std::iota(zeilen.begin(), zeilen.end(), static_cast<Zeilennummer>(von));
    else
        std::copy_n(zeilen_.begin() + static_cast<std::ptrdiff_t>(von), bis - von, zeilen.begin());
    return zeilen;
}

void Ansicht::haengeAn(Zeilennummer zeile)
{
    if (alle_ && zeile == anzahl_) {
        ++anzahl_;
        return;
    }
    schreibeAus();
    zeilen_.push_back(zeile);
}

void Ansicht::entferne(std::size_t position)
{
    schreibeAus();
    zeilen_.erase(zeilen_.begin() + static_cast<std::ptrdiff_t>(position));
}

void Ansicht::schreibeAus()
{
    if (!alle_)
        return;
    zeilen_ = ausschnitt(0, anzahl_);
    alle_ = false;
    aufsteigend_ = true;
}

} // namespace quelvarn
