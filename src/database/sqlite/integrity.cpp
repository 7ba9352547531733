#include "database/sqlite/integrity.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "database/faults.h"
#include "database/sql/renderer.h"
#include "database/sqlite/handle.h"
#include "database/sqlite/statement.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::sqlite {
namespace {

// A finding may be a text of several lines, each a finding itself, below a headline.
void run(Handle& handle, const std::string& check, std::vector<std::string>& findings)
{
    try {
        Statement statement = handle.prepare(check);
        while (statement.step())
            for (const std::string& line : split(statement.text(0), '\n'))
                if (!line.empty() && !line.starts_with("***") && line != "ok" &&
                    std::ranges::find(findings, line) == findings.end())
                    findings.push_back(line);
    } catch (const RuntimeError& fault) { // Damage that even the check cannot read through.
        const auto* database = dynamic_cast<const DatabaseFault*>(&fault);
        if (database && database->kind() != FaultKind::Damaged)
            throw;
        findings.emplace_back(fault.what());
    }
}

std::vector<std::string> tables(Handle& handle)
{
    std::vector<std::string> names;
    Statement statement =
        handle.prepare("SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT GLOB 'sqlite_*'");
    while (statement.step())
        names.emplace_back(statement.text(0));
    return names;
}

} // namespace

// First the pages of the whole file, then the indexes table by table: whoever writes waits for one of them at most.
DamageReport findDamage(Handle& handle, std::size_t limit)
{
    DamageReport report{.checked = true, .findings = {}};
    run(handle, fmt::format("PRAGMA quick_check({})", limit), report.findings);
    for (const std::string& table : tables(handle))
        if (report.findings.size() < limit)
            run(handle, fmt::format("PRAGMA integrity_check({})", sql::Dialect::identifier(table)), report.findings);
    return report;
}

} // namespace quelvarn::sqlite
