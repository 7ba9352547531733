#include "tools/temporary_file.h"

#include "tools/console.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fmt/format.h>
#include <string>
#include <system_error>
#include <unistd.h>

namespace quelvarn::tools {

TemporaryFile makeTemporaryFile()
{
    std::error_code unknown;
    std::string name = std::filesystem::temp_directory_path(unknown) / "qvadmin-XXXXXX";
    const int descriptor = mkstemp(name.data());
    TemporaryFile file(descriptor < 0 ? nullptr : fdopen(descriptor, "w+b"));
    if (!file)
        throw toolFault(fmt::format("Die Zwischendatei '{}' lässt sich nicht anlegen: {}", name,
                                    std::generic_category().message(errno)));
    unlink(name.c_str()); // It lives as long as it is open.
    return file;
}

} // namespace quelvarn::tools
