#pragma once

#include "database/sql/ast.h"

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The one place where statements with values of persons and documents are made. They are trees: whatever a value holds,
// it stays a value. Texts of statements are taken as literals alone (FixedText).
namespace quelvarn::sql {

AusdruckZeiger compare(std::string_view column, Vergleich comparison, std::string_view value);
AusdruckZeiger like(std::string_view column, std::string_view pattern, Wildcards wildcards);
AusdruckZeiger equal(std::string_view column, std::string_view value);
AusdruckZeiger equal(std::string_view column, std::int64_t value);

// Each of these. A null pointer is no condition; null when none of them is one.
AusdruckZeiger all(std::vector<AusdruckZeiger> parts);
template <std::same_as<AusdruckZeiger>... Parts> AusdruckZeiger all(Parts... parts)
{
    std::vector<AusdruckZeiger> list;
    (list.push_back(std::move(parts)), ...);
    return all(std::move(list));
}

// One of these; there must be one at least.
AusdruckZeiger any(std::vector<AusdruckZeiger> parts);
// The same in several conditions: a longer one than of a hundred parts is more than some engines take.
std::vector<AusdruckZeiger> chunks(std::vector<AusdruckZeiger> parts);

// The condition of WhereStatus (" WHERE (...)", or "" for none); null where there is none. Throws Laufzeitfehler where
// it names no status.
AusdruckZeiger statusScope(std::string_view WhereStatus);

// Makes a SELECT: Query("Ini").columns({"Feld4"}).where(equal("Feld1", user)).
class Query
{
public:
    explicit Query(std::string_view table) { select_.tabelle = table; }

    Query columns(std::initializer_list<std::string_view> names) &&;
    Query distinct() &&;
    Query where(AusdruckZeiger condition) &&;
    Query sortedBy(std::string_view column) &&;
    Query sortedDownBy(std::string_view column) &&;

    operator Select() && { return std::move(select_); } // NOLINT(google-explicit-constructor): it is one.

private:
    Select select_;
};

// For a filter or criterion of a Recordset, which is a text: the value between apostrophes, its own ones doubled.
std::string quoted(std::string_view value);

} // namespace quelvarn::sql
