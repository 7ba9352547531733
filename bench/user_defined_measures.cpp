#include "bench/user_defined_measures.h"

#include "bench/bare_sqlite.h"
#include "filter/filter_context.h"
#include "filter/steps.h"
#include "filter/user_defined_lists.h"
#include "filter/user_defined_run.h"
#include "platform/boxes.h"
#include "platform/clipboard.h"
#include "platform/progress.h"
#include "platform/system_ports.h"

#include <array>
#include <fmt/format.h>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace quelvarn::bench {

namespace {

constexpr int RUNS = 3;
constexpr const char* TABLE = "PartTabelleBenutzDef";

// A box would mean that something went wrong.
class NoBoxes final : public Boxes
{
    Answer show(const Box& box) override { throw std::runtime_error(box.text); }
};

class NoClipboard final : public Clipboard
{
    std::string text() const override { return {}; }
    void setText(std::string_view) override {}
};

struct TestCase
{
    const char* name;
    std::vector<std::pair<const char*, const char*>> steps; // Name and Wert
    double limitMs;
    const char* condition; // The same in the words of the peer.
};

const std::vector<TestCase> CASES{
    {"user-defined filter, every tenth document",
     {{"Werkstoff", "Stahl 3"}, {"Oberfläche", "*"}},
     2000,
     "(Name = 'Werkstoff' AND Wert = 'Stahl 3') OR Name = 'Oberfläche'"},
    {"user-defined filter, few documents",
     {{"Gewicht", "17,5 kg"}, {"Kunde", "*"}},
     2000,
     "(Name = 'Gewicht' AND Wert = '17,5 kg') OR Name = 'Kunde'"},
    {"user-defined filter, every row",
     {{"Werkstoff", "*"}, {"Oberfläche", "*"}, {"Gewicht", "*"}, {"Kunde", "*"}, {"Notiz", "*"}},
     5000,
     "1"},
};

void set(TypeFilter& state, const TestCase& testCase)
{
    clearFilter(state);
    for (const auto& [name, value] : testCase.steps) {
        const auto position = static_cast<std::size_t>(state.FilterAnzahl++);
        state.FilterSchritte[position] = {"", name, CodeText, value};
    }
}

void measureCase(Measurements& series, FilterContext& context, BareSqlite& sqlite, const TestCase& testCase)
{
    set(context.state(), testCase);
    const std::string peer = fmt::format("SELECT COUNT(*) FROM PartTabelle AS d JOIN (SELECT DokuBez, RevBez FROM {} "
                                         "WHERE {} GROUP BY DokuBez, RevBez HAVING COUNT(*) >= {}) AS b "
                                         "ON d.DokuBez = b.DokuBez AND d.RevBez = b.RevBez",
                                         TABLE, testCase.condition, testCase.steps.size());
    std::int64_t counted = 0;
    std::optional<Recordset> result;
    const Work ours{[&] { result = ApplyBenutzDefFilter(context); }, [] {}, RUNS};
    series.limit(testCase.name, testCase.limitMs, ours);
    series.compare(testCase.name, std::nullopt, ours, "GROUP BY ... HAVING",
                   {[&] { counted = sqlite.number(peer); }, [] {}, 1});
    const auto found = static_cast<std::int64_t>(result ? result->RecordCount() : 0);
    if (found != counted || found == 0)
        throw std::runtime_error("the user-defined filter and the peer find different documents");
}

} // namespace

void measureUserDef(Measurements& series, const std::filesystem::path& file)
{
    SessionState session;
    session.database.connection.Open(file);
    BareSqlite sqlite(file);
    NoBoxes boxes;
    NoClipboard clipboard;
    SilentDisplay display;
    const auto system = systemPorts(std::filesystem::temp_directory_path() / "quelvarn-bench-laufwerke");
    Ports ports = system->with(boxes, clipboard, display);
    Operations operations(ports);
    FilterState filter;
    filter.types[0].section = FilterSection::UserDefined;
    DocumentTables tables(session.database.connection, session.rights, operations);
    FilterContext context{session, operations, filter, tables};
    for (const TestCase& testCase : CASES)
        measureCase(series, context, sqlite, testCase);

    LongWork work(display, "");
    series.limit("user-defined names", 300, {[&] { readNames(session.database.connection, TABLE, ""); }, [] {}, RUNS});
    series.limit("user-defined values of a name", 300,
                 {[&] { readValues(session.database.connection, TABLE, "Gewicht"); }, [] {}, RUNS});
    series.limit("user-defined, four additional lists", 5000,
                 {[&] { readAdditions(session.database.connection, TABLE, 0, work); }, [] {}, RUNS});
}

} // namespace quelvarn::bench
