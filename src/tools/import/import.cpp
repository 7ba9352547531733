#include "base/collation.h"
#include "base/file_path.h"
#include "base/number_format.h"
#include "tools/commands.h"
#include "tools/import/access_source.h"
#include "tools/import/conversion.h"
#include "tools/import/table_mapping.h"
#include "tools/new_register.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <map>

namespace quelvarn::tools {

namespace {

constexpr std::array OPTION{Option{"--replace"}};

constexpr std::string_view HELP = R"(Aufruf: qvadmin import QUELLE.mdb ZIEL [--replace]

Übernimmt ein Register aus einer Access-Datei (Access 97 bis 2003) in SQLite oder PostgreSQL. Die Quelle wird nur
gelesen. Das Ziel entsteht ganz oder gar nicht.

  QUELLE.mdb   die Access-Datei
  ZIEL         Pfad der neuen Datenbank oder Adresse postgresql://... einer Datenbank ohne Register
  --replace    Ein vorhandenes Register an dieser Stelle wird ersetzt.

Zusätzliche Spalten mit Text, Zahl oder Datum bleiben erhalten. Am Ende steht, was nicht übernommen wurde.
)";

// What came over, and what did not.
class Report
{
public:
    void loss(std::string_view table, std::string_view column, std::string_view reason)
    {
        ++losses_[fmt::format("Werte in {}.{} ({})", table, column, reason)];
    }
    void table(std::string_view name) { rows_.emplace_back(name, 0); }
    void row() { ++rows_.back().second; }
    void columns(const TableMapping& mapping)
    {
        for (const auto& column : mapping.additional)
            additional_.push_back(fmt::format("{}.{}", mapping.target.name, column));
        for (const auto& column : mapping.missing)
            missing_.push_back(fmt::format("{}.{}", mapping.target.name, column));
    }
    void missingTable(std::string_view name) { missing_.emplace_back(name); }

    void print(const std::vector<std::string>& remainingTables, std::ostream& out) const
    {
        std::int64_t sum = 0;
        for (const auto& [name, count] : rows_) {
            out << fmt::format("{:<24}{:>12} Zeilen\n", name, formatInteger(count));
            sum += count;
        }
        out << fmt::format("{:<24}{:>12} Zeilen übernommen\n", "Zusammen", formatInteger(sum));
        if (!additional_.empty())
            out << fmt::format("Zusätzliche Spalten behalten: {}\n", fmt::join(additional_, ", "));
        if (!missing_.empty())
            out << fmt::format("Fehlt in der Quelle, leer angelegt: {}\n", fmt::join(missing_, ", "));
        for (const auto& name : remainingTables)
            out << fmt::format("Nicht übernommen: Tabelle {}\n", name);
        for (const auto& [what, count] : losses_)
            out << fmt::format("Nicht übernommen: {}: {}\n", what, formatInteger(count));
    }

private:
    std::vector<std::pair<std::string, std::int64_t>> rows_;
    std::vector<std::string> additional_;
    std::vector<std::string> missing_;
    std::map<std::string, std::int64_t> losses_;
};

// Brings rows of the source into the form of the target.
class Takeover
{
public:
    Takeover(NewRegister& target, Report& report) : target_(target), report_(report) {}

    void table(const SourceTable& source)
    {
        source_ = &source;
        mapping_ = mapTable(source, *findTable(source.name));
        values_.resize(mapping_.source.size());
        target_.table(mapping_.target);
        report_.table(mapping_.target.name);
        report_.columns(mapping_);
    }

    void row(std::span<const Cell> cells)
    {
        for (std::size_t i = 0; i < values_.size(); ++i) {
            const auto number = mapping_.source[i];
            std::string_view reason;
            values_[i] =
                number == NOT_THERE ? Value{} : asValue(cells[number], mapping_.target.columns[i].type, reason);
            if (!reason.empty())
                report_.loss(mapping_.target.name, source_->columns[number].name, reason);
        }
        for (const auto number : mapping_.notTaken) {
            std::string_view reason;
            (void)asValue(cells[number], FieldType::Text, reason);
            if (!reason.empty())
                report_.loss(mapping_.target.name, source_->columns[number].name, reason);
        }
        target_.row(values_);
        report_.row();
    }

private:
    NewRegister& target_;
    Report& report_;
    const SourceTable* source_ = nullptr;
    TableMapping mapping_;
    std::vector<Value> values_;
};

std::vector<std::string> tableNames()
{
    std::vector<std::string> names;
    for (const TableSchema& table : registerSchema())
        names.push_back(table.name);
    return names;
}

int importFile(const Arguments& arguments, Console& console)
{
    catchCancel();
    const auto existing = arguments.set("--replace") ? Existing::Replace : Existing::Refuse;
    AccessSource source(pathFromUtf8(arguments.position(0)), tableNames());
    if (const auto objection = findObjection(source.catalog()))
        throw toolFault(fmt::format("'{}' ist kein Register dieses Programms: {}.", arguments.position(0), *objection));
    NewRegister target(arguments.position(1), existing, console);
    Report report;
    Takeover takeover(target, report);
    source.read([&](const SourceTable& table) { takeover.table(table); },
                [&](std::span<const Cell> row) { takeover.row(row); });
    for (const TableSchema& table : registerSchema()) {
        if (std::ranges::any_of(source.catalog().tables, [&](const auto& t) { return equalText(t.name, table.name); }))
            continue;
        target.table(table);
        report.missingTable(table.name);
    }
    target.commit();
    report.print(source.catalog().remaining, console.out);
    return GOOD;
}

} // namespace

const Command IMPORT_COMMAND{.name = "import",
                             .shortText = "übernimmt ein Register aus einer Access-Datei",
                             .help = HELP,
                             .atLeast = 2,
                             .atMost = 2,
                             .option = OPTION,
                             .execute = importFile};

} // namespace quelvarn::tools
