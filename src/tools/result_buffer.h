#pragma once

#include "tools/temporary_file.h"

#include <ostream>
#include <string>
#include <string_view>

namespace quelvarn::tools {

// A result on its way from the database to whoever reads it: it is taken from the database at once, so that nobody
// else waits for a person with a pager. A few megabytes stay in memory, the rest lies in a temporary file.
class ResultBuffer
{
public:
    // Throws RuntimeError when there is no room for it.
    void append(std::string_view bytes);
    // All of it from its beginning, once. Ends early when nobody reads any more.
    void writeTo(std::ostream& target);

private:
    void spill();

    std::string memory_; // What the file does not hold yet.
    TemporaryFile file_;
};

} // namespace quelvarn::tools
