#pragma once

#include "database/sql/ast.h"
#include "database/sql/literal.h"
#include "database/sql/reader.h"

#include <vector>

namespace quelvarn::sql {

// Reads a condition: OR binds least, then AND, then NOT.
class Bedingungsparser
{
public:
    // `stelle` is Filterbedingung or Bedingung.
    Bedingungsparser(Leser& leser, Literalleser& literale, Stelle stelle, Wildcards wildcards = Wildcards::Sql)
        : leser_(leser), literale_(literale), stelle_(stelle), wildcards_(wildcards)
    {}

    AusdruckZeiger lies();
    // The tables that stood in front of columns.
    const std::vector<std::string>& tabellen() const { return tabellen_; }

private:
    AusdruckZeiger oder();
    AusdruckZeiger und();
    AusdruckZeiger nicht();
    AusdruckZeiger klammer();
    AusdruckZeiger vergleich();
    AusdruckZeiger vergleichMitWort(const std::string& spalte);
    AusdruckZeiger liste(const std::string& spalte);
    AusdruckZeiger bereich(const std::string& spalte);
    AusdruckZeiger muster(const std::string& spalte, Vergleich vergleich);
    Value literal() { return literale_.lies(stelle_, klammern_); }

    Leser& leser_;
    Literalleser& literale_;
    Stelle stelle_;
    Wildcards wildcards_;
    int klammern_ = 0;
    int tiefe_ = 0;
    std::vector<std::string> tabellen_;
};

} // namespace quelvarn::sql
