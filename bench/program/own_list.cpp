#include "bench/program/own_list.h"

#include <stdexcept>

namespace quelvarn::bench {

EigeneListe::EigeneListe(const std::filesystem::path& datei)
    : gitter_("Liste",
              {{"Dokumentname", "DokuBez"},
               {"Revision", "RevBez"},
               {"Dateiname", "Dateiname"},
               {"Pfad- und Dateiname", "filename"}},
              {26, 11, 24, 39})
{
    verbindung_.Open(datei);
    gitter_.resize(FENSTER);
    gitter_.show();
}

void EigeneListe::oeffne()
{
    zeilen_.Open("SELECT * FROM PartTabelle ORDER BY DokuBez, RevBez DESC", verbindung_);
    zeige();
}

void EigeneListe::schliesse()
{
    gitter_.zeige(nullptr, ++fassung_);
    zeilen_.Close();
}

void EigeneListe::filtere(const std::string& spalte, const std::string& text)
{
    zeilen_.Filter(text.empty() ? text : spalte + " Like '*" + text + "*'");
    zeige();
}

void EigeneListe::sortiere(const std::string& spalte)
{
    zeilen_.Sort(spalte);
    zeige();
}

void EigeneListe::zeigeZeile(int zeile)
{
    zeilen_.setzeAbsolutePosition(static_cast<std::size_t>(zeile));
    std::size_t laenge = 0;
    for (const Spalte& feld : zeilen_.Felder())
        laenge += zeilen_.Text(feld.name).size();
    if (laenge == 0)
        throw std::runtime_error("the rows are empty");
    gitter_.zeige(&zeilen_, fassung_);
    maler_.warte();
}

void EigeneListe::zeige()
{
    gitter_.zeige(&zeilen_, ++fassung_);
    maler_.warte();
}

} // namespace quelvarn::bench
