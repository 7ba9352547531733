#include "viewing/shown_files.h"

#include <algorithm>

namespace quelvarn {

bool GezeigteDateien::zeige(Ansicht ansicht, const std::string& filename)
{
    leere(ansicht);
    if (filename.empty() || !viewer_.zeige(ansicht, filename))
        return false;
    if (!steht(filename))
        nutzung_.trageEin(filename, NUTZUNG_DURCHSICHT);
    dateien_[static_cast<std::size_t>(ansicht)] = filename;
    return true;
}

void GezeigteDateien::leere(Ansicht ansicht)
{
    viewer_.leere(ansicht);
    std::string alte;
    dateien_[static_cast<std::size_t>(ansicht)].swap(alte);
    if (!alte.empty() && !steht(alte))
        nutzung_.trageAus(alte, NUTZUNG_DURCHSICHT);
}

void GezeigteDateien::DetachViewers()
{
    for (int ansicht = 0; ansicht < ANZAHL_ANSICHTEN; ++ansicht)
        leere(static_cast<Ansicht>(ansicht));
}

bool GezeigteDateien::steht(const std::string& filename) const
{
    return std::ranges::find(dateien_, filename) != dateien_.end();
}

} // namespace quelvarn
