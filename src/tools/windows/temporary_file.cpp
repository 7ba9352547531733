#include "tools/temporary_file.h"

#include "base/file_path.h"
#include "tools/console.h"
#include "tools/process.h"

#include <cerrno>
#include <filesystem>
#include <fmt/format.h>
#include <system_error>

namespace quelvarn::tools {

TemporaryFile makeTemporaryFile()
{
    static int number = 0;
    std::error_code unknown;
    const std::filesystem::path name =
        std::filesystem::temp_directory_path(unknown) / fmt::format("qvadmin-{}-{}.tmp", processNumber(), ++number);
    TemporaryFile file(_wfopen(name.c_str(), L"w+bTD")); // D: the system removes it when it is closed.
    if (!file)
        throw toolFault(fmt::format("Die Zwischendatei '{}' lässt sich nicht anlegen: {}", utf8FromPath(name),
                                    std::generic_category().message(errno)));
    return file;
}

} // namespace quelvarn::tools
