#include "session/program_caption.h"

#include <fmt/format.h>

namespace quelvarn {

std::string versionText()
{
    return fmt::format("    Quelvarn Version {}.{}.{}", VERSION_MAJOR, VERSION_MINOR, VERSION_REVISION);
}

} // namespace quelvarn
