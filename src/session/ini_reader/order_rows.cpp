#include "session/ini_reader/order_rows.h"

#include "base/collation.h"
#include "base/utf8.h"
#include "session/ini_reader/start_run.h"

#include <algorithm>
#include <initializer_list>

namespace quelvarn {

namespace {

constexpr std::array<std::string_view, 4> ZIP_LEVELS{"Normal", "Maximum", "Minimum", "Schnell"};
constexpr std::string_view ZIP_PASSWORD = "Tarnwort";
constexpr std::size_t LONGEST_PASSWORD = 16;

bool isOneOf(std::string_view value, std::initializer_list<std::string_view> allowed)
{
    return std::find(allowed.begin(), allowed.end(), value) != allowed.end();
}

// The stored value where it counts as good, else the default, which is written back.
std::string mended(StartRun& run, Recordset& row, std::string_view field, bool good, std::string_view defaultValue)
{
    if (!good)
        run.ini.update(row, field, defaultValue);
    return good ? requiredText(row, field) : std::string(defaultValue);
}

} // namespace

void readOfflineData(StartRun& run)
{
    SessionState& session = run.session;
    Recordset row = run.ini.rows(session.user.Anwender, "OfflineDaten");
    if (row.empty()) {
        session.orders.OfflineArt = "Plot";
        session.orders.OfflineNummer = "(1)";
        session.orders.OfflineExportArt = "Export";
        return run.ini.append({session.user.Anwender, "OfflineDaten", "Plot", "(1)", "Export"});
    }
    const bool kindGood = isOneOf(toUpper(requiredText(row, "Feld3")), {"PLOT", "PDF", "TIFF", "EXPORT", "DIRECTMAIL"});
    const bool numberIsGood = isOneOf(requiredText(row, "Feld4"), {"(1)", "(2)"});
    const bool exportGood = isOneOf(toUpper(requiredText(row, "Feld5")), {"EXPORT", "BOM"});
    session.orders.OfflineArt = mended(run, row, "Feld3", kindGood, "Plot");
    session.orders.OfflineNummer = mended(run, row, "Feld4", numberIsGood, "(1)");
    session.orders.OfflineExportArt = mended(run, row, "Feld5", exportGood, "Export");
}

void readZipData(StartRun& run)
{
    SessionState& session = run.session;
    session.orders.ZipStufe = 0;
    session.orders.ZipPasswort = ZIP_PASSWORD;
    Recordset row = run.ini.rows(session.user.Anwender, "ZipDaten");
    if (row.empty())
        return run.ini.append({session.user.Anwender, "ZipDaten", ZIP_LEVELS[0], ZIP_PASSWORD});

    const auto level = std::find(ZIP_LEVELS.begin(), ZIP_LEVELS.end(), requiredText(row, "Feld3"));
    if (level != ZIP_LEVELS.end())
        session.orders.ZipStufe = static_cast<int>(level - ZIP_LEVELS.begin());
    else
        run.ini.update(row, "Feld3", ZIP_LEVELS[0]);

    // A password that is too long stays in the table.
    const std::string password = requiredText(row, "Feld4");
    if (password.empty())
        run.ini.update(row, "Feld4", ZIP_PASSWORD);
    else if (countCharacters(password) <= LONGEST_PASSWORD)
        session.orders.ZipPasswort = password;
}

} // namespace quelvarn
