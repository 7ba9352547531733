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

constexpr std::size_t LAENGSTER_SUCHTEXT = 50;
constexpr std::string_view LEER = "Leer"; // The next start replaces it by the default.

void schreibeBaumschalter(IniZeilen& ini, const SessionState& session)
{
    Recordset zeilen = ini.zeilen(session.user.Anwender, "Treeview");
    for (; !zeilen.Eof(); zeilen.MoveNext()) {
        const std::string schluessel = textOderLeer(zeilen, "Feld3");
        const auto schalter =
            std::find_if(BAUMSCHALTER.begin(), BAUMSCHALTER.end(),
                         [&](const Baumschalterzeile& kandidat) { return equalText(kandidat.schluessel, schluessel); });
        if (schalter != BAUMSCHALTER.end())
            ini.aendere(zeilen, "Feld4", session.Tree.*schalter->feld ? "1" : "0");
    }
}

bool stehtSoInDerTabelle(Recordset& zeilen, const std::vector<std::string>& texte)
{
    std::size_t anzahl = 0;
    for (; !zeilen.Eof(); zeilen.MoveNext(), ++anzahl)
        if (anzahl >= texte.size() || searchTextKey(textOderLeer(zeilen, "Feld3")) != anzahl ||
            textOderLeer(zeilen, "Feld4") != texte[anzahl])
            return false;
    return anzahl == texte.size();
}

void schreibeSuchtexte(IniZeilen& ini, const SessionState& session)
{
    std::vector<std::string> texte;
    for (const std::string& text : session.pages.Suchtexte)
        if (!text.empty())
            texte.emplace_back(rightCharacters(text, LAENGSTER_SUCHTEXT));

    Recordset zeilen = ini.suchtexte(session.user.Anwender);
    if (stehtSoInDerTabelle(zeilen, texte))
        return;
    ini.writeAlone();
    zeilen = ini.suchtexte(session.user.Anwender);
    ini.loesche(zeilen);
    for (std::size_t index = 0; index < texte.size(); ++index)
        ini.fuegeAn({session.user.Anwender, "Suchen/Filtern", searchTextName(index), texte[index]});
}

} // namespace

void saveSettings(const Ports& ports, std::string_view title, std::string_view text, const std::function<void()>& write)
{
    std::string told(text);
    gesichert(
        ports.meldungen, title, [&] { return told; },
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
void schreibeStartseite(SessionState& session)
{
    IniZeilen ini(session.database.Verbindung);
    Recordset aktiv = ini.activeQuelvarn(session.user.Anwender);
    ini.aendereAlle(aktiv, "Feld3", session.pages.ActiveQuelvarn ? "1" : "0");

    Recordset offline = ini.zeilen(EIGENTUEMER_ALLE, "Plot", "Offline");
    ini.aendereAlle(offline, "Feld4", session.orders.OfflineTool);

    schreibeBaumschalter(ini, session);
    ini.schliesseAb();
}

void schreibeDokumentseite(SessionState& session, int tab)
{
    IniZeilen ini(session.database.Verbindung);
    schreibeSuchtexte(ini, session);

    const DokuTyp& typ = DOKUTYPEN[static_cast<std::size_t>(tab)];
    Recordset start = ini.zeilen(session.user.Anwender, "Starttabelle");
    if (typ.sondertabelle == 0)
        ini.aendereAlle(start, "Feld3", typ.mehrzahl);

    Recordset offline = ini.zeilen(session.user.Anwender, "OfflineDaten");
    for (; !offline.Eof(); offline.MoveNext()) {
        ini.aendere(offline, "Feld3", session.orders.OfflineArt.empty() ? LEER : session.orders.OfflineArt);
        ini.aendere(offline, "Feld4", session.orders.OfflineNummer);
        ini.aendere(offline, "Feld5", session.orders.OfflineExportArt.empty() ? LEER : session.orders.OfflineExportArt);
    }
    ini.schliesseAb();
}

} // namespace quelvarn
