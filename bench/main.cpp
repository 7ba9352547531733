#ifdef QUELVARN_BENCH_ACCESS
#include "bench/access/import_measures.h"
#endif
#include "bench/database_measures.h"
#include "bench/filter_measures.h"
#include "bench/register_data.h"
#include "bench/relation_measures.h"
#include "bench/report.h"
#include "bench/user_defined_measures.h"
#include "bench/value_list_measures.h"
#ifdef QUELVARN_BENCH_UI
#include "bench/program/program_run.h"
#endif

#include <algorithm>
#include <exception>
#include <fmt/format.h>
#include <stdexcept>
#include <string>

using namespace quelvarn::bench;

namespace {

constexpr const char* CALL =
    "quelvarn-bench [--documents N] [--runs N] [--database FILE] [--json FILE]\n"
    "               [--access FILE] [--without-program | --only-program] [--without-qt-peer] [--qt-peer-runs N]";

// A smaller register is for trying things out: its figures are only shown beside those of the peers.
constexpr std::size_t DOCUMENTS_OF_BOUNDS = 500'000;

struct Order
{
    std::size_t documents = 1'000'000;
    int runs = 7;
    int qtRuns = 1; // 0 leaves the peer out.
    bool program = true;
    bool core = true;
    std::filesystem::path json;
    std::filesystem::path database;
    std::filesystem::path access; // Nothing is imported where it is missing.
};

void takeValue(Order& order, const std::string& name, const std::string& value)
{
    if (name == "--documents")
        order.documents = std::stoull(value);
    else if (name == "--runs")
        order.runs = std::max(std::stoi(value), 1);
    else if (name == "--qt-peer-runs")
        order.qtRuns = std::max(std::stoi(value), 1);
    else if (name == "--json")
        order.json = value;
    else if (name == "--access")
        order.access = value;
    else if (name == "--database")
        order.database = value;
    else
        throw std::invalid_argument(CALL);
}

Order readOrder(int count, char** arguments)
{
    Order order;
    for (int i = 1; i < count; ++i) {
        const std::string name = arguments[i];
        if (name == "--without-program")
            order.program = false;
        else if (name == "--only-program")
            order.core = false;
        else if (name == "--without-qt-peer")
            order.qtRuns = 0;
        else if (i + 1 < count)
            takeValue(order, name, arguments[++i]);
        else
            throw std::invalid_argument(CALL);
    }
    if (order.database.empty())
        order.database = std::filesystem::temp_directory_path() / fmt::format("quelvarn-bench-{}.qv", order.documents);
    return order;
}

void measureCore(Measurements& series, const Order& order)
{
#ifdef QUELVARN_BENCH_ACCESS
    const auto access = order.access.empty() ? std::filesystem::path(QUELVARN_TEST_DATA) / "werk-a.mdb" : order.access;
    if (std::filesystem::exists(access))
        measureImport(series, access);
#endif
    measureDatabase(series, order.database);
    measureFilterPage(series, order.database);
    measureUserDef(series, order.database);
    measureRelation(series, order.database);
    measureLists(series, order.database);
}

void measure(Measurements& series, const Order& order)
{
    if (order.core)
        measureCore(series, order);
#ifdef QUELVARN_BENCH_UI
    if (order.program)
        measureWindow(series, order.database, order.qtRuns);
#endif
}

} // namespace

// Ends with 1 when a bound is exceeded.
int main(int count, char** arguments)
{
    try {
        const Order order = readOrder(count, arguments);
        prepareRegister(order.database, order.documents);
        Measurements series(order.runs, order.documents >= DOCUMENTS_OF_BOUNDS);
        measure(series, order);
        showTable(series.measurements());
        if (!order.json.empty())
            writeJson(order.json, series.measurements());
        const bool held = std::all_of(series.measurements().begin(), series.measurements().end(),
                                      [](const Measurement& measurement) { return measurement.held(); });
        return held ? 0 : 1;
    } catch (const std::exception& fault) {
        fmt::print(stderr, "{}\n", fault.what());
        return 2;
    }
}
