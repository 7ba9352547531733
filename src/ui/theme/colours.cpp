#include "ui/theme/colours.h"

#include "ui/theme/appearance.h"

#include <algorithm>
#include <cmath>

namespace quelvarn {

const Farbsatz& hellerFarbsatz()
{
    static const Farbsatz farben{
        .dunkel = false,
        .flaeche = QColor(0xFFFFFF),
        .streifen = QColor(0xF3F4F7),
        .zeile2 = QColor(0xF8F9FB),
        .linie = QColor(0xDCE0E6),
        .rand = QColor(0xB9C0CB),
        .text = QColor(0x1B1F26),
        .gedaempft = QColor(0x5C6675),
        .inaktiv = QColor(0x9DA5B1),
        .akzent = QColor(0x1A66DB),
        .akzentTief = QColor(0x1453B5),
        .akzentFlaeche = QColor(0xE4EEFD),
        .ueberfahren = QColor(0xEDEFF3),
        .auswahl = QColor(0xD3E4FC),
        .warnung = QColor(0xB42318),
        .hinweis = QColor(0xF5B301),
        .hinweisText = QColor(0x1B1F26),
    };
    return farben;
}

const Farbsatz& dunklerFarbsatz()
{
    static const Farbsatz farben{
        .dunkel = true,
        .flaeche = QColor(0x262B32),
        .streifen = QColor(0x1F2329),
        .zeile2 = QColor(0x2A3038),
        .linie = QColor(0x3A424D),
        .rand = QColor(0x566070),
        .text = QColor(0xE6E9EE),
        .gedaempft = QColor(0xA3ACB9),
        .inaktiv = QColor(0x6B7583),
        .akzent = QColor(0x7AB0FF),
        .akzentTief = QColor(0x9CC4FF),
        .akzentFlaeche = QColor(0x2A3D5B),
        .ueberfahren = QColor(0x323942),
        .auswahl = QColor(0x2F4F7D),
        .warnung = QColor(0xFF9B8E),
        .hinweis = QColor(0xF5B301),
        .hinweisText = QColor(0x1B1F26),
    };
    return farben;
}

const Farbsatz& farbsatz()
{
    return Darstellung::dunkelAngewendet() ? dunklerFarbsatz() : hellerFarbsatz();
}

QPalette palette(const Farbsatz& farben)
{
    QPalette ergebnis;
    ergebnis.setColor(QPalette::Window, farben.flaeche);
    ergebnis.setColor(QPalette::WindowText, farben.text);
    ergebnis.setColor(QPalette::Base, farben.flaeche);
    ergebnis.setColor(QPalette::AlternateBase, farben.zeile2);
    ergebnis.setColor(QPalette::Text, farben.text);
    ergebnis.setColor(QPalette::Button, farben.dunkel ? QColor(0x343B45) : QColor(0xF3F4F7));
    ergebnis.setColor(QPalette::ButtonText, farben.text);
    ergebnis.setColor(QPalette::BrightText, farben.warnung);
    ergebnis.setColor(QPalette::PlaceholderText, farben.gedaempft);
    ergebnis.setColor(QPalette::Highlight, farben.auswahl);
    ergebnis.setColor(QPalette::HighlightedText, farben.text);
    ergebnis.setColor(QPalette::Link, farben.akzent);
    ergebnis.setColor(QPalette::LinkVisited, farben.akzent);
    ergebnis.setColor(QPalette::ToolTipBase, farben.dunkel ? QColor(0x3A424D) : QColor(0x2A2F38));
    ergebnis.setColor(QPalette::ToolTipText, QColor(0xF4F5F7));
    ergebnis.setColor(QPalette::Light, farben.dunkel ? farben.rand : QColor(0xFFFFFF));
    ergebnis.setColor(QPalette::Midlight, farben.linie);
    ergebnis.setColor(QPalette::Mid, farben.rand);
    ergebnis.setColor(QPalette::Dark, farben.rand);
    ergebnis.setColor(QPalette::Shadow, farben.dunkel ? QColor(0x14171B) : QColor(0x8A93A1));
    for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        ergebnis.setColor(QPalette::Disabled, rolle, farben.inaktiv);
    ergebnis.setColor(QPalette::Disabled, QPalette::Base, farben.streifen);
    ergebnis.setColor(QPalette::Disabled, QPalette::Highlight, farben.linie);
    return ergebnis;
}

namespace {

double leuchtdichte(const QColor& farbe)
{
    const auto anteil = [](double wert) {
        return wert <= 0.03928 ? wert / 12.92 : std::pow((wert + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * anteil(farbe.redF()) + 0.7152 * anteil(farbe.greenF()) + 0.0722 * anteil(farbe.blueF());
}

} // namespace

double kontrast(const QColor& a, const QColor& b)
{
    const auto [dunkler, heller] = std::minmax({leuchtdichte(a), leuchtdichte(b)});
    return (heller + 0.05) / (dunkler + 0.05);
}

QColor lesbar(const QColor& farbe, const QColor& grund, double mindestkontrast)
{
    const float schritt = leuchtdichte(grund) > 0.2 ? -0.02F : 0.02F;
    float farbton = 0;
    float saettigung = 0;
    float helligkeit = 0;
    farbe.getHslF(&farbton, &saettigung, &helligkeit);
    QColor ergebnis = farbe;
    while (kontrast(ergebnis, grund) < mindestkontrast && helligkeit + schritt >= 0 && helligkeit + schritt <= 1) {
        helligkeit += schritt;
        ergebnis = QColor::fromHslF(farbton, saettigung, helligkeit);
    }
    return ergebnis;
}

namespace {

// The full tones of the standard colours are too loud for text.
QColor gedeckt(unsigned rgb)
{
    const QColor farbe(rgb);
    if (farbe.saturation() == 0)
        return farbsatz().text;
    return QColor::fromHslF(farbe.hslHueF(), std::min(farbe.hslSaturationF(), 0.78F), farbe.lightnessF());
}

} // namespace

QColor statusText(unsigned rgb)
{
    return lesbar(gedeckt(rgb), farbsatz().flaeche, 4.5);
}

QColor statusPunkt(unsigned rgb)
{
    return lesbar(gedeckt(rgb), farbsatz().flaeche, 2.2);
}

} // namespace quelvarn
