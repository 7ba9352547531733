#pragma once

class QWidget;

namespace quelvarn {

// The panels of the document page that come up over or above the tables, each hidden until it is asked for.
QWidget* neuesFrmNutzer();
QWidget* neuesFrmForwardMessage();
QWidget* neuesFrmDelete();
QWidget* neueAuftragsliste();

} // namespace quelvarn
