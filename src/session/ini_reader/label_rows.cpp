#include "base/collation.h"
#include "base/text.h"
#include "platform/boxes.h"
#include "session/ini_reader/start_run.h"

#include <array>
#include <fmt/format.h>
#include <map>
#include <optional>

namespace quelvarn {

namespace {

using Namen = std::map<std::string, std::string, std::less<>>;

const Namen BEZEICHNUNGEN{
    {"autor", "Autor"},
    {"bearbeiter", "Bearbeiter"},
    {"erstellt", "Erstellt"},
    {"firma", "Firma"},
    {"geändert", "Geändert"},
    {"hauptmerkmal a", "Hauptmerkmal A"},
    {"hauptmerkmal b", "Hauptmerkmal B"},
    {"kategorie", "Kategorie"},
    {"manager", "Manager"},
    {"material", "Material"},
    {"projekt", "Projekt"},
    {"thema", "Thema"},
    {"titel", "Titel"},
    {"stichwörter", "Stichwörter"},
};

const Namen SONDERTABELLEN{
    {"sondertabelle1", "Sondertabelle1"},
    {"sondertabelle2", "Sondertabelle2"},
    {"sondertabelle3", "Sondertabelle3"},
};

// The names of a group of !QV_Ini rows; a key without a row, or with an empty name, keeps its default.
Namen leseNamen(Startlauf& lauf, std::string_view gruppe, Namen namen)
{
    Recordset zeilen = lauf.ini.verschiedene({"Feld3", "Feld4"}, EIGENTUEMER_ALLE, gruppe);
    if (zeilen.leer()) {
        lauf.ports.meldungen.warnung("Modul: Falscher Eintrag Ini-Tabelle",
                                     fmt::format("Falscher Eintrag bei '{}'in der Ini-Tabelle!\n"
                                                 "Es werden die Defaultwerte eingetragen.",
                                                 gruppe));
        return namen;
    }
    for (; !zeilen.Eof(); zeilen.MoveNext()) {
        const auto eintrag = namen.find(toLower(textOderLeer(zeilen, "Feld3")));
        const std::string name = textOderLeer(zeilen, "Feld4");
        if (eintrag != namen.end() && !name.empty())
            eintrag->second = name;
    }
    return namen;
}

} // namespace

void leseBezeichnungen(Startlauf& lauf)
{
    lauf.session.labels.Bezeichnungen = leseNamen(lauf, "Bezeichnung", BEZEICHNUNGEN);
}

void leseSondertabellen(Startlauf& lauf)
{
    const Namen namen = leseNamen(lauf, "Tabelle", SONDERTABELLEN);
    auto ziel = lauf.session.labels.SondertabelleName.begin();
    for (const auto& [schluessel, name] : namen)
        *ziel++ = name;
}

void leseSuchtexte(Startlauf& lauf)
{
    auto& suchtexte = lauf.session.pages.Suchtexte;
    suchtexte.clear();
    // One text a key, in the order of the keys: rows of other keys are none, and of twins the first counts.
    std::array<std::optional<std::string>, ANZAHL_SUCHTEXTE> byKey;
    for (Recordset zeilen = lauf.ini.suchtexte(lauf.session.user.Anwender); !zeilen.Eof(); zeilen.MoveNext()) {
        const auto key = searchTextKey(textOderLeer(zeilen, "Feld3"));
        if (key && !byKey[*key])
            byKey[*key] = pflichttext(zeilen, "Feld4");
    }
    for (auto& text : byKey)
        if (text)
            suchtexte.push_back(std::move(*text));
}

} // namespace quelvarn
