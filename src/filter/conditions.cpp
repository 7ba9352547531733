#include "filter/conditions.h"

#include "database/sql/parser.h"

#include <fmt/format.h>
#include <string>
#include <utility>

namespace quelvarn {

sql::AusdruckZeiger vergleich(std::string_view spalte, sql::Vergleich vergleich, std::string_view wert)
{
    return std::make_unique<sql::Ausdruck>(
        sql::Ausdruck{sql::Bedingung{std::string(spalte), vergleich, std::string(wert)}});
}

sql::AusdruckZeiger beide(sql::AusdruckZeiger links, sql::AusdruckZeiger rechts)
{
    if (!links || !rechts)
        return links ? std::move(links) : std::move(rechts);
    sql::Und und;
    und.teile.push_back(std::move(links));
    und.teile.push_back(std::move(rechts));
    return std::make_unique<sql::Ausdruck>(sql::Ausdruck{std::move(und)});
}

sql::AusdruckZeiger eines(sql::Oder oder)
{
    if (oder.teile.size() == 1)
        return std::move(oder.teile.front());
    return std::make_unique<sql::Ausdruck>(sql::Ausdruck{std::move(oder)});
}

sql::AusdruckZeiger statusbereich(std::string_view tabelle, std::string_view WhereStatus)
{
    auto anweisung = sql::parseAnweisung(fmt::format("SELECT Status FROM {}{}", tabelle, WhereStatus));
    return std::move(std::get<sql::Select>(anweisung).where);
}

} // namespace quelvarn
