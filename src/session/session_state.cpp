#include "session/session_state.h"

namespace quelvarn {

namespace {

std::string name(const SessionState& session, int tab, std::string_view DokuTyp::*text)
{
    const DokuTyp& typ = DOKUTYPEN[static_cast<std::size_t>(tab)];
    if (typ.sondertabelle > 0)
        return session.labels.SondertabelleName[static_cast<std::size_t>(typ.sondertabelle - 1)];
    return std::string(typ.*text);
}

} // namespace

std::string SessionState::einzahl(int tab) const
{
    return name(*this, tab, &DokuTyp::einzahl);
}

std::string SessionState::mehrzahl(int tab) const
{
    return name(*this, tab, &DokuTyp::mehrzahl);
}

} // namespace quelvarn
