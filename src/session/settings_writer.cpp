#include "session/settings_writer.h"

#include "base/collation.h"
#include "base/utf8.h"
#include "database/document_types.h"
#include "database/faults.h"
#include "session/error_report.h"
#include "session/ini_reader/ini_rows.h"
#include "session/tree_switches.h"

#include <algorithm>

namespace quelvarn {

namespace {

constexpr std::size_t LONGEST_SEARCH_TEXT = 50;
constexpr std::string_view EMPTY = "Leer"; // The next start replaces it by the default.

void writeTreeSwitches(IniRows& ini, const SessionUser& user, const TreeSwitches& switches)
{
    Recordset rows = ini.rows(user.Anwender, "Treeview");
    for (; !rows.eof(); rows.MoveNext()) {
        const std::string key = textOrEmpty(rows, "Feld3");
        const auto option = std::find_if(TREE_SWITCHES.begin(), TREE_SWITCHES.end(),
                                         [&](const TreeSwitchRow& candidate) { return equalText(candidate.key, key); });
        if (option != TREE_SWITCHES.end())
            ini.update(rows, "Feld4", switches.*option->field ? "1" : "0");
    }
}

bool standsSoInTable(Recordset& rows, const std::vector<std::string>& texts)
{
    std::size_t count = 0;
    for (; !rows.eof(); rows.MoveNext(), ++count)
        if (count >= texts.size() || searchTextKey(textOrEmpty(rows, "Feld3")) != count ||
            textOrEmpty(rows, "Feld4") != texts[count])
            return false;
    return count == texts.size();
}

void writeSearchTexts(IniRows& ini, const SessionUser& user, const PageSettings& pages)
{
    std::vector<std::string> texts;
    for (const std::string& text : pages.SearchTexts)
        if (!text.empty())
            texts.emplace_back(rightCharacters(text, LONGEST_SEARCH_TEXT));

    Recordset rows = ini.searchTexts(user.Anwender);
    if (standsSoInTable(rows, texts))
        return;
    ini.writeAlone();
    rows = ini.searchTexts(user.Anwender);
    ini.remove(rows);
    for (std::size_t index = 0; index < texts.size(); ++index)
        ini.append({user.Anwender, "Suchen/Filtern", searchTextName(index), texts[index]});
}

} // namespace

void saveSettings(const Ports& ports, std::string_view title, std::string_view text, const std::function<void()>& write)
{
    std::string told(text);
    guarded(
        ports.boxes, title, [&] { return told; },
        [&] {
            try {
                write();
            } catch (const DatabaseFault&) {
                told += "\nDie Einstellungen wurden nicht gespeichert.";
                throw;
            }
        });
}

// All rows of a setting say the same afterwards: where older versions left twins, no start knows which it reads first.
void writeStartPage(SessionState& session)
{
    IniRows ini(session.database.connection);
    Recordset active = ini.activeQuelvarn(session.user.Anwender);
    ini.updateAll(active, "Feld3", session.pages.ActiveQuelvarn ? "1" : "0");

    Recordset offline = ini.rows(OWNER_ALL, "Plot", "Offline");
    ini.updateAll(offline, "Feld4", session.orders.OfflineTool);

    writeTreeSwitches(ini, session.user, session.Tree);
    ini.commit();
}

void writeDocumentPage(SessionState& session, int tab)
{
    IniRows ini(session.database.connection);
    writeSearchTexts(ini, session.user, session.pages);

    const DocumentType& type = DOCUMENT_TYPES[static_cast<std::size_t>(tab)];
    Recordset start = ini.rows(session.user.Anwender, "Starttabelle");
    if (type.specialTable == 0)
        ini.updateAll(start, "Feld3", type.plural);

    Recordset offline = ini.rows(session.user.Anwender, "OfflineDaten");
    for (; !offline.eof(); offline.MoveNext()) {
        ini.update(offline, "Feld3", session.orders.OfflineArt.empty() ? EMPTY : session.orders.OfflineArt);
        ini.update(offline, "Feld4", session.orders.OfflineNummer);
        ini.update(offline, "Feld5", session.orders.OfflineExportArt.empty() ? EMPTY : session.orders.OfflineExportArt);
    }
    ini.commit();
}

} // namespace quelvarn
