#include "base/collation.h"
#include "database/document_types.h"
#include "platform/files.h"
#include "platform/system_ports.h"
#include "tools/check/checks.h"

#include <algorithm>
#include <fmt/format.h>
#include <functional>
#include <unordered_set>

namespace quelvarn::tools {

namespace {

// A text of the current row; Null and "" are told apart by istNull.
std::string name(const Zeilenleser& zeile)
{
    const auto teil = [&](std::size_t spalte) {
        return zeile.istNull(spalte) ? "Null" : std::string(zeile.text(spalte));
    };
    return fmt::format("{} ({})", teil(0), teil(1));
}

// What can be wrong with a document.
struct Dokumentfehler
{
    Vorkommen ohneSchluessel;
    Vorkommen ohneDatei;
    Vorkommen falscherStatus;
    Vorkommen doppelt;

    void melde(std::string_view tabelle, Befund& befund) const
    {
        const auto fehler = [&](const Vorkommen& vorkommen, std::string_view was) {
            if (vorkommen.anzahl() > 0)
                befund.fehler(fmt::format("{}: {}", tabelle, vorkommen.text(was)));
        };
        fehler(ohneSchluessel, "Dokumente ohne DokuBez oder RevBez");
        fehler(ohneDatei, "Dokumente ohne filename");
        fehler(falscherStatus, "Dokumente mit einem Status außerhalb von 0 bis 5");
        fehler(doppelt, "Dokumente, die es schon gibt");
    }
};

// The first of several equal keys is no fault, each further one is.
void findeDoppelte(Engine& engine, const DokuTyp& typ, std::vector<std::uint64_t> schluessel, Vorkommen& doppelt)
{
    std::ranges::sort(schluessel);
    std::vector<std::uint64_t> mehrfach;
    for (std::size_t i = 1; i < schluessel.size(); ++i)
        if (schluessel[i] == schluessel[i - 1])
            mehrfach.push_back(schluessel[i]);
    if (mehrfach.empty())
        return;
    const auto zeilen = findZeilen(engine, typ.tabelle, {"DokuBez", "RevBez"});
    std::unordered_set<std::uint64_t> gesehen;
    while (zeilen->next()) {
        const auto nummer = Dokumentschluessel::aus(zeilen->text(0), zeilen->text(1));
        if (!std::ranges::binary_search(mehrfach, nummer))
            continue;
        if (!gesehen.insert(nummer).second)
            doppelt.merke(name(*zeilen));
    }
}

void pruefeTabelle(Engine& engine, const DokuTyp& typ, Befund& befund, Verlaufsanzeige& anzeige,
                   Dokumentschluessel& schluessel)
{
    const auto zeilen = findZeilen(engine, typ.tabelle, {"DokuBez", "RevBez", "filename", "Status"});
    if (!zeilen)
        return;
    auto& dokumente = schluessel.dokumente[static_cast<std::size_t>(typ.tab)];
    Dokumentfehler fehler;
    std::uint64_t anzahl = 0;
    while (zeilen->next()) {
        anzeige.melde(typ.tabelle, ++anzahl);
        if (zeilen->istNull(0) || zeilen->istNull(1) || zeilen->text(0).empty())
            fehler.ohneSchluessel.merke(name(*zeilen));
        else
            dokumente.push_back(Dokumentschluessel::aus(zeilen->text(0), zeilen->text(1)));
        if (zeilen->istNull(2) || zeilen->text(2).empty())
            fehler.ohneDatei.merke(name(*zeilen));
        else
            schluessel.dateien.push_back(Dokumentschluessel::aus(zeilen->text(2)));
        const auto status = zeilen->istNull(3) ? -1 : zeilen->ganzzahl(3);
        if (status < 0 || status >= ANZAHL_STATUS)
            fehler.falscherStatus.merke(name(*zeilen));
    }
    findeDoppelte(engine, typ, dokumente, fehler.doppelt);
    befund.zeile(fmt::format("{}: {} Dokumente", typ.tabelle, anzahl));
    fehler.melde(typ.tabelle, befund);
}

constexpr char BEHIND_A_NAME = '\0';

// All at once: a drive may take hours for its answers, and nobody is to wait so long for the database.
std::string fileNames(Engine& engine, const DokuTyp& typ)
{
    std::string names;
    const auto rows = findZeilen(engine, typ.tabelle, {"filename"});
    while (rows && rows->next())
        if (!rows->istNull(0))
            names.append(rows->text(0)) += BEHIND_A_NAME;
    return names;
}

} // namespace

std::uint64_t Dokumentschluessel::aus(std::string_view text)
{
    return std::hash<std::string>{}(sortKey(text));
}

std::uint64_t Dokumentschluessel::aus(std::string_view dokuBez, std::string_view revBez)
{
    return std::hash<std::string>{}(sortKey(dokuBez) + '\0' + sortKey(revBez));
}

void Dokumentschluessel::sortiere()
{
    std::ranges::sort(dateien);
    for (auto& tabelle : dokumente)
        std::ranges::sort(tabelle);
}

bool Dokumentschluessel::enthaelt(const std::vector<std::uint64_t>& sortierte, std::uint64_t schluessel)
{
    return std::ranges::binary_search(sortierte, schluessel);
}

void pruefeDokumente(Engine& engine, Befund& befund, Verlaufsanzeige& anzeige, Dokumentschluessel& schluessel)
{
    for (const DokuTyp& typ : DOKUTYPEN)
        pruefeTabelle(engine, typ, befund, anzeige, schluessel);
    schluessel.sortiere();
}

void pruefeDateien(Engine& engine, Befund& befund, Verlaufsanzeige& anzeige)
{
    const auto system = systemPorts(standardLaufwerkeOrdner());
    for (const DokuTyp& typ : DOKUTYPEN) {
        const std::string names = fileNames(engine, typ);
        Vorkommen fehlt;
        std::uint64_t anzahl = 0;
        for (std::size_t begin = 0; begin < names.size();) {
            const auto end = names.find(BEHIND_A_NAME, begin);
            const auto file = std::string_view(names).substr(begin, end - begin);
            begin = end + 1;
            anzeige.melde("Dateien", ++anzahl);
            if (!system->dateien().dateiVorhanden(file))
                fehlt.merke(file);
        }
        if (fehlt.anzahl() > 0)
            befund.warnung(fmt::format("{}: {}", typ.tabelle, fehlt.text("Dokumente, deren Datei fehlt")));
    }
}

} // namespace quelvarn::tools
