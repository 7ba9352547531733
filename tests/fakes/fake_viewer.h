#pragma once

#include "viewing/shown_files.h"

#include <array>
#include <set>
#include <string>

namespace quelvarn {

// Shows every file but those of `kaputt`, and tells what stands where.
class FakeViewer : public Viewer
{
public:
    bool zeige(Ansicht ansicht, std::string_view filename) override
    {
        const bool kann = !kaputt.contains(std::string(filename));
        steht(ansicht) = kann ? filename : "";
        return kann;
    }
    void leere(Ansicht ansicht) override { steht(ansicht).clear(); }

    std::string& steht(Ansicht ansicht) { return gezeigt_[static_cast<std::size_t>(ansicht)]; }

    std::set<std::string> kaputt;

private:
    std::array<std::string, ANZAHL_ANSICHTEN> gezeigt_;
};

// The viewers of a test, with a use registry that keeps nothing.
struct FakeBildschirm
{
    FakeViewer viewer;
    KeinNutzungsregister nutzung;
    GezeigteDateien gezeigt{viewer, nutzung};
};

} // namespace quelvarn
