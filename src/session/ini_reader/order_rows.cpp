#include "base/collation.h"
#include "base/utf8.h"
#include "session/ini_reader/start_run.h"

#include <algorithm>
#include <initializer_list>

namespace quelvarn {

namespace {

constexpr std::array<std::string_view, 4> ZIP_STUFEN{"Normal", "Maximum", "Minimum", "Schnell"};
constexpr std::string_view ZIP_PASSWORT = "Tarnwort";
constexpr std::size_t LAENGSTES_PASSWORT = 16;

bool istEinesVon(std::string_view wert, std::initializer_list<std::string_view> erlaubt)
{
    return std::find(erlaubt.begin(), erlaubt.end(), wert) != erlaubt.end();
}

// The stored value where it counts as good, else the default, which is written back.
std::string geheilt(Startlauf& lauf, Recordset& zeile, std::string_view feld, bool gut, std::string_view vorgabe)
{
    if (!gut)
        lauf.ini.aendere(zeile, feld, vorgabe);
    return gut ? pflichttext(zeile, feld) : std::string(vorgabe);
}

} // namespace

void leseOfflineDaten(Startlauf& lauf)
{
    SessionState& session = lauf.session;
    Recordset zeile = lauf.ini.zeilen(session.user.Anwender, "OfflineDaten");
    if (zeile.leer()) {
        session.orders.OfflineArt = "Plot";
        session.orders.OfflineNummer = "(1)";
        session.orders.OfflineExportArt = "Export";
        return lauf.ini.fuegeAn({session.user.Anwender, "OfflineDaten", "Plot", "(1)", "Export"});
    }
    const bool artGut =
        istEinesVon(toUpper(pflichttext(zeile, "Feld3")), {"PLOT", "PDF", "TIFF", "EXPORT", "DIRECTMAIL"});
    const bool nummerGut = istEinesVon(pflichttext(zeile, "Feld4"), {"(1)", "(2)"});
    const bool exportGut = istEinesVon(toUpper(pflichttext(zeile, "Feld5")), {"EXPORT", "BOM"});
    session.orders.OfflineArt = geheilt(lauf, zeile, "Feld3", artGut, "Plot");
    session.orders.OfflineNummer = geheilt(lauf, zeile, "Feld4", nummerGut, "(1)");
    session.orders.OfflineExportArt = geheilt(lauf, zeile, "Feld5", exportGut, "Export");
}

void leseZipDaten(Startlauf& lauf)
{
    SessionState& session = lauf.session;
    session.orders.ZipStufe = 0;
    session.orders.ZipPasswort = ZIP_PASSWORT;
    Recordset zeile = lauf.ini.zeilen(session.user.Anwender, "ZipDaten");
    if (zeile.leer())
        return lauf.ini.fuegeAn({session.user.Anwender, "ZipDaten", ZIP_STUFEN[0], ZIP_PASSWORT});

    const auto stufe = std::find(ZIP_STUFEN.begin(), ZIP_STUFEN.end(), pflichttext(zeile, "Feld3"));
    if (stufe != ZIP_STUFEN.end())
        session.orders.ZipStufe = static_cast<int>(stufe - ZIP_STUFEN.begin());
    else
        lauf.ini.aendere(zeile, "Feld3", ZIP_STUFEN[0]);

    // A password that is too long stays in the table.
    const std::string passwort = pflichttext(zeile, "Feld4");
    if (passwort.empty())
        lauf.ini.aendere(zeile, "Feld4", ZIP_PASSWORT);
    else if (countCharacters(passwort) <= LAENGSTES_PASSWORT)
        session.orders.ZipPasswort = passwort;
}

} // namespace quelvarn
