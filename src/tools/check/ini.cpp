#include "base/collation.h"
#include "base/number_format.h"
#include "database/base_rows.h"
#include "database/document_types.h"
#include "tools/check/checks.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>
#include <string>

namespace quelvarn::tools {

namespace {

struct Zeile
{
    std::string feld1;
    std::string feld2;
    std::string feld3;
    Value feld4;
    Value feld5;
};

using Zeilen = std::vector<Zeile>;

Zeilen liesIni(Engine& engine)
{
    Zeilen zeilen;
    const auto leser = findZeilen(engine, "Ini", {"Feld1", "Feld2", "Feld3", "Feld4", "Feld5"});
    while (leser && leser->next())
        zeilen.push_back({alsText(leser->wert(0)), alsText(leser->wert(1)), alsText(leser->wert(2)), leser->wert(3),
                          leser->wert(4)});
    return zeilen;
}

Zeilen gruppe(const Zeilen& alle, std::string_view besitzer, std::string_view name, std::string_view feld3 = {})
{
    Zeilen ergebnis;
    std::ranges::copy_if(alle, std::back_inserter(ergebnis), [&](const Zeile& zeile) {
        return equalText(zeile.feld1, besitzer) && equalText(zeile.feld2, name) &&
               (feld3.empty() || equalText(zeile.feld3, feld3));
    });
    return ergebnis;
}

bool istEines(std::string_view text, std::initializer_list<std::string_view> erlaubte)
{
    return std::ranges::find(erlaubte, text) != erlaubte.end();
}

void pruefeZeitintervall(const Zeilen& alle, Befund& befund)
{
    constexpr double HOECHSTENS = 65535; // milliseconds
    Zeilen zeilen = gruppe(alle, INSTALLATION, "WriteDB", "Timeinterval");
    if (zeilen.empty())
        zeilen = gruppe(alle, INSTALLATION, "WriteDB", "Zeitinterval");
    if (zeilen.empty() || !istNumerisch(zeilen.front().feld4))
        befund.warnung("Ini: WriteDB/Timeinterval fehlt oder ist keine Zahl; es wird nicht regelmäßig geprüft.");
    else if (alsZahl(zeilen.front().feld4) > HOECHSTENS)
        befund.fehler("Ini: WriteDB/Timeinterval ist größer als 65535.");
}

void pruefeStempel(const Zeilen& alle, Befund& befund)
{
    for (const DokuTyp& typ : DOKUTYPEN)
        if (typ.stempelNummer != 0 && gruppe(alle, INSTALLATION, "WriteDB", typ.stempel).empty())
            befund.warnung(
                fmt::format("Ini: WriteDB/{} fehlt; Änderungen an {} werden nicht bemerkt.", typ.stempel, typ.tabelle));
}

// What a start complains of is a fault; what it adds or mends without a word a warning.
void pruefeInstallation(const Zeilen& alle, Befund& befund)
{
    for (const auto name : {"Bezeichnung", "Tabelle"})
        if (gruppe(alle, INSTALLATION, name).empty())
            befund.fehler(fmt::format("Ini: es gibt keine Zeile '{}'.", name));
    if (gruppe(alle, INSTALLATION, "Plot", "Pfadname").empty())
        befund.fehler("Ini: die Zeile Plot/Pfadname fehlt.");
    for (const auto schalter : {"CheckInOut", "Forward"})
        if (gruppe(alle, INSTALLATION, "OnOff", schalter).empty())
            befund.fehler(fmt::format("Ini: die Zeile OnOff/{} fehlt.", schalter));
    const auto offline = gruppe(alle, INSTALLATION, "Plot", "Offline");
    if (offline.empty() || !istEines(alsText(offline.front().feld4), {"Talvik", "Druvik"}))
        befund.warnung("Ini: Plot/Offline fehlt oder nennt weder Talvik noch Druvik.");
    const auto drucker = gruppe(alle, INSTALLATION, "Plot", "Printer").size();
    if (drucker == 0)
        befund.warnung("Ini: die zehn Zeilen Plot/Printer fehlen.");
    else if (drucker != 10)
        befund.fehler(fmt::format("Ini: es gibt {} Zeilen Plot/Printer, nicht zehn.", drucker));
    const auto pdf = gruppe(alle, INSTALLATION, "Plot", "PDF").size();
    if (pdf == 0)
        befund.warnung("Ini: die Zeile Plot/PDF fehlt.");
    else if (pdf > 1)
        befund.fehler(fmt::format("Ini: es gibt {} Zeilen Plot/PDF, nicht eine.", pdf));
    pruefeZeitintervall(alle, befund);
    pruefeStempel(alle, befund);
}

void pruefeRechte(const Zeilen& alle, std::string_view anwender, Befund& befund)
{
    const auto zeilen = gruppe(alle, anwender, "Berechtigung");
    if (zeilen.empty()) // A user whose rights come with his first start.
        return;
    const bool siehtEtwas = std::ranges::any_of(zeilen, [](const Zeile& z) { return alsZahl(z.feld4) == 1; });
    if (!siehtEtwas)
        befund.fehler(fmt::format("Ini: {} darf keinen Status sehen; jede Abfrage scheitert.", anwender));
    for (const Zeile& zeile : zeilen)
        if (!istNumerisch(zeile.feld4) || !istNumerisch(zeile.feld5) || alsZahl(zeile.feld5) < 0 ||
            alsZahl(zeile.feld5) > 6)
            befund.warnung(fmt::format("Ini: {}, Berechtigung/{}: '{}' und '{}' sind keine Rechte.", anwender,
                                       zeile.feld3, alsText(zeile.feld4), alsText(zeile.feld5)));
}

void pruefeAnwender(const Zeilen& alle, std::string_view anwender, Befund& befund)
{
    const auto gemahnt = [&](std::string_view was) {
        befund.warnung(fmt::format("Ini: {}, {}: der Wert wird beim Start ersetzt.", anwender, was));
    };
    pruefeRechte(alle, anwender, befund);
    for (const Zeile& zeile : gruppe(alle, anwender, "Treeview"))
        if (!istEines(alsText(zeile.feld4), {"0", "1"}))
            gemahnt("Treeview/" + zeile.feld3);
    for (const Zeile& zeile : gruppe(alle, anwender, "Starttabelle"))
        if (!istEines(zeile.feld3, {"Bauteile", "Blechteile", "Baugruppen", "Zeichnungen", "Schweißteile"}))
            gemahnt("Starttabelle");
    for (const Zeile& zeile : gruppe(alle, anwender, "OfflineDaten"))
        if (!istEines(toUpper(zeile.feld3), {"PLOT", "PDF", "TIFF", "EXPORT", "DIRECTMAIL"}) ||
            !istEines(alsText(zeile.feld4), {"(1)", "(2)"}) ||
            !istEines(toUpper(alsText(zeile.feld5)), {"EXPORT", "BOM"}))
            gemahnt("OfflineDaten");
    for (const Zeile& zeile : gruppe(alle, anwender, "ZipDaten"))
        if (!istEines(zeile.feld3, {"Normal", "Maximum", "Minimum", "Schnell"}) || alsText(zeile.feld4).empty())
            gemahnt("ZipDaten");
}

} // namespace

void pruefeIni(Engine& engine, Befund& befund)
{
    const Zeilen alle = liesIni(engine);
    pruefeInstallation(alle, befund);
    std::map<std::string, std::string> anwender;
    for (const Zeile& zeile : alle)
        if (!equalText(zeile.feld1, INSTALLATION))
            anwender.try_emplace(sortKey(zeile.feld1), zeile.feld1);
    for (const auto& [_, name] : anwender)
        pruefeAnwender(alle, name, befund);
    befund.zeile(fmt::format("Ini: {} Anwender", anwender.size()));
}

} // namespace quelvarn::tools
