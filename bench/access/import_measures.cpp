#include "bench/access/import_measures.h"

#include "bench/access/bare_access.h"
#include "database/connection.h"
#include "database/open_engine.h"
#include "database/recordset.h"
#include "database/sql/conditions.h"

#include <cstdlib>
#include <fmt/format.h>
#include <stdexcept>
#include <vector>

namespace quelvarn::bench {

namespace {

namespace fs = std::filesystem;

// A folder for what is imported; goes with all that lies in it.
class MeasureFolder
{
public:
    MeasureFolder()
    {
        std::string pattern = (fs::temp_directory_path() / "quelvarn-bench-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        path_ = pattern;
    }
    ~MeasureFolder()
    {
        std::error_code either;
        fs::remove_all(path_, either);
    }
    MeasureFolder(const MeasureFolder&) = delete;
    MeasureFolder& operator=(const MeasureFolder&) = delete;

    fs::path operator/(const char* name) const { return path_ / name; }

private:
    fs::path path_;
};

void importFile(const fs::path& source, const fs::path& target)
{
    const std::string command =
        fmt::format("'{}' import '{}' '{}' --replace >/dev/null", QVADMIN, source.string(), target.string());
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error("qvadmin does not import " + source.string());
}

struct Table
{
    TableSchema schema;
    std::vector<std::vector<Value>> rows;
};

std::vector<Table> liesRegister(const fs::path& file)
{
    Connection connection;
    connection.Open(file);
    std::vector<Table> tables;
    for (const std::string& name : connection.engine().tables()) {
        Table table{*connection.engine().findTable(name), {}};
        Recordset rows;
        rows.Open(sql::Query(name), connection);
        for (; !rows.eof(); rows.MoveNext()) {
            std::vector<Value>& values = table.rows.emplace_back();
            for (const ColumnInfo& column : table.schema.columns)
                values.push_back(rows.field(column.name));
        }
        tables.push_back(std::move(table));
    }
    return tables;
}

// Without indexes: the rows alone.
void write(const std::vector<Table>& tables, const fs::path& file)
{
    fs::remove(file);
    const auto engine = openSqlite(file, true);
    engine->begin();
    for (const Table& table : tables) {
        engine->createTable(table.schema);
        const auto writer = engine->bulkWriter(table.schema.name, table.schema.columns);
        for (const auto& row : table.rows)
            writer->row(row);
        writer->end();
    }
    engine->commit();
}

} // namespace

void measureImport(Measurements& series, const fs::path& accessFile)
{
    const MeasureFolder folder;
    const fs::path target = folder / "import.qv";
    importFile(accessFile, target);
    const std::vector<Table> tables = liesRegister(target);
    std::size_t bytes = 0;
    series.compare("qvadmin import", 3.0, {[&] { importFile(accessFile, target); }}, "libmdb read + bulk insert", {[&] {
                       bytes += readAllCells(accessFile);
                       write(tables, folder / "peer.qv");
                   }});
    if (bytes == 0)
        throw std::runtime_error("libmdb reads nothing");
}

} // namespace quelvarn::bench
