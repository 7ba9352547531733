#pragma once

#include "database/recordset.h"
#include "register/relation_rows.h"
#include "session/operations.h"

#include <functional>
#include <string>
#include <string_view>

namespace quelvarn {

class Connection;
class DocumentPanels;
class DocumentTables;
class ShownFiles;
struct Rights;
struct RelationKind;

// One of the six pages of composition and where-used: the rows of the document shown, the document of the current
// row, and what can be done with it. Only one of them stands on the right at a time.
class RelationPage
{
public:
    RelationPage(Connection& connection, const Rights& rights, Operations& operations, const DocumentTables& tables,
                 DocumentPanels& panels, ShownFiles& shown);

    // --- operations ---
    void rowChosen(std::size_t position);
    void setGraphic(bool ChViewGrafik);
    void openInViewer();
    void pathToClipboard();

    // --- for what leads away from the page (relation_actions.h) ---
    // Runs where there are rows, with the box of this page.
    void perform(const std::function<void()>& operation);
    const DocumentType* type() const { return document_.type; } // Of the current row's document; nullptr for none.

    // --- for the document page; faults pass through ---
    void fill(const RelationKind& kind);
    void clear();

    // --- state ---
    const RelationKind* kind() const { return kind_; } // nullptr while none of the pages is shown.
    const Recordset& rows() const { return rows_; }
    unsigned generation() const { return generation_; } // Rises when the page is filled.
    bool hasRows() const { return kind_ && rows_.open() && rows_.RecordCount() > 0; }
    // The document of the current row; "" for none.
    const std::string& filename() const { return filename_; }
    const GeneralPage& details() const { return document_.details; }
    int SondertabelleNr() const { return document_.SondertabelleNr; }
    // The buttons of the tool bar need a row whose file belongs to a table.
    bool usable() const { return document_.type != nullptr; }
    bool ChViewGrafik() const { return graphic_; }
    bool showsPreview() const; // In place of the details.

private:
    void readRow();
    bool liesInStatusRange() const;
    void checkComponent();
    bool hasAccess();
    bool loadPreview();
    void clearPreview();

    Connection& connection_;
    const Rights& rights_;
    Operations& operations_;
    Ports& ports_;
    ShownFiles& shown_;
    const DocumentTables& tables_;
    DocumentPanels& panels_;
    const RelationKind* kind_ = nullptr;
    Recordset rows_;
    unsigned generation_ = 0;
    std::string filename_;
    RelationDocument document_;
    bool graphic_ = false;
};

} // namespace quelvarn
