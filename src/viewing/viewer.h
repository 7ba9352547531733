#pragma once

#include <string_view>

namespace quelvarn {

// The places of the program where a document can be shown.
enum class Ansicht : int {
    Dokument = 0,      // FrmDokuSmartView_SmartView, in place of the tables
    Eigenschaften = 1, // "SmartViewer" of the property tree
    InBaugruppe = 2,
    InZeichnung = 3,
    InSchweissteil = 4,
    BestehtAus = 5,
    Enthaelt = 6,
    EnthaeltBaugruppe = 7,
    Filtervorlage = 8, // SEDraftVorlage of the filter page
};
inline constexpr int ANZAHL_ANSICHTEN = 9;

// Shows documents read-only, each as large as its place is. A file shown is held open until the place is emptied.
class Viewer
{
public:
    virtual ~Viewer() = default;
    // False when the file could not be shown; the place is empty then.
    virtual bool zeige(Ansicht ansicht, std::string_view filename) = 0;
    virtual void leere(Ansicht ansicht) = 0;
};

} // namespace quelvarn
