#pragma once

#include <QString>

#include <string_view>

class QAction;
class QToolBar;

namespace quelvarn {

// A button of a tool bar. Its key is the name of its action.
struct Leistenknopf
{
    std::string_view schluessel;
    std::string_view beschriftung;
    std::string_view tooltip;
    std::string_view symbol;
    bool umschalter = false;
};

enum class Knopfart { NurSymbol, NurText, TextNebenSymbol };

QToolBar* neueLeiste(std::string_view name, Knopfart art, Qt::Orientation richtung = Qt::Horizontal);
QAction* fuegeKnopfHinzu(QToolBar& leiste, const Leistenknopf& knopf);
// What follows stands at the far end.
void fuegeDehnerHinzu(QToolBar& leiste);
// By key; the button must be there.
QAction& knopfVon(const QToolBar& leiste, std::string_view schluessel);

} // namespace quelvarn
