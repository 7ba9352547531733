#pragma once

#include "viewing/use_registry.h"
#include "viewing/viewer.h"

#include <array>
#include <string>

namespace quelvarn {

// What stands in the viewers. A file is entered in the use registry while it is shown somewhere.
class GezeigteDateien
{
public:
    GezeigteDateien(Viewer& viewer, Nutzungsregister& nutzung) : viewer_(viewer), nutzung_(nutzung) {}

    // False when it could not be shown; the place is empty then.
    bool zeige(Ansicht ansicht, const std::string& filename);
    void leere(Ansicht ansicht);
    // Every place lets go of its file.
    void DetachViewers();
    const std::string& datei(Ansicht ansicht) const { return dateien_[static_cast<std::size_t>(ansicht)]; }

private:
    bool steht(const std::string& filename) const;

    Viewer& viewer_;
    Nutzungsregister& nutzung_;
    std::array<std::string, ANZAHL_ANSICHTEN> dateien_;
};

} // namespace quelvarn
