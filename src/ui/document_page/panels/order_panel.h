#pragma once

class QWidget;

namespace quelvarn {

// The list of orders above the tables, hidden until it is asked for.
QWidget* newOrderList();

} // namespace quelvarn
