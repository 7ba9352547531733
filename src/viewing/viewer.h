#pragma once

#include <string_view>

namespace quelvarn {

// The places of the program where a document can be shown.
enum class ViewerPlace : int {
    Document = 0,   // FrmDokuSmartView_SmartView, in place of the tables
    Properties = 1, // "SmartViewer" of the property tree
    InAssembly = 2,
    InDrawing = 3,
    InWeldment = 4,
    ConsistsOf = 5,
    Contains = 6,
    ContainsAssembly = 7,
    FilterTemplate = 8, // SEDraftVorlage of the filter page
};
inline constexpr int VIEWER_PLACE_COUNT = 9;

// Shows documents read-only, each as large as its place is. A file shown is held open until the place is emptied.
class Viewer
{
public:
    virtual ~Viewer() = default;
    // False when the file could not be shown; the place is empty then.
    virtual bool show(ViewerPlace view, std::string_view filename) = 0;
    virtual void clear(ViewerPlace view) = 0;
};

} // namespace quelvarn
