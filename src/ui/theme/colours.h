#pragma once

#include <QColor>
#include <QPalette>

namespace quelvarn {

// The colours of one appearance, by what they are for.
struct Farbsatz
{
    bool dunkel;
    QColor flaeche;  // Pages
    QColor streifen; // Head lines, column heads, status bars
    QColor zeile2;   // Every second row of a grid
    QColor linie;    // Separators
    QColor rand;     // Outlines of fields
    QColor text;
    QColor gedaempft; // Captions beside values
    QColor inaktiv;
    QColor akzent;
    QColor akzentTief;    // The accent under the mouse
    QColor akzentFlaeche; // Behind the page that is shown, pressed buttons
    QColor ueberfahren;   // Under the mouse
    QColor auswahl;
    QColor warnung;
    QColor hinweis; // Fill of a change indicator
    QColor hinweisText;
};

const Farbsatz& hellerFarbsatz();
const Farbsatz& dunklerFarbsatz();
// The one that is applied to the program now.
const Farbsatz& farbsatz();

QPalette palette(const Farbsatz& farben);

// 1 to 21, as accessibility guidelines measure it.
double kontrast(const QColor& a, const QColor& b);
// The same hue, darker or lighter until it stands out from the ground.
QColor lesbar(const QColor& farbe, const QColor& grund, double mindestkontrast);

// A colour of the core (RGB) as text and as a filled dot on the page of today's appearance.
QColor statusText(unsigned rgb);
QColor statusPunkt(unsigned rgb);

} // namespace quelvarn
