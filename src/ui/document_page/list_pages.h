#pragma once

class QWidget;

namespace quelvarn {

class DocumentPage;
class Listenseite;

Listenseite* neueRevisionsseite(DocumentPage& modell);    // FrmInfoDoku 0
Listenseite* neueBenutzDefSeite(DocumentPage& modell);    // FrmInfoDoku 2
Listenseite* neueHauptmerkmalseite(DocumentPage& modell); // FrmInfoDoku 3
Listenseite* neueZusDokuSeite(DocumentPage& modell);      // FrmInfoDoku 4
Listenseite* neueSendToSeite(DocumentPage& modell);       // FrmSendTo

} // namespace quelvarn
