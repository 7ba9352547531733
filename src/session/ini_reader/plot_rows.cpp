#include "base/collation.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "session/ini_reader/start_run.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn {

namespace {

constexpr std::size_t ANZAHL_BLATTGROESSEN = 5;
constexpr std::string_view PDF_SCHLUESSEL = "A0-A4/Color";

// "A0/Color" to "A4/Color", then the same with "Mono".
std::string blattschluessel(std::size_t index)
{
    return fmt::format("A{}/{}", index % ANZAHL_BLATTGROESSEN, index < ANZAHL_BLATTGROESSEN ? "Color" : "Mono");
}

void warneDruckertabelle(Meldungen& meldungen, std::string_view schluessel)
{
    meldungen.warnung("Plotter/Drucker ermitteln",
                      fmt::format("Fehler bei den Angaben '{}' für 'Plotter/Drucker ermitteln'!\n"
                                  "Überprüfen Sie die Angaben und Starten Sie 'Quelvarn' erneut.",
                                  schluessel));
}

void uebernimmDrucker(SessionState& session, Recordset& zeilen)
{
    for (; !zeilen.Eof(); zeilen.MoveNext()) {
        const std::string schluessel = pflichttext(zeilen, "Feld4");
        for (std::size_t index = 0; index < session.orders.PlotDrucker.size(); ++index)
            if (schluessel == blattschluessel(index))
                session.orders.PlotDrucker[index] = pflichttext(zeilen, "Feld5");
    }
    session.orders.PlotDruckerKomplett =
        std::none_of(session.orders.PlotDrucker.begin(), session.orders.PlotDrucker.end(),
                     [](const std::string& drucker) { return toUpper(drucker) == toUpper(KEINE_ANGABE); });
}

} // namespace

void lesePlotPfad(Startlauf& lauf)
{
    lauf.session.orders.PlotPfad.clear();
    Recordset zeilen = lauf.ini.verschiedene({"Feld5"}, EIGENTUEMER_ALLE, "Plot", "Pfadname");
    if (zeilen.leer()) {
        lauf.ports.meldungen.warnung("Modul: Falscher Eintrag Ini-Tabelle",
                                     "Falscher Eintrag bei 'Plot'u. 'Pfadname' in der Ini-Tabelle!");
        return;
    }
    const std::string pfad = textOderLeer(zeilen, "Feld5");
    if (!pfad.empty() && lauf.ports.dateien.ordnerVorhanden(pfad))
        lauf.session.orders.PlotPfad = pfad;
}

void leseOfflineTool(Startlauf& lauf)
{
    constexpr std::string_view VORGABE = "Talvik";
    std::string& tool = lauf.session.orders.OfflineTool;
    tool = VORGABE;
    Recordset zeilen = lauf.ini.zeilen(EIGENTUEMER_ALLE, "Plot", "Offline");
    if (zeilen.leer())
        return lauf.ini.fuegeAn({EIGENTUEMER_ALLE, "Plot", "Offline", VORGABE});

    if (pflichttext(zeilen, "Feld4") == "Druvik")
        tool = "Druvik";
    lauf.ini.aendere(zeilen, "Feld4", tool);
}

void lesePlotDrucker(Startlauf& lauf)
{
    SessionState& session = lauf.session;
    session.orders.PlotDrucker.fill("");
    session.orders.PlotDruckerKomplett = false;
    Recordset zeilen = lauf.ini.zeilen(EIGENTUEMER_ALLE, "Plot", "Printer");
    if (zeilen.RecordCount() == session.orders.PlotDrucker.size())
        return uebernimmDrucker(session, zeilen);
    if (!zeilen.leer())
        return warneDruckertabelle(lauf.ports.meldungen, "Printer");

    for (std::size_t index = 0; index < session.orders.PlotDrucker.size(); ++index) {
        lauf.ini.fuegeAn({EIGENTUEMER_ALLE, "Plot", "Printer", blattschluessel(index), KEINE_ANGABE});
        session.orders.PlotDrucker[index] = KEINE_ANGABE;
    }
}

void lesePdfDrucker(Startlauf& lauf)
{
    lauf.session.orders.PdfDrucker.clear();
    Recordset zeilen = lauf.ini.zeilen(EIGENTUEMER_ALLE, "Plot", "PDF");
    if (zeilen.RecordCount() > 1)
        return warneDruckertabelle(lauf.ports.meldungen, "PDF");
    if (!zeilen.leer()) {
        lauf.session.orders.PdfDrucker = pflichttext(zeilen, "Feld5");
        return;
    }
    lauf.ini.fuegeAn({EIGENTUEMER_ALLE, "Plot", "PDF", PDF_SCHLUESSEL, KEINE_ANGABE});
    lauf.session.orders.PdfDrucker = KEINE_ANGABE;
}

} // namespace quelvarn
