#include "register/file_page.h"

#include "base/number_format.h"
#include "base/text.h"
#include "platform/files.h"
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

void FilePage::read(const std::string& filename)
{
    session_.Dateiinfo = {};
    mitDateiBox(ports_.meldungen, [&] { session_.Dateiinfo = LeseDateiinfo(filename, ports_); });
    shown_ = dateiSeite(session_.Dateiinfo);
}

void FilePage::setAttribute(bool on, void (Dateien::*set)(std::string_view, bool), bool Dateiattribute::*attribute)
{
    const std::string filename = session_.AktDoku.filename;
    mitDateiBox(ports_.meldungen, [&] {
        const auto attributes = ports_.dateien.attribute(filename);
        if (attributes && (*attributes).*attribute != on)
            (ports_.dateien.*set)(filename, on);
    });
    read(filename);
}

void FilePage::setReadOnly(bool on)
{
    setAttribute(on, &Dateien::setzeSchreibschutz, &Dateiattribute::schreibgeschuetzt);
}

void FilePage::setArchive(bool on)
{
    setAttribute(on, &Dateien::setzeArchiv, &Dateiattribute::archiv);
}

void FilePage::clear()
{
    session_.Dateiinfo = {};
    shown_ = {};
}

} // namespace quelvarn
