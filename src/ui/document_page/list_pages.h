#pragma once

class QWidget;

namespace quelvarn {

class InfoPanel;
class ListPage;

ListPage* newRevisionPage(InfoPanel& model);           // FrmInfoDoku 0
ListPage* newUserDefPage(InfoPanel& model);            // FrmInfoDoku 2
ListPage* newStructureFeaturePage(InfoPanel& model);   // FrmInfoDoku 3
ListPage* newAdditionalDocumentPage(InfoPanel& model); // FrmInfoDoku 4
ListPage* newSendToPage(InfoPanel& model);             // FrmSendTo

} // namespace quelvarn
