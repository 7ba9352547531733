#pragma once

#include "platform/boxes.h"

namespace quelvarn {

// Message boxes of the desktop, with German buttons on every system.
class QtBoxes final : public Boxes
{
public:
    Answer show(const Box& box) override;

    // From now on nobody answers: boxes are written to the standard error output, and the program goes on. A box that
    // stands on the screen is answered so as well, when it is closed.
    void answerAlone() { alone_ = true; }

private:
    bool alone_ = false;
};

} // namespace quelvarn
