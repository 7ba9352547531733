#pragma once

#include "platform/meldungen.h"

namespace quelvarn {

// Message boxes of the desktop, with German buttons on every system.
class QtMeldungen final : public Meldungen
{
public:
    Antwort zeige(const Meldung& meldung) override;
};

} // namespace quelvarn
