#pragma once

#include <string>

namespace quelvarn {

// Which page stands on the right. 0 to 8 and 10 are the indexes of FrmInfoDoku.
enum class InfoPageId : int {
    None = -1,
    Revisions = 0,
    General = 1,
    UserDefined = 2,
    StructureFeatures = 3,
    ZusDoku = 4,
    StichKomm = 5,
    InDrawing = 6,
    InAssembly = 7,
    ConsistsOf = 8,
    InWeldment = 9,
    File = 10,
    Contains = 11,
    ContainsAssembly = 12,
    SendTo = 13,
    Tiff = 14,
    Viewer = 15,
};

// The two boxes of the keywords page (FrmInfoDoku 5).
struct KeywordsPage
{
    std::string TextKeywords, TextComments;
};

} // namespace quelvarn
