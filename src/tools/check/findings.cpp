#include "tools/check/findings.h"

#include "base/collation.h"
#include "base/number_format.h"
#include "base/text.h"
#include "tools/check/table_rows.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::tools {

void Befund::fehler(std::string_view text)
{
    ++fehler_;
    aus_ << "Fehler: " << text << '\n';
}

void Befund::warnung(std::string_view text)
{
    ++warnungen_;
    aus_ << "Warnung: " << text << '\n';
}

void Befund::zeile(std::string_view text)
{
    aus_ << text << '\n';
}

bool endsCheck(const Laufzeitfehler& fault)
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

std::string Vorkommen::text(std::string_view was) const
{
    return fmt::format("{}: {}, etwa {}", was, formatGanzzahl(static_cast<std::int64_t>(anzahl_)), beispiel_);
}

std::unique_ptr<Zeilenleser> findZeilen(Engine& engine, std::string_view tabelle, std::vector<std::string> spalten)
{
    const auto schema = engine.findTabelle(tabelle);
    const bool alleDa =
        schema && std::ranges::all_of(spalten, [&](const std::string& name) {
            return std::ranges::any_of(schema->spalten, [&](const Spalte& s) { return equalText(s.name, name); });
        });
    if (!alleDa)
        return nullptr;
    return std::make_unique<TableRows>(engine, schema->name, std::move(spalten));
}

} // namespace quelvarn::tools
