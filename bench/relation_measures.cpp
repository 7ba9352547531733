#include "bench/relation_measures.h"

#include "bench/bare_sqlite.h"
#include "bench/sample_document.h"
#include "database/connection.h"
#include "database/new_database.h"
#include "database/open_engine.h"
#include "database/recordset.h"
#include "documents/document_record.h"
#include "register/relation_kinds.h"
#include "register/relation_rows.h"

#include <fmt/format.h>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace quelvarn::bench {

namespace {

constexpr std::size_t LINKS_PER_PART = 5;
constexpr std::size_t PARTS_PER_ASSEMBLY = 50;
constexpr std::size_t LARGE_ASSEMBLY = 2'000;
constexpr const char* LARGE = "Große Baugruppe";
constexpr int RUNS = 200;

// A part in one of the assemblies that hold it.
std::vector<Value> row(std::size_t part, const std::string& assembly)
{
    return {assembly, std::string("A"), assembly + ".asm", "W:\\Konstruktion\\Baugruppen\\" + assembly + ".asm",
            SampleDocument(DOCUMENT_TYPES[0], part).path()};
}

// Link tables as they are for so many parts, in a file of their own beside the register.
void createLinks(const std::filesystem::path& file, std::size_t parts)
{
    const auto engine = openSqlite(file, true);
    createRegister(*engine);
    const auto columns = findTable("ZusBauPart")->columns;
    const auto writer = engine->bulkWriter("ZusBauPart", columns);
    for (std::size_t i = 0; i < parts * LINKS_PER_PART; ++i)
        writer->row(row(i * 7'368'787 % parts, fmt::format("BG-{:07}", i / PARTS_PER_ASSEMBLY)));
    for (std::size_t i = 0; i < LARGE_ASSEMBLY; ++i)
        writer->row(row(i * 97 % parts, LARGE));
    writer->end();
}

std::size_t partCount(BareSqlite& sqlite)
{
    return static_cast<std::size_t>(sqlite.number("SELECT count(*) FROM PartTabelle"));
}

std::filesystem::path linksReady(const std::filesystem::path& file, std::size_t parts)
{
    std::filesystem::path links = file;
    links += ".links";
    const auto should = static_cast<std::int64_t>(parts * LINKS_PER_PART + LARGE_ASSEMBLY);
    if (!std::filesystem::exists(links) || BareSqlite(links).number("SELECT count(*) FROM ZusBauPart") != should) {
        std::filesystem::remove(links);
        createLinks(links, parts);
    }
    return links;
}

// All that the tree of a part asks of the link tables.
void askTree(Connection& connection, const std::string& path)
{
    DokuRecord part;
    part.DokuArt = 1;
    for (const InfoPageId page : {InfoPageId::InAssembly, InfoPageId::InDrawing})
        hasRelation(connection, relationKindOf(page), part, path);
}

void measureList(Measurements& series, const char* name, double limitMs, const std::function<std::size_t()>& ours,
                 BareSqlite& sqlite, const std::function<std::string()>& sql)
{
    if (ours() != sqlite.listAll(sql()))
        throw std::runtime_error(std::string("another number of rows: ") + name);
    const Work list{[&] { ours(); }, [] {}, RUNS};
    series.limit(name, limitMs, list);
    series.compare(name, std::nullopt, list, "the same SELECT", {[&] { sqlite.listAll(sql()); }, [] {}, RUNS});
}

} // namespace

void measureRelation(Measurements& series, const std::filesystem::path& file)
{
    BareSqlite register_(file);
    const std::size_t parts = partCount(register_);
    const std::filesystem::path left = linksReady(file, parts);
    Connection connection;
    connection.Open(left);
    BareSqlite sqlite(preparePlainCopy(
        left, "ZusBauPart",
        "CREATE INDEX Teile ON ZusBauPart(Part); CREATE INDEX Baugruppen ON ZusBauPart(AssembDokuBez, AssembRevBez);"));
    std::size_t number = 0;
    const auto nextPath = [&] {
        number = (number + 314'159) % parts;
        return SampleDocument(DOCUMENT_TYPES[0], number).path();
    };
    series.limit("link tables: questions of a row's tree", 2, {[&] { askTree(connection, nextPath()); }, [] {}, RUNS});

    DokuRecord part;
    part.DokuArt = 1;
    const std::string path = nextPath();
    measureList(
        series, "link tables: a part in assemblies, listed", 5,
        [&] { return relationRows(connection, relationKindOf(InfoPageId::InAssembly), part, path).RecordCount(); },
        sqlite,
        [&] {
            return "SELECT DISTINCT AssembDokuBez, AssembRevBez, AssembDateiname, Assembfilename FROM ZusBauPart "
                   "WHERE Part = '" +
                   path + "'";
        });
    DokuRecord assembly;
    assembly.DokuBez = LARGE;
    assembly.RevBez = "A";
    measureList(
        series, "link tables: 2,000 components, listed", 50,
        [&] { return relationRows(connection, relationKindOf(InfoPageId::ConsistsOf), assembly, "").RecordCount(); },
        sqlite,
        [] {
            return fmt::format(
                "SELECT DISTINCT 1, Part FROM ZusBauPart WHERE AssembDokuBez = '{}' AND AssembRevBez = 'A'", LARGE);
        });
}

} // namespace quelvarn::bench
