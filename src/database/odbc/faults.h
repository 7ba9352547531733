#pragma once

#include "database/faults.h"

#include <string>
#include <string_view>

namespace quelvarn::odbc {

// What a driver tells of a call that failed.
struct Failure
{
    std::string sqlstate;
    long number = 0; // The database's own.
    std::string words;
};

// Whose fault it was: the database by its name, "ODBC" before it is known, and its file.
struct Place
{
    std::string source = "ODBC";
    std::string path; // "" where there is none.
};

// Another program holds the file, the table or the row; Access calls a missing right the same.
bool isHeld(const Failure& failure);
DatabaseFault faultOf(const Failure& failure, const Place& place);

} // namespace quelvarn::odbc
