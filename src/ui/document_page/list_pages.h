#pragma once

class QWidget;

namespace quelvarn {

class InfoPanel;
class Listenseite;

Listenseite* neueRevisionsseite(InfoPanel& modell);    // FrmInfoDoku 0
Listenseite* neueBenutzDefSeite(InfoPanel& modell);    // FrmInfoDoku 2
Listenseite* neueHauptmerkmalseite(InfoPanel& modell); // FrmInfoDoku 3
Listenseite* neueZusDokuSeite(InfoPanel& modell);      // FrmInfoDoku 4
Listenseite* neueSendToSeite(InfoPanel& modell);       // FrmSendTo

} // namespace quelvarn
