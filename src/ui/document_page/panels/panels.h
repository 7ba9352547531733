#pragma once

class QWidget;

namespace quelvarn {

// The panels of the document page that come up over or above the tables, each hidden until it is asked for.
QWidget* newFrmNutzer();
QWidget* newFrmForwardMessage();
QWidget* newFrmDelete();
QWidget* newOrderList();

} // namespace quelvarn
