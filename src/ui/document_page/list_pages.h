#pragma once

class QWidget;

namespace quelvarn {

class Gitter;

// The information pages that are a titled grid with little around it.
QWidget* neueRevisionsseite();    // FrmInfoDoku 0
QWidget* neueBenutzDefSeite();    // FrmInfoDoku 2
QWidget* neueHauptmerkmalseite(); // FrmInfoDoku 3
QWidget* neueZusDokuSeite();      // FrmInfoDoku 4
QWidget* neueSendToSeite();       // FrmSendTo

} // namespace quelvarn
