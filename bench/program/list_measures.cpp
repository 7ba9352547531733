#include "bench/program/list_measures.h"

#include "bench/bare_sqlite.h"
#include "bench/program/own_list.h"
#include "bench/program/qt_list.h"

#include <fmt/format.h>
#include <malloc.h>
#include <stdexcept>
#include <unistd.h>

namespace quelvarn::bench {

namespace {

constexpr const char* TABLE = "QSqlTableModel, all rows";
constexpr const char* SELECTION = "QSortFilterProxyModel";
constexpr int ROW_CHANGE = 100;
constexpr int SPRUNG = 314'159;

double taken() // MB
{
    const struct mallinfo2 memory = mallinfo2();
    return static_cast<double>(memory.uordblks + memory.hblkhd) / 1e6;
}

// Takes both lists through the same work.
class ListComparison
{
public:
    ListComparison(Measurements& series, const std::filesystem::path& file, const std::filesystem::path& copy,
                   int qtRuns)
        : layoutRow_(series), ours_(file), other_(copy), qtRuns_(qtRuns)
    {}

    void measure()
    {
        memory();
        compare(
            "list: open, rows painted", TABLE, [](ListWindow& list) { list.open(); },
            [](ListWindow& list) { list.close(); });
        rowChange();
        filter("list: first filter on a column, painted", "Titel", "gefräst", [](ListWindow& list) {
            list.close();
            list.open();
        });
        filter("list: filter once read, painted", "Titel", "gefräst", {});
        filter("list: filter, all texts different, painted", "filename", "0012", {});
        compare(
            "list: sort by another column, painted", SELECTION, [](ListWindow& list) { list.sort("Titel"); },
            [](ListWindow& list) { list.sort(""); });
    }

private:
    using Step = std::function<void(ListWindow&)>;

    void compare(const std::string& name, const char* peer, const Step& action, const Step& before)
    {
        compare(name, peer, action, before, before);
    }
    void compare(const std::string& name, const char* peer, const Step& action, const Step& before,
                 const Step& beforeOurs)
    {
        layoutRow_.compare(name, {}, {[&] { action(ours_); }, [&] { beforeOurs(ours_); }}, peer,
                           {[&] { action(other_); }, [&] { before(other_); }, qtRuns_});
        if (ours_.count() != other_.count())
            throw std::runtime_error(fmt::format("{}: {} rows, of the peer {}", name, ours_.count(), other_.count()));
    }

    void memory()
    {
        const double empty = taken();
        ours_.open();
        const double withOurs = taken();
        other_.open();
        layoutRow_.compareSize("list: memory when open", "MB", withOurs - empty, TABLE, taken() - withOurs);
    }

    void rowChange()
    {
        int row = 0;
        const auto further = [&] { row = (row + SPRUNG) % ours_.count(); };
        layoutRow_.compare("list: row anywhere, all fields read, painted", {},
                           {[&] { ours_.showRow(row); }, further, ROW_CHANGE}, TABLE,
                           {[&] { other_.showRow(row); }, further, ROW_CHANGE});
    }

    // The peer holds all columns once it is open, so that its first filter is like any other.
    void filter(const std::string& name, const std::string& column, const std::string& text, const Step& oursFirst)
    {
        const Step withoutFilter = [&](ListWindow& list) { list.filter(column, ""); };
        const Step action = [&](ListWindow& list) { list.filter(column, text); };
        compare(name, SELECTION, action, withoutFilter, oursFirst ? oursFirst : withoutFilter);
        withoutFilter(ours_);
        withoutFilter(other_);
    }

    Measurements& layoutRow_;
    OwnList ours_;
    QtList other_;
    int qtRuns_;
};

// The peer holds each cell as an object of its own.
bool memorySuffices(std::int64_t documents)
{
    constexpr std::int64_t PER_DOCUMENT = 5'000;
    const std::int64_t free = static_cast<std::int64_t>(sysconf(_SC_AVPHYS_PAGES)) * sysconf(_SC_PAGESIZE);
    return documents * PER_DOCUMENT < free;
}

} // namespace

void measureLists(Measurements& series, const std::filesystem::path& file, int qtRuns)
{
    if (!QtList::existsIn() || !memorySuffices(BareSqlite(file).number("SELECT COUNT(*) FROM PartTabelle"))) {
        fmt::print("without the peer of ready-made parts: its driver or memory for it is missing\n");
        return;
    }
    ListComparison(series, file, preparePlainCopy(file), qtRuns).measure();
}

} // namespace quelvarn::bench
