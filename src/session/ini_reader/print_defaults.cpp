#include "session/ini_reader/print_defaults.h"

#include "base/number_format.h"
#include "session/ini_reader/start_run.h"
#include "session/paper_sizes.h"

namespace quelvarn {

namespace {

constexpr std::string_view AS_IN_SOLID_EDGE = "Wie in Solid Edge";
constexpr std::string_view BLACK = "Schwarz";
constexpr std::string_view IN_COLOUR = "In Farbe";
constexpr std::string_view DETERMINE = "Ermitteln";
constexpr int PDF_RESOLUTION = 300;

// Reads the user's rows of "Plot" or "PDF" into the record that new orders take. An empty or zero field of the
// record is one for which no row spoke.
class DefaultsReader
{
public:
    DefaultsReader(StartRun& run, bool pdf)
        : run_(run), pdf_(pdf), group_(pdf ? "PDF" : "Plot"),
          defaultValue_(pdf ? run.session.orders.PdfVorgabe : run.session.orders.PlotVorgabe)
    {}

    void read();

private:
    void adopt(const Recordset& row);
    void adoptPath(const Recordset& row);
    void complete(bool isNew);
    void completePath();
    void append(std::string_view key, std::string_view value);
    std::string paper(const std::string& value);
    int copies(const Recordset& row);
    std::string orientation(const std::string& value);
    DefaultPrinter printers();
    bool printersExists();

    StartRun& run_;
    bool pdf_;
    std::string_view group_;
    PrintDefaults& defaultValue_;
    bool writes_ = true;
};

void DefaultsReader::read()
{
    defaultValue_ = {};
    Recordset rows = run_.ini.rows(run_.session.user.Anwender, group_);
    const bool isNew = rows.empty();
    for (; !rows.eof(); rows.MoveNext())
        adopt(rows);
    // Without a printer a new user gets no rows yet; the next start tries again.
    writes_ = !isNew || printersExists();
    complete(isNew);
}

void DefaultsReader::adopt(const Recordset& row)
{
    const std::string key = requiredText(row, "Feld3");
    const Value value = row.field("Feld4");
    if (key == "Printer") {
        // An empty row does not put out what another one told.
        if (const std::string name = requiredText(row, "Feld4"); !name.empty())
            defaultValue_.Printer = name;
    } else if (key == "PaperSize") {
        defaultValue_.PaperSize = paper(requiredText(row, "Feld4"));
    } else if (key == "ColorMode") {
        const bool coloured = pdf_ || requiredText(row, "Feld4") == IN_COLOUR;
        defaultValue_.ColorMode = coloured ? IN_COLOUR : BLACK;
    } else if (key == "NumCopies") {
        defaultValue_.NumCopies = copies(row);
    } else if (key == "Orientation") {
        defaultValue_.Orientation = orientation(requiredText(row, "Feld4"));
    } else if (key == "PlotScale") {
        defaultValue_.PlotScale = isNumeric(value) && asNumber(value) != 0 ? asNumber(value) : 1.0;
    } else if (key == "Pfadname" && pdf_) {
        adoptPath(row);
    }
}

void DefaultsReader::adoptPath(const Recordset& row)
{
    const int kind = numberOrZero(row, "Feld4");
    defaultValue_.PfadArt = kind >= 1 && kind <= 3 ? kind : 1;
    const std::string documentPath = textOrEmpty(row, "Feld5");
    defaultValue_.Pfad = documentPath.empty() ? run_.session.folders.OrdnerSEDokumente : documentPath;
}

std::string DefaultsReader::paper(const std::string& value)
{
    return value.empty() ? paperName(printers().paperCode) : value;
}

int DefaultsReader::copies(const Recordset& row)
{
    const std::optional<int> number = findNumber(row, "Feld4");
    if (!pdf_)
        return number ? *number : printers().copies;
    const std::string text = asText(row.field("Feld4"));
    return text == "150" || text == "600" ? *number : PDF_RESOLUTION;
}

std::string DefaultsReader::orientation(const std::string& value)
{
    if (value == "Hochformat" || value == "Querformat" || value == DETERMINE)
        return value;
    return printers().orientation == 1 ? "Hochformat" : "Querformat";
}

// Fills what no row told, and adds its row.
void DefaultsReader::complete(bool isNew)
{
    if (defaultValue_.Printer.empty() && printersExists()) {
        defaultValue_.Printer = printers().name;
        append("Printer", defaultValue_.Printer);
    }
    if (defaultValue_.PaperSize.empty()) {
        defaultValue_.PaperSize = AS_IN_SOLID_EDGE;
        append("PaperSize", AS_IN_SOLID_EDGE);
    }
    if (defaultValue_.ColorMode.empty()) {
        defaultValue_.ColorMode = pdf_ ? IN_COLOUR : BLACK;
        append("ColorMode", BLACK); // For PDF too: the row says so, the orders are coloured.
    }
    if (defaultValue_.NumCopies == 0) {
        defaultValue_.NumCopies = pdf_ ? PDF_RESOLUTION : 1;
        // A single missing row takes the printer's number for the next start.
        const int rowValue = pdf_ || isNew ? defaultValue_.NumCopies : printers().copies;
        append("NumCopies", std::to_string(rowValue));
    }
    if (defaultValue_.Orientation.empty()) {
        defaultValue_.Orientation = DETERMINE;
        append("Orientation", DETERMINE);
    }
    if (defaultValue_.PlotScale == 0) {
        defaultValue_.PlotScale = 1.0;
        append("PlotScale", numberAsText(defaultValue_.PlotScale));
    }
    if (pdf_)
        completePath();
}

void DefaultsReader::completePath()
{
    if (!defaultValue_.Pfad.empty())
        return;
    defaultValue_.PfadArt = 1;
    defaultValue_.Pfad = run_.session.folders.OrdnerSEDokumente;
    if (writes_)
        run_.ini.append({run_.session.user.Anwender, group_, "Pfadname", "1", defaultValue_.Pfad});
}

void DefaultsReader::append(std::string_view key, std::string_view value)
{
    if (writes_)
        run_.ini.append({run_.session.user.Anwender, group_, key, value});
}

bool DefaultsReader::printersExists()
{
    if (!run_.defaultPrinter)
        run_.defaultPrinter = run_.ports.printers.standard();
    return run_.defaultPrinter->has_value();
}

DefaultPrinter DefaultsReader::printers()
{
    if (printersExists())
        return **run_.defaultPrinter;
    DefaultPrinter nobody;
    nobody.paperCode = PAPER_CODE_UNKNOWN;
    return nobody;
}

} // namespace

void readPlotDefaults(StartRun& run)
{
    DefaultsReader(run, false).read();
}

void readPdfDefaults(StartRun& run)
{
    DefaultsReader(run, true).read();
}

} // namespace quelvarn
