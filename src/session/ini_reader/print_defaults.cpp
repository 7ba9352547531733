#include "base/number_format.h"
#include "session/ini_reader/start_run.h"
#include "session/paper_sizes.h"

namespace quelvarn {

namespace {

constexpr std::string_view WIE_IN_SOLID_EDGE = "Wie in Solid Edge";
constexpr std::string_view SCHWARZ = "Schwarz";
constexpr std::string_view IN_FARBE = "In Farbe";
constexpr std::string_view ERMITTELN = "Ermitteln";
constexpr int PDF_AUFLOESUNG = 300;

// Reads the user's rows of "Plot" or "PDF" into the record that new orders take. An empty or zero field of the
// record is one for which no row spoke.
class Vorgabeleser
{
public:
    Vorgabeleser(Startlauf& lauf, bool pdf)
        : lauf_(lauf), pdf_(pdf), gruppe_(pdf ? "PDF" : "Plot"),
          vorgabe_(pdf ? lauf.session.orders.PdfVorgabe : lauf.session.orders.PlotVorgabe)
    {}

    void lies();

private:
    void uebernimm(const Recordset& zeile);
    void uebernimmPfad(const Recordset& zeile);
    void ergaenze(bool neu);
    void ergaenzePfad();
    void fuegeAn(std::string_view schluessel, std::string_view wert);
    std::string papier(const std::string& wert);
    int exemplare(const Recordset& zeile);
    std::string ausrichtung(const std::string& wert);
    Standarddrucker drucker();
    bool druckerVorhanden();

    Startlauf& lauf_;
    bool pdf_;
    std::string_view gruppe_;
    Druckvorgabe& vorgabe_;
    bool schreibt_ = true;
};

void Vorgabeleser::lies()
{
    vorgabe_ = {};
    Recordset zeilen = lauf_.ini.zeilen(lauf_.session.user.Anwender, gruppe_);
    const bool neu = zeilen.leer();
    for (; !zeilen.Eof(); zeilen.MoveNext())
        uebernimm(zeilen);
    // Without a printer a new user gets no rows yet; the next start tries again.
    schreibt_ = !neu || druckerVorhanden();
    ergaenze(neu);
}

void Vorgabeleser::uebernimm(const Recordset& zeile)
{
    const std::string schluessel = pflichttext(zeile, "Feld3");
    const Value wert = zeile.Feld("Feld4");
    if (schluessel == "Printer") {
        // An empty row does not put out what another one told.
        if (const std::string name = pflichttext(zeile, "Feld4"); !name.empty())
            vorgabe_.Printer = name;
    } else if (schluessel == "PaperSize") {
        vorgabe_.PaperSize = papier(pflichttext(zeile, "Feld4"));
    } else if (schluessel == "ColorMode") {
        const bool farbig = pdf_ || pflichttext(zeile, "Feld4") == IN_FARBE;
        vorgabe_.ColorMode = farbig ? IN_FARBE : SCHWARZ;
    } else if (schluessel == "NumCopies") {
        vorgabe_.NumCopies = exemplare(zeile);
    } else if (schluessel == "Orientation") {
        vorgabe_.Orientation = ausrichtung(pflichttext(zeile, "Feld4"));
    } else if (schluessel == "PlotScale") {
        vorgabe_.PlotScale = istNumerisch(wert) && alsZahl(wert) != 0 ? alsZahl(wert) : 1.0;
    } else if (schluessel == "Pfadname" && pdf_) {
        uebernimmPfad(zeile);
    }
}

void Vorgabeleser::uebernimmPfad(const Recordset& zeile)
{
    const int art = zahlOderNull(zeile, "Feld4");
    vorgabe_.PfadArt = art >= 1 && art <= 3 ? art : 1;
    const std::string pfad = textOderLeer(zeile, "Feld5");
    vorgabe_.Pfad = pfad.empty() ? lauf_.session.folders.OrdnerSEDokumente : pfad;
}

std::string Vorgabeleser::papier(const std::string& wert)
{
    return wert.empty() ? papierName(drucker().papiercode) : wert;
}

int Vorgabeleser::exemplare(const Recordset& zeile)
{
    const std::optional<int> zahl = findNumber(zeile, "Feld4");
    if (!pdf_)
        return zahl ? *zahl : drucker().exemplare;
    const std::string text = alsText(zeile.Feld("Feld4"));
    return text == "150" || text == "600" ? *zahl : PDF_AUFLOESUNG;
}

std::string Vorgabeleser::ausrichtung(const std::string& wert)
{
    if (wert == "Hochformat" || wert == "Querformat" || wert == ERMITTELN)
        return wert;
    return drucker().ausrichtung == 1 ? "Hochformat" : "Querformat";
}

// Fills what no row told, and adds its row.
void Vorgabeleser::ergaenze(bool neu)
{
    if (vorgabe_.Printer.empty() && druckerVorhanden()) {
        vorgabe_.Printer = drucker().name;
        fuegeAn("Printer", vorgabe_.Printer);
    }
    if (vorgabe_.PaperSize.empty()) {
        vorgabe_.PaperSize = WIE_IN_SOLID_EDGE;
        fuegeAn("PaperSize", WIE_IN_SOLID_EDGE);
    }
    if (vorgabe_.ColorMode.empty()) {
        vorgabe_.ColorMode = pdf_ ? IN_FARBE : SCHWARZ;
        fuegeAn("ColorMode", SCHWARZ); // For PDF too: the row says so, the orders are coloured.
    }
    if (vorgabe_.NumCopies == 0) {
        vorgabe_.NumCopies = pdf_ ? PDF_AUFLOESUNG : 1;
        // A single missing row takes the printer's number for the next start.
        const int zeilenwert = pdf_ || neu ? vorgabe_.NumCopies : drucker().exemplare;
        fuegeAn("NumCopies", std::to_string(zeilenwert));
    }
    if (vorgabe_.Orientation.empty()) {
        vorgabe_.Orientation = ERMITTELN;
        fuegeAn("Orientation", ERMITTELN);
    }
    if (vorgabe_.PlotScale == 0) {
        vorgabe_.PlotScale = 1.0;
        fuegeAn("PlotScale", zahlAlsText(vorgabe_.PlotScale));
    }
    if (pdf_)
        ergaenzePfad();
}

void Vorgabeleser::ergaenzePfad()
{
    if (!vorgabe_.Pfad.empty())
        return;
    vorgabe_.PfadArt = 1;
    vorgabe_.Pfad = lauf_.session.folders.OrdnerSEDokumente;
    if (schreibt_)
        lauf_.ini.fuegeAn({lauf_.session.user.Anwender, gruppe_, "Pfadname", "1", vorgabe_.Pfad});
}

void Vorgabeleser::fuegeAn(std::string_view schluessel, std::string_view wert)
{
    if (schreibt_)
        lauf_.ini.fuegeAn({lauf_.session.user.Anwender, gruppe_, schluessel, wert});
}

bool Vorgabeleser::druckerVorhanden()
{
    if (!lauf_.defaultPrinter)
        lauf_.defaultPrinter = lauf_.ports.drucker.standard();
    return lauf_.defaultPrinter->has_value();
}

Standarddrucker Vorgabeleser::drucker()
{
    if (druckerVorhanden())
        return **lauf_.defaultPrinter;
    Standarddrucker keiner;
    keiner.papiercode = PAPIERCODE_UNBEKANNT;
    return keiner;
}

} // namespace

void lesePlotVorgabe(Startlauf& lauf)
{
    Vorgabeleser(lauf, false).lies();
}

void lesePdfVorgabe(Startlauf& lauf)
{
    Vorgabeleser(lauf, true).lies();
}

} // namespace quelvarn
