#include "session/session_state.h"

namespace quelvarn {

namespace {

std::string name(const SessionState& session, int tab, std::string_view DocumentType::*text)
{
    const DocumentType& type = DOCUMENT_TYPES[static_cast<std::size_t>(tab)];
    if (type.specialTable > 0)
        return session.labels.SondertabelleName[static_cast<std::size_t>(type.specialTable - 1)];
    return std::string(type.*text);
}

} // namespace

std::string SessionState::singular(int tab) const
{
    return name(*this, tab, &DocumentType::singular);
}

std::string SessionState::plural(int tab) const
{
    return name(*this, tab, &DocumentType::plural);
}

} // namespace quelvarn
