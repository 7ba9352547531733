#pragma once

#include "base/runtime_error.h"

#include <string>
#include <string_view>

namespace quelvarn {

// What a database refuses for, as far as the program acts on it or has words of its own for it.
enum class FaultKind {
    Other,
    ConnectionLost, // The server, or the share the file lies on, is away. The next operation tries again.
    Locked,         // Another program holds it.
    GivenUp,        // The person who waited for it has given up.
    FileGone,
    FileReplaced, // Another file stands under the path since.
    Damaged,
    DiskFull,
    ReadOnly,
    NoRight,
    WrongPassword,
    NoDatabase, // The server has none of that name.
};

// A fault of the database, told in German, with the engine's own words below.
class DatabaseFault : public RuntimeError
{
public:
    // `where`: path or address of the database, without a password. `engineWords` may be empty.
    DatabaseFault(FaultKind kind, int number, std::string source, std::string_view where, std::string_view engineWords);

    FaultKind kind() const { return kind_; }

private:
    FaultKind kind_;
};

} // namespace quelvarn
