#include "bench/register_data.h"

#include "bench/sample_document.h"
#include "database/connection.h"
#include "database/open_engine.h"
#include "database/recordset.h"
#include "database/sql/conditions.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <functional>
#include <numeric>
#include <utility>
#include <vector>

namespace quelvarn::bench {

namespace {

constexpr std::size_t PART = 0;
constexpr std::size_t ASSEMB = 2;
constexpr std::size_t DRAFT = 3;
constexpr std::size_t PROPERTIES = 5;              // User-defined, of each part.
constexpr std::size_t DOCUMENTS_OTHERWISE = 2'000; // In each of the seven other tables.

using CellSource = std::function<Value(std::size_t row, const ColumnInfo& column)>;

void write(Engine& engine, const TableSchema& table, std::size_t rows, const CellSource& cell)
{
    engine.createTable(table);
    const auto writer = engine.bulkWriter(table.name, table.columns);
    std::vector<Value> values(table.columns.size());
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t column = 0; column < values.size(); ++column)
            values[column] = cell(row, table.columns[column]);
        writer->row(values);
    }
    writer->end();
    engine.createIndexes(table);
}

// What stands in a table that relates a document to a part, by the name of the column.
Value relation(const SampleDocument& document, const SampleDocument& part, const std::string& column)
{
    if (column == "DokuBez" || column.ends_with("DokuBez") || column.starts_with("DokuBez"))
        return document.label();
    if (column.ends_with("RevBez") || column.starts_with("RevBez"))
        return document.revision();
    if (column == "Part" || column == "PfadAssembPart" || column == "Dokufilename")
        return part.path();
    if (column == "DateinameAssembPart")
        return part.fileName();
    if (column.find("filename") != std::string::npos)
        return document.path();
    return document.fileName();
}

// The k-th user-defined property of a document: a few values, many, and the path of a file.
Value propertyValue(std::size_t k, std::size_t number, const std::string& column)
{
    constexpr std::array<std::string_view, PROPERTIES> NAMES{"Werkstoff", "Oberfläche", "Gewicht", "Kunde", "Notiz"};
    if (column == "Name")
        return std::string(NAMES[k]);
    const std::array<std::string, PROPERTIES> values{
        fmt::format("Stahl {}", number % 10), fmt::format("verzinkt {}", number % 7),
        fmt::format("{},5 kg", number % 5000), fmt::format("Kunde {}", number % 300),
        fmt::format("W:\\Konstruktion\\Ablage\\Notizen\\Notiz {}.txt", number % 1000)};
    return values[k];
}

Value property(const SampleDocument& part, std::size_t k, std::size_t number, const ColumnInfo& column)
{
    if (column.type != FieldType::Text)
        return static_cast<std::int64_t>(number % STATUS_COUNT);
    if (column.name == "DokuBez")
        return part.label();
    if (column.name == "RevBez")
        return part.revision();
    if (column.name == "Name" || column.name == "Wert")
        return propertyValue(k, number, column.name);
    return fmt::format("{} {}", column.name, number % 50);
}

class RegisterBuilding
{
public:
    RegisterBuilding(Engine& engine, std::size_t documents) : engine_(engine), documents_(documents) {}

    // The settings come last: where they are the register is whole.
    void build()
    {
        for (const DocumentType& type : DOCUMENT_TYPES)
            documents(type, type.tab == PART ? documents_ : DOCUMENTS_OTHERWISE);
        properties();
        relations("ZusBauPart", ASSEMB, 4);
        relations("VerbindungDraftPart", DRAFT, 5);
        relations("VerbindungPartZusDoku", DRAFT, 10);
        for (const TableSchema& table : registerSchema())
            if (!engine_.findTable(table.name) && table.name != "Ini")
                write(engine_, table, 0, {});
        settings();
    }

private:
    // Rows lie in the file in another order than that of their names, as scanning leaves them.
    static std::size_t number(std::size_t row, std::size_t count)
    {
        std::size_t sprung = 7'368'787;
        while (std::gcd(sprung, count) != 1)
            ++sprung;
        return row * sprung % count;
    }

    void documents(const DocumentType& type, std::size_t count)
    {
        write(engine_, *findTable(type.table), count, [&](std::size_t row, const ColumnInfo& column) {
            return SampleDocument(type, number(row, count)).value(column, source_);
        });
    }

    void properties()
    {
        write(engine_, *findTable(DOCUMENT_TYPES[PART].tableUserDef), documents_ * PROPERTIES,
              [this](std::size_t row, const ColumnInfo& column) {
                  const std::size_t part = number(row / PROPERTIES, documents_);
                  return property(SampleDocument(DOCUMENT_TYPES[PART], part), row % PROPERTIES, part, column);
              });
    }

    // A document of this type for every n-th part.
    void relations(std::string_view table, std::size_t type, std::size_t each)
    {
        write(engine_, *findTable(table), documents_ / each, [&](std::size_t row, const ColumnInfo& column) {
            return relation(SampleDocument(DOCUMENT_TYPES[type], row % DOCUMENTS_OTHERWISE),
                            SampleDocument(DOCUMENT_TYPES[PART], row * each), column.name);
        });
    }

    void settings()
    {
        write(engine_, *findTable("Ini"), STATUS_COUNT, [](std::size_t row, const ColumnInfo& column) -> Value {
            const std::string values[]{std::string(USER), "Berechtigung", fmt::format("{}_Status", row), "1", "0"};
            return values[column.name.back() - '1'];
        });
    }

    Engine& engine_;
    std::size_t documents_;
    std::mt19937 source_{1};
};

std::int64_t count(Connection& connection, std::string_view table)
{
    if (!connection.engine().findTable(table))
        return 0;
    Recordset answer;
    sql::Select count = sql::Query(table);
    count.count = true;
    answer.Open(std::move(count), connection);
    return asInteger(answer.cell(0, answer.fields().front().name));
}

bool isReady(const std::filesystem::path& file, std::size_t documents)
{
    if (!std::filesystem::exists(file))
        return false;
    Connection connection;
    connection.Open(file);
    return count(connection, DOCUMENT_TYPES[PART].table) == static_cast<std::int64_t>(documents) &&
           count(connection, DOCUMENT_TYPES[PART].tableUserDef) == static_cast<std::int64_t>(documents * PROPERTIES) &&
           count(connection, "Ini") > 0;
}

} // namespace

void prepareRegister(const std::filesystem::path& file, std::size_t documents)
{
    if (isReady(file, documents))
        return;
    fmt::print("making a register of {} documents in {}\n", documents, file.string());
    std::filesystem::remove(file);
    const auto engine = openSqlite(file, true);
    RegisterBuilding(*engine, documents).build();
}

} // namespace quelvarn::bench
