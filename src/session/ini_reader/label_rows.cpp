#include "session/ini_reader/label_rows.h"

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

using Names = std::map<std::string, std::string, std::less<>>;

const Names LABELS{
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

const Names SPECIAL_TABLES{
    {"sondertabelle1", "Sondertabelle1"},
    {"sondertabelle2", "Sondertabelle2"},
    {"sondertabelle3", "Sondertabelle3"},
};

// The names of a group of !QV_Ini rows; a key without a row, or with an empty name, keeps its default.
Names readNames(StartRun& run, std::string_view group, Names names)
{
    Recordset rows = run.ini.distinct({"Feld3", "Feld4"}, OWNER_ALL, group);
    if (rows.empty()) {
        run.ports.boxes.warn("Modul: Falscher Eintrag Ini-Tabelle",
                             fmt::format("Falscher Eintrag bei '{}'in der Ini-Tabelle!\n"
                                         "Es werden die Defaultwerte eingetragen.",
                                         group));
        return names;
    }
    for (; !rows.eof(); rows.MoveNext()) {
        const auto entry = names.find(toLower(textOrEmpty(rows, "Feld3")));
        const std::string name = textOrEmpty(rows, "Feld4");
        if (entry != names.end() && !name.empty())
            entry->second = name;
    }
    return names;
}

} // namespace

void readLabels(StartRun& run)
{
    run.session.labels.Bezeichnungen = readNames(run, "Bezeichnung", LABELS);
}

void readSpecialTables(StartRun& run)
{
    const Names names = readNames(run, "Tabelle", SPECIAL_TABLES);
    auto target = run.session.labels.SondertabelleName.begin();
    for (const auto& [key, name] : names)
        *target++ = name;
}

void readSearchTexts(StartRun& run)
{
    auto& searchTexts = run.session.pages.SearchTexts;
    searchTexts.clear();
    // One text a key, in the order of the keys: rows of other keys are none, and of twins the first counts.
    std::array<std::optional<std::string>, SEARCH_TEXT_COUNT> byKey;
    for (Recordset rows = run.ini.searchTexts(run.session.user.Anwender); !rows.eof(); rows.MoveNext()) {
        const auto key = searchTextKey(textOrEmpty(rows, "Feld3"));
        if (key && !byKey[*key])
            byKey[*key] = requiredText(rows, "Feld4");
    }
    for (auto& text : byKey)
        if (text)
            searchTexts.push_back(std::move(*text));
}

} // namespace quelvarn
