#include "session/program_caption.h"

#include "session/session_state.h"

#include <fmt/format.h>

namespace quelvarn {

std::string versionText()
{
    return fmt::format("    Quelvarn Version {}.{}.{}", VERSION_MAJOR, VERSION_MINOR, VERSION_REVISION);
}

std::string windowTitle(const SessionState& session)
{
    return session.database.DatenbankPfad + versionText();
}

} // namespace quelvarn
