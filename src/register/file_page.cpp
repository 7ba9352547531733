#include "base/number_format.h"
#include "base/text.h"
#include "register/document_page.h"
#include "session/error_report.h"
#include "session/local_settings.h"

namespace quelvarn {

DateiSeite dateiSeite(const DateiInfo& info)
{
    DateiSeite seite;
    seite.vorhanden = info.vorhanden;
    if (!info.vorhanden)
        return seite;
    seite.schreibgeschuetzt = info.attribute.schreibgeschuetzt;
    seite.archiv = info.attribute.archiv;
    seite.Name = info.Name;
    seite.Ordner = info.Ordner;
    seite.Groesse = formatGanzzahl(info.attribute.groesse) + " Bytes";
    seite.Erstellt = alsText(info.attribute.erstellt);
    seite.Geaendert = alsText(info.attribute.geaendert);
    seite.Zugriff = alsText(info.attribute.zugriff);
    return seite;
}

namespace {

bool mitDateiBox(Meldungen& meldungen, const std::function<void()>& operation)
{
    const std::string text = zeilen({
        "Fehler beim Lesen der Dateieigenschaften!",
        "Mögliche Ursache:",
        "Datei ist nicht vorhanden.",
    });
    return gesichert(meldungen, "Dateieigenschaften", text, operation);
}

} // namespace

void DocumentPage::leseDatei()
{
    session_.Dateiinfo = {};
    mitDateiBox(ports_.meldungen, [&] { session_.Dateiinfo = LeseDateiinfo(table().record().filename, ports_); });
    datei_ = dateiSeite(session_.Dateiinfo);
}

void DocumentPage::setzeAttribut(bool gesetzt, void (Dateien::*setzer)(std::string_view, bool),
                                 bool Dateiattribute::*merkmal)
{
    mitDateiBox(ports_.meldungen, [&] {
        const std::string& pfad = session_.AktDoku.filename;
        const auto attribute = ports_.dateien.attribute(pfad);
        if (attribute && (*attribute).*merkmal != gesetzt)
            (ports_.dateien.*setzer)(pfad, gesetzt);
    });
    leseDatei();
    operations_.changed(Part::Document);
}

void DocumentPage::setzeSchreibschutz(bool gesetzt)
{
    setzeAttribut(gesetzt, &Dateien::setzeSchreibschutz, &Dateiattribute::schreibgeschuetzt);
}

void DocumentPage::setzeArchiv(bool gesetzt)
{
    setzeAttribut(gesetzt, &Dateien::setzeArchiv, &Dateiattribute::archiv);
}

} // namespace quelvarn
