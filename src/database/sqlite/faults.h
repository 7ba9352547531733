#pragma once

#include "database/faults.h"
#include "database/watched_file.h"

#include <string_view>

namespace quelvarn::sqlite {

// What the library tells of a call that failed.
struct Failure
{
    int code = 0;        // The extended one.
    int systemError = 0; // 0 for none.
    std::string_view words;
    bool givenUp = false; // The wait for a lock was.
};

DatabaseFault faultOf(const Failure& failure, const WatchedFile& file);
// The file was not to be had: what is open of it is of no more use.
bool losesFile(const DatabaseFault& fault);

} // namespace quelvarn::sqlite
