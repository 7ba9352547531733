#include "session/session_state.h"

namespace quelvarn {

namespace {

std::string name(const Labels& labels, int tab, std::string_view DocumentType::*text)
{
    const DocumentType& type = DOCUMENT_TYPES[static_cast<std::size_t>(tab)];
    if (type.specialTable > 0)
        return labels.SondertabelleName[static_cast<std::size_t>(type.specialTable - 1)];
    return std::string(type.*text);
}

} // namespace

std::string Labels::singular(int tab) const
{
    return name(*this, tab, &DocumentType::singular);
}

std::string Labels::plural(int tab) const
{
    return name(*this, tab, &DocumentType::plural);
}

} // namespace quelvarn
