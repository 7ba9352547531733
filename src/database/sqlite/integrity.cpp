#include "database/sqlite/integrity.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "database/sqlite/handle.h"
#include "database/sqlite/statement.h"

#include <fmt/format.h>

namespace quelvarn::sqlite {

// A finding may be a text of several lines, each a finding itself, below a headline.
DamageReport findDamage(Handle& handle, std::size_t limit)
{
    DamageReport report{.checked = true, .findings = {}};
    Statement statement = handle.bereite(fmt::format("PRAGMA integrity_check({})", limit));
    try {
        while (statement.step())
            for (const std::string& line : split(statement.text(0), '\n'))
                if (!line.empty() && !line.starts_with("***") && line != "ok")
                    report.findings.push_back(line);
    } catch (const Laufzeitfehler& fault) { // Damage that even this check cannot read through.
        report.findings.emplace_back(fault.what());
    }
    return report;
}

} // namespace quelvarn::sqlite
