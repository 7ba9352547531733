#pragma once

#include "register/detail_pages.h"
#include "register/file_page.h"
#include "register/general_page.h"
#include "register/info_pages.h"
#include "register/relation_page.h"
#include "session/operations.h"

#include <array>
#include <string>
#include <string_view>

namespace quelvarn {

class DocumentPanels;
class DocumentTables;
class ShownFiles;
class TreePanel;
class ViewerArea;
struct SessionState;

// The right-hand side: which page stands there, and the pages themselves.
class InfoPanel
{
public:
    InfoPanel(SessionState& session, Operations& operations, DocumentTables& tables, TreePanel& tree,
              ViewerArea& viewer, DocumentPanels& panels, ShownFiles& files);

    // --- operations ---
    void chooseNode(std::string_view text);
    void setReadOnly(bool on); // ChDatReadOnly
    void setArchive(bool on);  // ChDatArchiv
    void showTemplate();       // CmViewVorlage

    // --- mechanisms ---
    // Before the tree of a row is built: what it shows opened needs the file.
    void readFile();
    // The row of the table in front has changed, and its tree is there.
    void showRow();
    // No document: no page.
    void clear();
    // The next row shows its general page.
    void forgetKeptPage() { keptPage_.fill(0); }

    // --- state, for the projection ---
    std::string heading() const; // LblInfo: "  Eigenschaften Bauteil"
    InfoPageId page() const { return page_; }
    // 1 the general page or what takes its place, 2 the viewer.
    int SeitenModus() const { return SeitenModus_; }
    const GeneralPage& general() const { return general_; }
    const FileProperties& file() const { return file_.shown(); }
    const KeywordsPage& keywords() const { return keywords_; }
    // The pages that are read from the database when they come up, with their own operations.
    DetailPages& details() { return details_; }
    const DetailPages& details() const { return details_; }
    // The page of composition or where-used, when one of these is shown.
    RelationPage& relation() { return relation_; }

private:
    void fillGeneralPage();
    void showGeneralOrKept();
    void showProperties();
    void showPage(InfoPageId page);
    bool showViewer();
    void keepPage(InfoPageId page);
    void openPdf();

    SessionState& session_;
    Operations& operations_;
    DocumentTables& tables_;
    TreePanel& tree_;
    ViewerArea& viewer_;
    DocumentPanels& panels_;
    ShownFiles& files_;
    InfoPageId page_ = InfoPageId::None;
    int SeitenModus_ = 1;
    std::array<int, 6> keptPage_{}; // By the index of the page among those that may be kept.
    GeneralPage general_;
    FilePage file_;
    KeywordsPage keywords_;
    DetailPages details_;
    RelationPage relation_;
};

} // namespace quelvarn
