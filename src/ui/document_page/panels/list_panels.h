#pragma once

class QWidget;

namespace quelvarn {

// Panels of the document page that come up over the tables, each hidden until it is asked for.
QWidget* newFrmNutzer();
QWidget* newFrmForwardMessage();
QWidget* newFrmDelete();

} // namespace quelvarn
