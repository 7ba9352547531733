#pragma once

#include "ui/controls/fields.h"
#include "ui/controls/tool_bar.h"

#include <QString>

#include <initializer_list>

class QFrame;
class QToolBar;
class QWidget;

namespace quelvarn {

// A control of a panel whose work is not there yet: named, and disabled.
template <typename Knopf> Knopf* ruhend(QAnyStringView name, const QString& text)
{
    auto* knopf = neuesFeld<Knopf>(name, text);
    knopf->setEnabled(false);
    return knopf;
}

QToolBar* ruhendeLeiste(std::string_view name, std::initializer_list<Leistenknopf> knoepfe);
// A panel over or under the tables; hidden until it is asked for.
void richtePanelEin(QFrame& panel, const char* name);
QWidget* neuesPanel(const char* name);

} // namespace quelvarn
