#include "tools/check/pages.h"

#include "base/number_format.h"
#include "tools/check/findings.h"

#include <fmt/format.h>
#include <map>

namespace quelvarn::tools {

namespace {

constexpr std::size_t AT_MOST = 200; // findings

// What the engine says of an index or of free pages stands for itself; all the rest is one thing to a person.
std::string kindOf(std::string_view finding)
{
    for (const std::string_view mark : {"from index ", "entries in index "})
        if (const auto at = finding.rfind(mark); at != std::string_view::npos)
            return fmt::format("Der Index {} passt nicht zu seiner Tabelle", finding.substr(at + mark.size()));
    if (finding.starts_with("Freelist") || finding.starts_with("Main freelist") || finding.ends_with("is never used"))
        return "Das Verzeichnis der freien Seiten ist beschädigt";
    return "Die Datenbank ist beschädigt";
}

} // namespace

void checkPages(Engine& engine, Findings& findings)
{
    const DamageReport report = engine.findDamage(AT_MOST);
    if (!report.checked)
        findings.row("Seiten und Indexe kann diese Datenbank nicht selbst prüfen; geprüft wird, was zu lesen ist.");
    std::map<std::string, Occurrences> kinds;
    for (const std::string& finding : report.findings)
        kinds[kindOf(finding)].remember(oneLine(finding));
    for (const auto& [kind, found] : kinds)
        findings.fault(found.text(kind));
    if (report.findings.size() >= AT_MOST)
        findings.row(fmt::format("Nach {} Befunden wurde die Prüfung der Seiten beendet.", formatInteger(AT_MOST)));
}

} // namespace quelvarn::tools
