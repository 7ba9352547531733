#include "bench/filter_measures.h"

#include "bench/bare_sqlite.h"
#include "database/connection.h"
#include "filter/filter_run.h"

#include <stdexcept>
#include <string>

namespace quelvarn::bench {

namespace {

constexpr int RUNS_UNREAD = 3;
constexpr const char* LIST = "SELECT * FROM PartTabelle ORDER BY DokuBez, RevBez DESC";

std::string fiveSteps()
{
    TypeFilter state;
    state.FilterSchritte = {{{"Material", "S235JR", CodeText, {}},
                             {"Autor", "*er", CodeText, {}},
                             {"Titel", "Welle*", CodeText, {}},
                             {"Geaendert", "01.06.08", CodeChanged, {}},
                             {"Kategorie", "Fertigungsteil", CodeText, {}}}};
    state.FilterAnzahl = 5;
    return withAnd(" ( Status >= 1  AND Status <= 3)", formChain(state, stepFragment).back().filterForm);
}

// The same rows in the words of the peer, which is blind to the case of ASCII letters alone.
constexpr const char* KEY_OF_THE_PEER =
    "SELECT rowid FROM PartTabelle WHERE Status >= 1 AND Status <= 3 AND Material LIKE 'S235JR' AND Autor LIKE '%er' "
    "AND Titel LIKE 'Welle%' AND Geaendert >= '2008-06-01 00:00:00' AND Kategorie LIKE 'Fertigungsteil'";

} // namespace

void measureFilterPage(Measurements& series, const std::filesystem::path& file)
{
    Connection connection;
    connection.Open(file);
    BareSqlite sqlite(file);
    const std::string expression = fiveSteps();
    Recordset rs;
    std::size_t listed = 0;
    const auto filter = [&] { rs.Filter(expression); };
    const Work peer{[&] { listed = sqlite.listAll(KEY_OF_THE_PEER); }, [] {}, RUNS_UNREAD};
    const Work unread{filter, [&] { rs.Open(LIST, connection); }, RUNS_UNREAD};

    series.limit("five filter steps, no column read", 1500, unread);
    series.compare("five filter steps, no column read", std::nullopt, unread, "SELECT rowid ... WHERE", peer);
    if (rs.RecordCount() != listed || listed == 0)
        throw std::runtime_error("the filter steps and the peer find different rows");
    series.limit("five filter steps, columns read", 30, {filter, [&] { rs.Filter(""); }});
    series.compare("five filter steps, columns read", series.atMany(0.1), {filter, [&] { rs.Filter(""); }, RUNS_UNREAD},
                   "SELECT rowid ... WHERE", peer);
}

} // namespace quelvarn::bench
