#include "tools/check/findings.h"

#include "base/collation.h"
#include "base/number_format.h"
#include "base/text.h"
#include "tools/check/table_rows.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::tools {

void Findings::fault(std::string_view text)
{
    ++fault_;
    out_ << "Fehler: " << text << '\n';
}

void Findings::warn(std::string_view text)
{
    ++warnings_;
    out_ << "Warnung: " << text << '\n';
}

void Findings::row(std::string_view text)
{
    out_ << text << '\n';
}

bool endsCheck(const RuntimeError& fault)
{
    const auto* database = dynamic_cast<const DatabaseFault*>(&fault);
    if (!database)
        return false;
    switch (database->kind()) {
    case FaultKind::ConnectionLost:
    case FaultKind::Locked:
    case FaultKind::GivenUp:
    case FaultKind::FileGone:
    case FaultKind::FileReplaced:
        return true;
    default:
        return false;
    }
}

std::string oneLine(std::string_view text)
{
    return join(split(text, '\n'), " ");
}

std::string Occurrences::text(std::string_view what) const
{
    return fmt::format("{}: {}, etwa {}", what, formatInteger(static_cast<std::int64_t>(count_)), example_);
}

std::unique_ptr<RowReader> findRows(Engine& engine, std::string_view table, std::vector<std::string> columns)
{
    const auto schema = engine.findTable(table);
    const bool allThere =
        schema && std::ranges::all_of(columns, [&](const std::string& name) {
            return std::ranges::any_of(schema->columns, [&](const ColumnInfo& s) { return equalText(s.name, name); });
        });
    if (!allThere)
        return nullptr;
    return std::make_unique<TableRows>(engine, schema->name, std::move(columns));
}

} // namespace quelvarn::tools
