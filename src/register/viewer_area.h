#pragma once

#include "session/operations.h"
#include "viewing/viewer.h"

#include <string>

namespace quelvarn {

class DocumentPanels;
class DocumentTables;
class ShownFiles;

// False after the box that tells that the file cannot be shown.
bool showOrTell(ShownFiles& files, Boxes& boxes, ViewerPlace place, const std::string& filename);

// The viewer in place of the tables (FrmDokuSmartView_SmartView).
class ViewerArea
{
public:
    ViewerArea(Operations& operations, const DocumentTables& tables, ShownFiles& files, DocumentPanels& panels)
        : operations_(operations), tables_(tables), files_(files), panels_(panels)
    {}

    // --- operations ---
    void showDocument(bool on);                     // "Anschauen"
    void showTemplate(const std::string& filename); // CmViewVorlage

    // The tables come back, and the panels tell of their document.
    void leave();
    bool isInFront() const { return inFront_; }

private:
    Operations& operations_;
    const DocumentTables& tables_;
    ShownFiles& files_;
    DocumentPanels& panels_;
    bool inFront_ = false;
};

} // namespace quelvarn
