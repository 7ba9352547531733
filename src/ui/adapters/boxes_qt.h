#pragma once

#include "platform/boxes.h"

namespace quelvarn {

// Message boxes of the desktop, with German buttons on every system.
class QtMeldungen final : public Meldungen
{
public:
    Antwort zeige(const Meldung& meldung) override;

    // From now on nobody answers: boxes are written to the standard error output, and the program goes on. A box that
    // stands on the screen is answered so as well, when it is closed.
    void answerAlone() { alone_ = true; }

private:
    bool alone_ = false;
};

} // namespace quelvarn
