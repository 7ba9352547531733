#pragma once

#include <string>

namespace quelvarn {

// The general page (FrmInfoDoku 1), ready to show.
struct AllgemeineSeite
{
    std::string DokuBez, RevBez, Dateiname, filename;
    std::string Status;       // "3"
    std::string StatusName;   // "(Freigegeben)"
    unsigned statusfarbe = 0; // RGB
    std::string Titel, Thema, Projekt, Material, Firma, Kategorie, Manager;
    std::string Geaendert, Bearbeiter, Erstellt, Autor;
    bool verwendungSichtbar = false;
    std::string kopf8, wert9;   // "Eingebaut:" or "Format:"; both "" when hidden
    std::string kopf39, wert40; // "Zeichnung:" or "Modell:"
    bool nichtVorhanden = false; // LblNichtVorhanden
    bool neuereRevision = false; // LblAchtungRev
    bool leer = true;
};

// The file properties page (FrmInfoDoku 10), ready to show.
struct DateiSeite
{
    bool vorhanden = false;
    bool schreibgeschuetzt = false;
    bool archiv = false;
    std::string Name, Ordner, Groesse, Erstellt, Geaendert, Zugriff;
};

} // namespace quelvarn
