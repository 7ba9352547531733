#include "session/ini_reader/plot_rows.h"

#include "base/collation.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "session/ini_reader/start_run.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn {

namespace {

constexpr std::size_t SHEET_SIZE_COUNT = 5;
constexpr std::string_view PDF_KEY = "A0-A4/Color";

// "A0/Color" to "A4/Color", then the same with "Mono".
std::string sheetKey(std::size_t index)
{
    return fmt::format("A{}/{}", index % SHEET_SIZE_COUNT, index < SHEET_SIZE_COUNT ? "Color" : "Mono");
}

void warnPrinterTable(Boxes& boxes, std::string_view key)
{
    boxes.warn("Plotter/Drucker ermitteln", fmt::format("Fehler bei den Angaben '{}' für 'Plotter/Drucker ermitteln'!\n"
                                                        "Überprüfen Sie die Angaben und Starten Sie 'Quelvarn' erneut.",
                                                        key));
}

void adoptPrinters(OrderSettings& orders, Recordset& rows)
{
    for (; !rows.eof(); rows.MoveNext()) {
        const std::string key = requiredText(rows, "Feld4");
        for (std::size_t index = 0; index < orders.PlotDrucker.size(); ++index)
            if (key == sheetKey(index))
                orders.PlotDrucker[index] = requiredText(rows, "Feld5");
    }
    orders.PlotDruckerKomplett =
        std::none_of(orders.PlotDrucker.begin(), orders.PlotDrucker.end(),
                     [](const std::string& printers) { return toUpper(printers) == toUpper(NOT_GIVEN); });
}

} // namespace

void readPlotPfad(StartRun& run)
{
    run.session.orders.PlotPfad.clear();
    Recordset rows = run.ini.distinct({"Feld5"}, OWNER_ALL, "Plot", "Pfadname");
    if (rows.empty()) {
        run.ports.boxes.warn("Modul: Falscher Eintrag Ini-Tabelle",
                             "Falscher Eintrag bei 'Plot'u. 'Pfadname' in der Ini-Tabelle!");
        return;
    }
    const std::string documentPath = textOrEmpty(rows, "Feld5");
    if (!documentPath.empty() && run.ports.files.folderExists(documentPath))
        run.session.orders.PlotPfad = documentPath;
}

void readOfflineTool(StartRun& run)
{
    constexpr std::string_view DEFAULT_VALUE = "Talvik";
    std::string& tool = run.session.orders.OfflineTool;
    tool = DEFAULT_VALUE;
    Recordset rows = run.ini.rows(OWNER_ALL, "Plot", "Offline");
    if (rows.empty())
        return run.ini.append({OWNER_ALL, "Plot", "Offline", DEFAULT_VALUE});

    if (requiredText(rows, "Feld4") == "Druvik")
        tool = "Druvik";
    run.ini.update(rows, "Feld4", tool);
}

void readPlotDrucker(StartRun& run)
{
    OrderSettings& orders = run.session.orders;
    orders.PlotDrucker.fill("");
    orders.PlotDruckerKomplett = false;
    Recordset rows = run.ini.rows(OWNER_ALL, "Plot", "Printer");
    if (rows.RecordCount() == orders.PlotDrucker.size())
        return adoptPrinters(orders, rows);
    if (!rows.empty())
        return warnPrinterTable(run.ports.boxes, "Printer");

    for (std::size_t index = 0; index < orders.PlotDrucker.size(); ++index) {
        run.ini.append({OWNER_ALL, "Plot", "Printer", sheetKey(index), NOT_GIVEN});
        orders.PlotDrucker[index] = NOT_GIVEN;
    }
}

void readPdfDrucker(StartRun& run)
{
    run.session.orders.PdfDrucker.clear();
    Recordset rows = run.ini.rows(OWNER_ALL, "Plot", "PDF");
    if (rows.RecordCount() > 1)
        return warnPrinterTable(run.ports.boxes, "PDF");
    if (!rows.empty()) {
        run.session.orders.PdfDrucker = requiredText(rows, "Feld5");
        return;
    }
    run.ini.append({OWNER_ALL, "Plot", "PDF", PDF_KEY, NOT_GIVEN});
    run.session.orders.PdfDrucker = NOT_GIVEN;
}

} // namespace quelvarn
