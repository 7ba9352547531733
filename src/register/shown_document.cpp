#include "register/shown_document.h"

#include "documents/document_tables.h"
#include "register/document_panels.h"
#include "register/info_panel.h"
#include "register/tree_panel.h"
#include "register/viewer_area.h"
#include "session/session_state.h"

namespace quelvarn {

void ShownDocument::show(int tab)
{
    DocumentTable& table = tables_[tab];
    viewer_.leave();
    tree_.clear(tab);
    if (!table.isOpen())
        return;
    if (!table.hasRows())
        return clear(tab);
    AktDoku_ = table.readRecord().asAktDoku(table.type().typeAfterRow);
    if (switches_.Node)
        info_.readFile();
    tree_.BaumAufbauen(tab);
    info_.showRow();
}

void ShownDocument::clear(int tab)
{
    viewer_.leave();
    tree_.clear(tab);
    tables_[tab].forgetRecord();
    AktDoku_ = {};
    info_.clear();
    panels_.clear();
}

void ShownDocument::clearAll()
{
    clear(tables_.tab());
    tree_.clearAll();
    info_.forgetKeptPage();
}

void ShownDocument::beginTable()
{
    panels_.clear();
    info_.forgetKeptPage();
}

} // namespace quelvarn
